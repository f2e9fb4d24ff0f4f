#pragma once

#include "replay/Shipped.h"
#include "replay/Story.h"

#include <string>
#include <vector>

// What could have helped a player, beside skill. A file proves that its inputs reach its score, not
// how they came about.

namespace quorva::replay {

struct Remark {
    std::string text;
    bool marked; ///< unlike an untouched game
};

/// In numbers, whether they have helped or not.
std::vector<Remark> remarksOn(const GameStory& game, const Changes& changes);

bool anyMarked(const std::vector<Remark>& remarks);

/// One line, with a "(!)" behind what is marked.
std::string inWords(const std::vector<Remark>& remarks);

} // namespace quorva::replay
