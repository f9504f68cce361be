#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>

/// \file
/// Path strings taken apart and put together. Nothing here looks at the file system.
///
/// Components are separated by slashes; a run of slashes counts as one, and a slash at the end does not count. Of what
/// stands before the component in question nothing is changed.
///
/// For use on any thread.

namespace platform {

/// The last component: "Report.txt" of "/a/b/Report.txt" and of "/a/b/Report.txt/"; "/" of "/"; "" of "".
ORVANE_CORE_EXPORT QString lastPathComponent(const QString &path);

/// The path without its last component: "/a/b" of "/a/b/Report.txt", "/" of "/a" and of "/", "" of "a".
ORVANE_CORE_EXPORT QString deletingLastPathComponent(const QString &path);

/// What follows the last dot of the last component: "txt" of "/a/Report.txt", "gz" of "a.tar.gz".
///
/// There is none, and the result is empty, when that dot is the component's first or last character, or when the text
/// behind it holds a space or a character that controls writing direction: none in ".zip", "a." and "Vol. 1".
ORVANE_CORE_EXPORT QString pathExtension(const QString &path);

/// The path without its extension and the dot before it, and without slashes at its end: "/a/Report" of
/// "/a/Report.txt". A path without an extension keeps all else.
ORVANE_CORE_EXPORT QString deletingPathExtension(const QString &path);

/// The path with one more component, joined by a single slash: "/a/b" of "/a" or "/a/" and "b" or "/b". An empty path
/// gives the component alone, an empty component the path without slashes at its end.
ORVANE_CORE_EXPORT QString appendingPathComponent(const QString &path, const QString &component);

} // namespace platform
