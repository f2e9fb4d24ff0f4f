#pragma once

// The sound layer: the ten operations that the game needs of a mixer, over OpenAL Soft (mixing,
// output), libsndfile (WAV, Ogg Vorbis) and libmpg123 (MP3). Handles are opaque. Every operation
// returns 0 for success or a code below; FMOD_ErrorString has a text for each. One thread.
//
// Without a usable sound card everything succeeds on a silent output. The system ends with the
// process: there is no call to close it.

extern "C" {

typedef struct FMOD_SYSTEM FMOD_SYSTEM;
typedef struct FMOD_SOUND FMOD_SOUND;

/// A channel's handle goes stale when its sound ends, gives way or is released. A stale or null
/// one is harmless: the operation has no effect and returns FMOD_ERR_INVALID_HANDLE.
typedef struct FMOD_CHANNEL FMOD_CHANNEL;

typedef int FMOD_RESULT;

enum {
    FMOD_OK = 0,
    FMOD_ERR_CHANNEL_ALLOC = 10,
    FMOD_ERR_FILE_BAD = 19,
    FMOD_ERR_FILE_NOTFOUND = 23,
    FMOD_ERR_FORMAT = 25,
    FMOD_ERR_INVALID_HANDLE = 36,
    FMOD_ERR_INVALID_PARAM = 37,
    FMOD_ERR_MEMORY = 43,
};

/// What the game asks for. Which mode it is makes no difference here.
enum {
    FMOD_CHANNEL_ANY = -1,
    FMOD_LENGTH_MS = 1,
    FMOD_MODE_STREAM = 64,     ///< software
    FMOD_MODE_EFFECT = 0x4149, ///< no loop, 2D, software, loaded whole
};

/// The one system of the process.
FMOD_RESULT FMOD_System_Create(FMOD_SYSTEM** system);

/// Starts the output. @param maxChannels sounds at once, 1 to 4095, else INVALID_PARAM; `flags` and
/// `extra` are not used
FMOD_RESULT FMOD_System_Init(FMOD_SYSTEM* system, int maxChannels, unsigned int flags, void* extra);

/// Loads a file whole, up to 64 MiB of samples; more than two channels are mixed down. `mode` and
/// `exInfo` are not used. FILE_NOTFOUND (also no regular file), FORMAT, FILE_BAD (no sound, or not
/// as much as it says), MEMORY
FMOD_RESULT FMOD_System_CreateSound(FMOD_SYSTEM* system, const char* path, unsigned int mode,
                                    void* exInfo, FMOD_SOUND** sound);

/// Opens a file to be decoded while it plays, in a queue of two seconds. It does not loop.
/// FILE_NOTFOUND, FORMAT, FILE_BAD (as above), MEMORY
FMOD_RESULT FMOD_System_CreateStream(FMOD_SYSTEM* system, const char* path, unsigned int mode,
                                     void* exInfo, FMOD_SOUND** sound);

/// Starts a sound at full level. When no channel is free the oldest effect gives way, never a
/// stream; CHANNEL_ALLOC if there is none to give way. A stream that plays starts again.
/// @param channelIndex FMOD_CHANNEL_ANY: there is no choosing
FMOD_RESULT FMOD_System_PlaySound(FMOD_SYSTEM* system, int channelIndex, FMOD_SOUND* sound,
                                  int paused, FMOD_CHANNEL** channel);

/// @param volume 0 to 1; what lies outside is cut, not-a-number is 0
FMOD_RESULT FMOD_Channel_SetVolume(FMOD_CHANNEL* channel, float volume);
FMOD_RESULT FMOD_Channel_SetPaused(FMOD_CHANNEL* channel, int paused);

/// @param unit FMOD_LENGTH_MS, the only one
FMOD_RESULT FMOD_Sound_GetLength(FMOD_SOUND* sound, unsigned int* length, unsigned int unit);

/// Stops the sound at once, wherever it plays, and frees it: the pointer must not be used again.
FMOD_RESULT FMOD_Sound_Release(FMOD_SOUND* sound);

/// Decodes what each stream needs to fill its queue again, but for no longer than about 20 ms in
/// all. To be called every frame; a stall of up to about two seconds is not heard, and after a
/// longer one the stream goes on where it stood.
FMOD_RESULT FMOD_System_Update(FMOD_SYSTEM* system);

/// A short text for codes 0 to 73; "Unknown error." for any other.
const char* FMOD_ErrorString(FMOD_RESULT result);

} // extern "C"
