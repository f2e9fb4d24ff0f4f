#pragma once

#include "Framework/Singleton.h"

#include <string>

namespace quorva {

/// The identity of the program. Written by introduceGame() alone, before anything else runs.
class GameInfoClass {
public:
    std::string name;
    std::string title;         ///< window caption, and the head of the configuration file
    std::string version;       ///< in the head of the configuration file
    std::string homeDirectory; ///< suffix of the resource files, such as ".kov"
    std::string configFile;    ///< path of the configuration file
    std::string spare1, spare2, spare3;
};

using GameInfo = ReturningSingleton<GameInfoClass>;

} // namespace quorva
