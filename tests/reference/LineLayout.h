#pragma once

#include <cstdint>
#include <string>

namespace reference {

void convertStartTabsToSpace(std::u16string &text, std::uint32_t spaces);
void deleteEmptyLines(std::u16string &text);
void setMaxLineLength(std::u16string &text, std::uint32_t limit);

} // namespace reference
