#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorva::headless {

/// One thing that play depends on, as a hash that knows nothing of addresses and is the same in
/// every build.
struct StatePart {
    const char* kind; ///< "score", or the implementation's name of an entity's class
    unsigned long id; ///< the engine's; 0 if it isn't an entity
    std::uint32_t hash;
};

/// Score and lives, random stream, clock, lines, then every entity by rising id.
std::vector<StatePart> stateParts();

/// One hash of all parts.
std::uint32_t combined(const std::vector<StatePart>& parts);

/// The part's name for a reader, such as "Triangle 57", with its position if it has one.
std::string describe(const StatePart& part);

/// The readable name of a class, from the implementation's.
std::string className(const char* kind);

} // namespace quorva::headless
