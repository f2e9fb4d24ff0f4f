#pragma once

#include <csignal>
#include <initializer_list>

namespace quorva::replay {

// SIGINT, SIGTERM and SIGHUP, unless they are ignored.

/// Keeps them waiting, in this thread and those that it starts, while there is nobody to tell.
/// @param others that are to wait with them
/// @return all that wait now because of this
sigset_t holdInterruptions(std::initializer_list<int> others = {});

/// From here on they only leave a note, whatever was to be done at them. Those that were held come
/// through.
void catchInterruptions();

bool isInterrupted();    ///< by one that was caught
bool takeInterruption(); ///< the same, and forgets it

} // namespace quorva::replay
