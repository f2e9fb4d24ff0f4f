#pragma once

// Stands in for Boost.Filesystem, of which a browser has no library: what is used of it is in the
// standard library as well.

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace boost {

namespace system {
using std::error_code;
}

namespace filesystem {

using namespace std::filesystem;

constexpr file_type directory_file = file_type::directory;
constexpr file_type status_error = file_type::none;

/// @param model every % of it becomes a random hexadecimal digit
inline path unique_path(std::string model) {
    for (char& c : model)
        if (c == '%') c = "0123456789abcdef"[std::rand() % 16];
    return model;
}

} // namespace filesystem
} // namespace boost
