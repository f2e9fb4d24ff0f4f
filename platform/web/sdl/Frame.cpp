#include "platform/web/gl/Frame.h"

#include <SDL.h>

namespace {

bool isSeen = true;

} // namespace

namespace quorva::web {

void seeFrames(bool on) {
    isSeen = on;
}

} // namespace quorva::web

// By itself, so that a program can have its own.
extern "C" void SDL_GL_SwapBuffers() {
    if (isSeen) quorva::web::showFrame();
}
