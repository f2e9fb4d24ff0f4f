#include "platform/fmodex/fmodex.h"

// The other functions of the sound layer are the page's (page/sound.js).

const char* FMOD_ErrorString(FMOD_RESULT result) {
    return result == FMOD_ERR_FILE_NOTFOUND ? "File not found." : "The call failed.";
}
