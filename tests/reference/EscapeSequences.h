#pragma once

#include <string>
#include <vector>

namespace reference {

std::u16string stringWithConvertedEscSequences(const std::u16string &text);

std::u16string stringWithConvertedStringsFromArray(const std::u16string &text, const std::vector<std::u16string> &from,
                                                   const std::vector<std::u16string> &to);

} // namespace reference
