#include "game/FModSystem.h"

#include <iostream>

namespace {

constexpr int channel_count = 40;

} // namespace

FModSystemClass::FModSystemClass() {
    result = FMOD_System_Create(&system);
    isFModOk(result);
    result = FMOD_System_Init(system, channel_count, 0, nullptr); // kept, but not checked
}

bool FModSystemClass::isFModOk(FMOD_RESULT& value) const {
    if (value == 0) return true;
    std::cerr << "FMOD error!" << value << FMOD_ErrorString(value) << '\n';
    return false;
}
