#pragma once

#include <string>
#include <vector>

namespace quorva::utility {

/// Trims the white space at both ends of every string.
void trimStringsInVector(std::vector<std::string>& strings);

/// Removes the empty strings, keeping the order of the others.
void removeEmptyStringsFromVector(std::vector<std::string>& strings);

/// The fields of `text` between characters of `separators`; a run of separators counts as one.
std::vector<std::string> splitCompressed(const std::string& text, const char* separators);

/// `text` with control characters and bytes that aren't UTF-8 as escapes such as \x1b, so that
/// text from outside can't steer the terminal that it is shown on.
std::string printable(const std::string& text);

} // namespace quorva::utility
