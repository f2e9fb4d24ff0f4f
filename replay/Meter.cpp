#include "replay/Meter.h"

#include <unistd.h>

#include <iostream>

namespace quorva::replay {

namespace {

bool isTerminal() {
    return isatty(STDOUT_FILENO) != 0;
}

} // namespace

void Meter::say(int percent_) {
    if (isTerminal()) std::cout << '\r' << percent_ << " % " << std::flush;
}

void Meter::clear() {
    if (isTerminal()) std::cout << "\r      \r" << std::flush;
}

} // namespace quorva::replay
