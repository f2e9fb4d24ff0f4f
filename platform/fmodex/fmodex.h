#pragma once

// The sound layer: the ten operations that the game needs of a mixer. Handles are opaque; a
// result of 0 is success, anything else a code that FMOD_ErrorString has a text for.

extern "C" {

typedef struct FMOD_SYSTEM FMOD_SYSTEM;
typedef struct FMOD_SOUND FMOD_SOUND;
typedef struct FMOD_CHANNEL FMOD_CHANNEL;
typedef int FMOD_RESULT;

FMOD_RESULT FMOD_System_Create(FMOD_SYSTEM** system);
FMOD_RESULT FMOD_System_Init(FMOD_SYSTEM* system, int maxChannels, unsigned int flags, void* extra);

/// Loads a file whole.
FMOD_RESULT FMOD_System_CreateSound(FMOD_SYSTEM* system, const char* path, unsigned int mode,
                                    void* exInfo, FMOD_SOUND** sound);
/// Opens a file to be decoded while it plays.
FMOD_RESULT FMOD_System_CreateStream(FMOD_SYSTEM* system, const char* path, unsigned int mode,
                                     void* exInfo, FMOD_SOUND** sound);

/// Starts a sound. @param channelIndex -1 for any free channel
FMOD_RESULT FMOD_System_PlaySound(FMOD_SYSTEM* system, int channelIndex, FMOD_SOUND* sound,
                                  int paused, FMOD_CHANNEL** channel);
FMOD_RESULT FMOD_Channel_SetVolume(FMOD_CHANNEL* channel, float volume); ///< 0 to 1
FMOD_RESULT FMOD_Channel_SetPaused(FMOD_CHANNEL* channel, int paused);

/// @param unit 1: milliseconds
FMOD_RESULT FMOD_Sound_GetLength(FMOD_SOUND* sound, unsigned int* length, unsigned int unit);
FMOD_RESULT FMOD_Sound_Release(FMOD_SOUND* sound);
FMOD_RESULT FMOD_System_Update(FMOD_SYSTEM* system); ///< to be called every frame

const char* FMOD_ErrorString(FMOD_RESULT result);

} // extern "C"
