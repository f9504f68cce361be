#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <string_view>

/// \file
/// For use on any thread, with objects of its own.

namespace platform {

/// The UTF-16 code units of a string or view, as the finding functions read them. Not a copy: it lives as long as the
/// text is neither changed nor destroyed, which is why there is none of a string that is gone at the end of the
/// statement.
inline std::u16string_view units(QStringView text) noexcept
{
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}

std::u16string_view units(QString &&text) = delete;

} // namespace platform
