#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace quorva::utility {

/// Bytes. No text file of the game comes near it; a larger file holds something else.
constexpr std::uintmax_t largest_text_file = 16U << 20U;

/// The path if it leads to a regular file, else the empty path, which no library can open. A pipe
/// would keep it waiting.
std::string regularOrNone(const std::string& path);

/// Opens a regular file of at most `largest` bytes for reading. Anything else fails like a file
/// that is missing.
std::ifstream openForReading(const std::string& path, std::uintmax_t largest = UINTMAX_MAX);

/// Replaces the file's contents, creating it if necessary; its owner and its permissions stay.
/// If that fails, the file holds what it held. If the process is killed meanwhile, it holds the old
/// contents or the new ones, behind which the end of a longer old file may stand where it has to be
/// written in place: a link, a hard link, a full disk or a folder that can't be written. Only a
/// regular file is written; a link is followed.
/// @return whether the file holds `contents` now
bool replaceContents(const std::string& path, const std::string& contents);

} // namespace quorva::utility
