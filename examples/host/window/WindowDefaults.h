#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// \file
/// What the window keeps from one run to the next, in the user defaults of the program. A default that can't be saved
/// is kept as long as the program runs.

namespace host {

namespace keys {

inline const QString geometry = QStringLiteral("windowGeometry");
inline const QString panes = QStringLiteral("windowPanes");
inline const QString darkPalette = QStringLiteral("darkPalette");
inline const QString format = QStringLiteral("format");
inline const QString destination = QStringLiteral("destination");
inline const QString fileNames = QStringLiteral("fileNames");
inline const QString convertSpaces = QStringLiteral("convertSpaces");

} // namespace keys

/// The value that was kept, or else this one.
QVariant keptValue(const QString &key, const QVariant &otherwise = {});

/// Keeps a property-list value.
void keepValue(const QString &key, const QVariant &value);

/// The folders of the manuscripts that were opened last, the latest first; only those that are there.
QStringList recentManuscripts();

/// Puts a folder at the head of the list.
void addRecentManuscript(const QString &folder);

} // namespace host
