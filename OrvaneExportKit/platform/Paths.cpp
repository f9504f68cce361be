#include <OrvaneExportKit/platform/Paths.h>

#include <algorithm>

namespace platform {

namespace {

/// The length of the path without the slashes at its end; a path of slashes alone keeps one.
qsizetype lengthWithoutEndSlashes(QStringView path)
{
    qsizetype length = path.size();
    while (length > 1 && path[length - 1] == u'/') {
        --length;
    }
    return length;
}

/// The index at which the last component starts, in a path without slashes at its end.
qsizetype lastComponentStart(QStringView path)
{
    return path == u"/" ? 0 : path.lastIndexOf(u'/') + 1;
}

bool controlsDirection(QChar character)
{
    const char16_t unit = character.unicode();
    return unit == u'\u061C' || unit == u'\u200E' || unit == u'\u200F' || (unit >= u'\u202A' && unit <= u'\u202E') ||
           (unit >= u'\u2066' && unit <= u'\u2069');
}

bool isExtension(QStringView text)
{
    const auto endsExtension = [](QChar character) {
        return character == u' ' || character == u'/' || controlsDirection(character);
    };
    return !text.isEmpty() && std::none_of(text.begin(), text.end(), endsExtension);
}

/// The index of the dot before the extension of a path without slashes at its end, or the path's length.
qsizetype extensionDot(QStringView path)
{
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > lastComponentStart(path) && isExtension(path.mid(dot + 1)) ? dot : path.size();
}

QStringView withoutEndSlashes(const QString &path)
{
    return QStringView(path).left(lengthWithoutEndSlashes(path));
}

} // namespace

QString lastPathComponent(const QString &path)
{
    const QStringView trimmed = withoutEndSlashes(path);
    return trimmed.mid(lastComponentStart(trimmed)).toString();
}

QString deletingLastPathComponent(const QString &path)
{
    const QStringView trimmed = withoutEndSlashes(path);
    const QStringView folder = trimmed == u"/" ? trimmed : trimmed.left(lastComponentStart(trimmed));
    return folder.left(lengthWithoutEndSlashes(folder)).toString();
}

QString pathExtension(const QString &path)
{
    const QStringView trimmed = withoutEndSlashes(path);
    return trimmed.mid(std::min(extensionDot(trimmed) + 1, trimmed.size())).toString();
}

QString deletingPathExtension(const QString &path)
{
    const QStringView trimmed = withoutEndSlashes(path);
    return trimmed.left(extensionDot(trimmed)).toString();
}

QString appendingPathComponent(const QString &path, const QString &component)
{
    const QStringView folder = withoutEndSlashes(path);
    QStringView name = withoutEndSlashes(component);
    while (!folder.isEmpty() && name.startsWith(u'/')) {
        name = name.mid(1);
    }
    QString joined = folder.toString();
    if (!folder.isEmpty() && !name.isEmpty() && folder != u"/") {
        joined += u'/';
    }
    joined += name;
    return joined;
}

} // namespace platform
