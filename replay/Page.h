#pragma once

#include "replay/Best.h"

namespace quorva::replay {

/// Writes a page of games into a folder, which is made if need be: index.html, a picture for each
/// game, and the files to download. It is read without scripts. Throws std::runtime_error.
/// @param build of the game for browsers, which is copied into the folder, so that whoever looks at
///        the page there can watch and prove its games; empty: none
void writePage(const boost::filesystem::path& folder, const std::vector<RankedGame>& games,
               const boost::filesystem::path& build = {});

/// As it has to be within HTML, also in quotes.
std::string escaped(const std::string& text);

/// A file's name as a relative address.
std::string addressOf(const std::string& fileName);

} // namespace quorva::replay
