#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// \file
/// Questions about output paths that a host asks before an export writes anything. None changes a path.
///
/// For use on any thread.

namespace platform {

/// A path that a question is answered yes for.
struct PathFinding {
    qsizetype index; ///< its place in the list that was asked about, from 0
    QString path;    ///< the path itself
    QString reason;  ///< one sentence for the user, in the user's language
};

/// The paths that stand in the list more than once, every occurrence of them, in the order of the list.
ORVANE_CORE_EXPORT QList<PathFinding> repeatedPaths(const QStringList &paths);

/// The paths at which a file or a folder exists already; and those that hold U+0000, for what comes before that may
/// exist, and a system that stops reading there would replace it.
ORVANE_CORE_EXPORT QList<PathFinding> existingPaths(const QStringList &paths);

/// The paths at which this system can have no file, whatever a program does: those that hold U+0000, that are longer or
/// have a longer name than their file system takes, or that lead through a folder that must not be searched. The system
/// is asked about every path; what it does not refuse may still fail when it is written.
///
///     impossiblePaths({u"/tmp/"_s + QString(256, u'x')});   // one finding: File name too long
ORVANE_CORE_EXPORT QList<PathFinding> impossiblePaths(const QStringList &paths);

/// The paths whose last component some file system would refuse: an empty name; control characters; characters or
/// device names that Windows reserves; a dot or blank at the end; more than 255 bytes in UTF-8.
///
///     refusedNames({u"/tmp/A:B.txt"_s});   // one finding, its reason names the ":"
ORVANE_CORE_EXPORT QList<PathFinding> refusedNames(const QStringList &paths);

} // namespace platform
