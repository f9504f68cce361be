#pragma once

/// \file
/// `Text` is a plain `std::u16string` or a `NaiveAttributedString`.

namespace reference {

template <typename Text>
void convertEllipses(Text &text);
template <typename Text>
void correctApostrophes(Text &text);
template <typename Text>
void correctDashes(Text &text);

} // namespace reference
