// Writes how long sounds are, in ms by path, as a script for the page: the game asks for a song's
// length before the page has fetched it.
//   bake_sounds FOLDER NAME... > OUTPUT.js

#include "platform/fmodex/Decoder.h"

#include <cstdio>
#include <string>

int main(int argc, char* argv[]) {
    std::puts("var kovSounds = {");
    for (int i = 2; i < argc; ++i) {
        platform::fmodex::Decoder decoder;
        if (decoder.open(std::string(argv[1]) + '/' + argv[i]) != FMOD_OK) {
            std::fprintf(stderr, "bake_sounds: no sound: %s\n", argv[i]);
            return 1;
        }
        std::printf("  '%s': %u,\n", argv[i], decoder.lengthMs());
    }
    std::puts("};");
    return 0;
}
