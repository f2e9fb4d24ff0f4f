#pragma once

#include "replay/Records.h"

#include <functional>
#include <string>

// Replay files with other contents, as a program that knows the format would write them.

namespace quorva::replay {

using Edit = std::function<bool(Record&)>; // true: it is done

/// In the file "edited", too.
/// @param once whether the edit has to succeed
std::string edited(const std::string& path, const Edit& edit,
                   const std::function<void(Setup&)>& editSetup = {}, bool once = true);

/// Changes the first record of a kind.
template <class Kind>
Edit ofFirst(void (*change)(Kind&)) {
    return [change](Record& record) {
        auto* const found = std::get_if<Kind>(&record);
        if (found != nullptr) change(*found);
        return found != nullptr;
    };
}

/// The first key that fires becomes that.
Edit toFirstShot(const Event& other);

} // namespace quorva::replay
