#include "platform/fmodex/fmodex.h"

#include "platform/fmodex/Mixer.h"

#include <iterator>
#include <new>

namespace {

const char* const error_texts[] = {
    "No error.",
    "Locked already.",
    "The command does not fit here.",
    "No disc drive driver.",
    "The disc drive can't be set up.",
    "No such disc drive.",
    "No audio on the disc.",
    "No disc drive.",
    "No disc in the drive.",
    "The disc can't be read.",
    "No channel is free.",
    "The channel has been taken by another sound.",
    "A system interface failed.",
    "A memory transfer failed.",
    "An effect is connected wrongly.",
    "An effect does not take this format.",
    "No such effect.",
    "The effect is running.",
    "Too many connections of an effect.",
    "The file is damaged or holds no sound.",
    "The file can't be wound to that place.",
    "The disc has been taken out.",
    "The file ended too early.",
    "File not found.",
    "This file is not wanted here.",
    "The format is not supported.",
    "A web server failed.",
    "The web server refused access.",
    "The proxy wants a password.",
    "The web server has an error of its own.",
    "The web server took too long.",
    "The output could not be started.",
    "Started already.",
    "An internal error.",
    "A bad address.",
    "A bad number.",
    "The handle is not valid any more.",
    "A bad argument.",
    "A bad position.",
    "No such speaker.",
    "A bad mark in the sound.",
    "A bad vector.",
    "Too many sounds are to be heard.",
    "Out of memory.",
    "The memory can't be pointed to.",
    "Out of sound memory.",
    "A flat sound is needed.",
    "A sound in space is needed.",
    "Hardware mixing is needed.",
    "Software mixing is needed.",
    "No connection.",
    "The network failed.",
    "A bad network address.",
    "The network would have to wait.",
    "Not ready yet.",
    "The output is in use.",
    "The output can't make a buffer.",
    "The sound driver failed.",
    "The outputs can't be listed.",
    "The output does not take this format.",
    "The output can't be set up.",
    "The hardware has no channels left.",
    "The software mixer has no channels.",
    "This sound can't be panned.",
    "A plug-in failed.",
    "Too many copies of a plug-in.",
    "A plug-in is missing.",
    "A plug-in lacks a resource.",
    "The recording failed.",
    "No such reverberation.",
    "The sound has parts.",
    "The part is in use.",
    "The part can't be moved.",
    "The parts are of another kind.",
};
static_assert(std::size(error_texts) == 74, "a text for each of the codes 0 to 73");

FMOD_SYSTEM* theSystem() {
    static auto* const system = new FMOD_SYSTEM; // ends with the process
    return system;
}

template <class Create>
FMOD_RESULT create(FMOD_SYSTEM* system, const char* path, FMOD_SOUND** sound, Create operation) {
    if (system == nullptr || path == nullptr || sound == nullptr) return FMOD_ERR_INVALID_PARAM;
    *sound = nullptr;
    try {
        return (system->*operation)(path, sound);
    } catch (const std::bad_alloc&) {
        return FMOD_ERR_MEMORY;
    }
}

} // namespace

FMOD_RESULT FMOD_System_Create(FMOD_SYSTEM** system) {
    if (system == nullptr) return FMOD_ERR_INVALID_PARAM;
    *system = theSystem();
    return FMOD_OK;
}

FMOD_RESULT FMOD_System_Init(FMOD_SYSTEM* system, int maxChannels, unsigned int, void*) {
    return system == nullptr ? FMOD_ERR_INVALID_PARAM : system->start(maxChannels);
}

FMOD_RESULT FMOD_System_CreateSound(FMOD_SYSTEM* system, const char* path, unsigned int, void*,
                                    FMOD_SOUND** sound) {
    return create(system, path, sound, &FMOD_SYSTEM::load);
}

FMOD_RESULT FMOD_System_CreateStream(FMOD_SYSTEM* system, const char* path, unsigned int, void*,
                                     FMOD_SOUND** sound) {
    return create(system, path, sound, &FMOD_SYSTEM::open);
}

FMOD_RESULT FMOD_System_PlaySound(FMOD_SYSTEM* system, int, FMOD_SOUND* sound, int paused,
                                  FMOD_CHANNEL** channel) {
    if (system == nullptr || sound == nullptr || channel == nullptr) return FMOD_ERR_INVALID_PARAM;
    return system->play(sound, paused != 0, channel);
}

FMOD_RESULT FMOD_Channel_SetVolume(FMOD_CHANNEL* channel, float volume) {
    return theSystem()->setVolume(channel, volume);
}

FMOD_RESULT FMOD_Channel_SetPaused(FMOD_CHANNEL* channel, int paused) {
    return theSystem()->setPaused(channel, paused != 0);
}

FMOD_RESULT FMOD_Sound_GetLength(FMOD_SOUND* sound, unsigned int* length, unsigned int unit) {
    if (sound == nullptr || length == nullptr || unit != FMOD_LENGTH_MS)
        return FMOD_ERR_INVALID_PARAM;
    *length = sound->length;
    return FMOD_OK;
}

FMOD_RESULT FMOD_Sound_Release(FMOD_SOUND* sound) {
    return sound == nullptr ? FMOD_ERR_INVALID_PARAM : theSystem()->release(sound);
}

FMOD_RESULT FMOD_System_Update(FMOD_SYSTEM* system) {
    if (system == nullptr) return FMOD_ERR_INVALID_PARAM;
    system->update();
    return FMOD_OK;
}

const char* FMOD_ErrorString(FMOD_RESULT result) {
    const bool known = result >= 0 && result < static_cast<int>(std::size(error_texts));
    return known ? error_texts[result] : "Unknown error.";
}
