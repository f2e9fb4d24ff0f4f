// A silent layer: every call succeeds, nothing is heard. Sounds have no length.

#include "platform/fmodex/fmodex.h"

struct FMOD_SYSTEM {};
struct FMOD_SOUND {};

namespace {

FMOD_SYSTEM the_system;
FMOD_SOUND the_sound;

} // namespace

FMOD_RESULT FMOD_System_Create(FMOD_SYSTEM** system) {
    *system = &the_system;
    return 0;
}

FMOD_RESULT FMOD_System_Init(FMOD_SYSTEM*, int, unsigned int, void*) {
    return 0;
}

FMOD_RESULT FMOD_System_CreateSound(FMOD_SYSTEM*, const char*, unsigned int, void*,
                                    FMOD_SOUND** sound) {
    *sound = &the_sound;
    return 0;
}

FMOD_RESULT FMOD_System_CreateStream(FMOD_SYSTEM*, const char*, unsigned int, void*,
                                     FMOD_SOUND** sound) {
    *sound = &the_sound;
    return 0;
}

FMOD_RESULT FMOD_System_PlaySound(FMOD_SYSTEM*, int, FMOD_SOUND*, int, FMOD_CHANNEL** channel) {
    *channel = nullptr;
    return 0;
}

FMOD_RESULT FMOD_Channel_SetVolume(FMOD_CHANNEL*, float) {
    return 0;
}
FMOD_RESULT FMOD_Channel_SetPaused(FMOD_CHANNEL*, int) {
    return 0;
}

FMOD_RESULT FMOD_Sound_GetLength(FMOD_SOUND*, unsigned int* length, unsigned int) {
    *length = 0;
    return 0;
}

FMOD_RESULT FMOD_Sound_Release(FMOD_SOUND*) {
    return 0;
}
FMOD_RESULT FMOD_System_Update(FMOD_SYSTEM*) {
    return 0;
}

const char* FMOD_ErrorString(FMOD_RESULT) {
    return "Unknown error.";
}
