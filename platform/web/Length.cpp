// How long a kept game is, for the page.

#include "replay/Summary.h"

#include <emscripten.h>

/// ms of play; 0 if the file can't be read
extern "C" EMSCRIPTEN_KEEPALIVE double kovLengthOf(const char* path) {
    try {
        return quorva::replay::Summary(path).length;
    } catch (const std::exception&) {
        return 0.0;
    }
}
