#include "Framework/Utility.h"

#include <boost/algorithm/string.hpp>
#include <boost/locale/utf.hpp>

#include <algorithm>

namespace quorva::utility {

namespace {

constexpr boost::locale::utf::code_point first_printable = 0x20, delete_character = 0x7F,
                                         last_control = 0x9F; // from delete_character on

bool isPrintable(boost::locale::utf::code_point point) {
    return boost::locale::utf::is_valid_codepoint(point) && point >= first_printable &&
           (point < delete_character || point > last_control);
}

std::string escaped(char byte) {
    const char digits[] = "0123456789abcdef";
    const unsigned int value = static_cast<unsigned char>(byte);
    return {'\\', 'x', digits[value / 16], digits[value % 16]};
}

} // namespace

void trimStringsInVector(std::vector<std::string>& strings) {
    for (std::string& text : strings)
        boost::algorithm::trim(text);
}

void removeEmptyStringsFromVector(std::vector<std::string>& strings) {
    strings.erase(std::remove(strings.begin(), strings.end(), std::string()), strings.end());
}

std::vector<std::string> splitCompressed(const std::string& text, const char* separators) {
    std::vector<std::string> fields;
    boost::algorithm::split(fields, text, boost::algorithm::is_any_of(separators),
                            boost::algorithm::token_compress_on);
    return fields;
}

std::string printable(const std::string& text) {
    std::string shown;
    for (auto next = text.begin(); next != text.end();) {
        const auto first = next;
        if (isPrintable(boost::locale::utf::utf_traits<char>::decode(next, text.end()))) {
            shown.append(first, next);
            continue;
        }
        next = first + 1; // what follows a broken character may be sound
        shown += escaped(*first);
    }
    return shown;
}

} // namespace quorva::utility
