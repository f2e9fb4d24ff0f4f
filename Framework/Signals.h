#pragma once

#include <initializer_list>

namespace quorva {

bool isIgnored(int signal); ///< by nohup, for example

/// From here on these only call the handler, but for those that are ignored: they stay so. Calls
/// that a signal interrupts go on, except for a sleep.
void catchSignals(std::initializer_list<int> signals, void (*handler)(int));

} // namespace quorva
