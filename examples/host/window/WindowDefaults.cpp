#include "WindowDefaults.h"

#include <OrvaneExportKit/platform/UserDefaults.h>

#include <QtCore/QFileInfo>

#include <algorithm>

using platform::UserDefaults;

namespace host {

namespace {

const QString recentKey = QStringLiteral("recentManuscripts");
constexpr qsizetype longestRecentList = 8;

} // namespace

QVariant keptValue(const QString &key, const QVariant &otherwise)
{
    const QVariant value = UserDefaults::standardUserDefaults().objectForKey(key);
    return value.isValid() ? value : otherwise;
}

void keepValue(const QString &key, const QVariant &value)
{
    [[maybe_unused]] const bool isSaved = UserDefaults::standardUserDefaults().setObject(value, key);
}

QStringList recentManuscripts()
{
    QStringList folders = keptValue(recentKey).toStringList();
    folders.removeIf([](const QString &folder) { return !QFileInfo(folder).isDir(); });
    return folders;
}

void addRecentManuscript(const QString &folder)
{
    QStringList folders = recentManuscripts();
    folders.removeAll(folder);
    folders.prepend(folder);
    keepValue(recentKey, folders.first(std::min(folders.size(), longestRecentList)));
}

} // namespace host
