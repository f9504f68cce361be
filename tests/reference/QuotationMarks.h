#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace reference {

void convertQuotationsToStart(std::u16string &text, std::u16string_view start, std::u16string_view stop);

/// `Text` is a plain `std::u16string` or a `NaiveAttributedString`.
template <typename Text>
void convertQuotationsToType(Text &text, std::int32_t style);

} // namespace reference
