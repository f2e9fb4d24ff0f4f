#pragma once

#include <fstream>
#include <string>

namespace quorva::utility {

/// Opens a file for reading. A folder, which can be opened but not read, fails like one that is
/// missing.
std::ifstream openForReading(const std::string& path);

/// Makes `contents` all that a file holds, and the file if need be. When the disk is full it
/// keeps what it held.
/// @return whether it holds `contents` now
bool replaceContents(const std::string& path, const std::string& contents);

} // namespace quorva::utility
