// How far a proof is, for the page.

#include "replay/Meter.h"

extern "C" void kovShowProgress(int percent);

namespace quorva::replay {

void Meter::say(int percent_) {
    kovShowProgress(percent_);
}

void Meter::clear() {}

} // namespace quorva::replay
