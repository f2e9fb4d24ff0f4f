#include "replay/Tape.h"

#include "Framework/Graphics/Renderer.h"

#include <GL/gl.h>
#include <unistd.h>

// The linker's --wrap leads the game's calls to __wrap_, and those to __real_ to the library.
extern "C" {
Uint32 __real_SDL_GetTicks();
int __real_SDL_PollEvent(SDL_Event* event);
int __real_SDL_NumJoysticks();
SDL_Joystick* __real_SDL_JoystickOpen(int index);
Sint16 __real_SDL_JoystickGetAxis(SDL_Joystick* joystick, int axis);
SDL_Surface* __real_SDL_SetVideoMode(int width, int height, int depth, Uint32 flags);
void __real_SDL_GL_SwapBuffers();
void __real_glViewport(GLint x, GLint y, GLsizei width, GLsizei height);
void __real_glLineWidth(GLfloat width);
int __real_usleep(useconds_t microseconds);
FMOD_RESULT __real_FMOD_System_CreateStream(FMOD_SYSTEM* system, const char* path,
                                            unsigned int mode, void* extra, FMOD_SOUND** sound);
FMOD_RESULT __real_FMOD_System_PlaySound(FMOD_SYSTEM* system, int channelIndex, FMOD_SOUND* sound,
                                         int paused, FMOD_CHANNEL** channel);
FMOD_RESULT __real_FMOD_Sound_GetLength(FMOD_SOUND* sound, unsigned int* length, unsigned int unit);
}

namespace quorva::replay {

namespace {

Tape* inserted = nullptr;
const FMOD_SOUND* lastSong = nullptr; // that was opened

Tape& tape() {
    static auto* const through = new Tape; // for calls at the very end of the process, too
    return inserted != nullptr ? *inserted : *through;
}

} // namespace

Insertion::Insertion(Tape& tape) {
    inserted = &tape;
    graphics::Renderer::drawsFrame = [] { return replay::tape().draws(); };
}

Insertion::~Insertion() {
    inserted = nullptr;
}

std::uint32_t Tape::clock() {
    return __real_SDL_GetTicks();
}

int Tape::poll(SDL_Event* event) {
    return __real_SDL_PollEvent(event);
}

int Tape::joysticks() {
    return __real_SDL_NumJoysticks();
}

SDL_Joystick* Tape::openJoystick(int index) {
    return __real_SDL_JoystickOpen(index);
}

std::int16_t Tape::axis(SDL_Joystick* joystick, int index) {
    return __real_SDL_JoystickGetAxis(joystick, index);
}

FMOD_RESULT Tape::openSong(FMOD_SYSTEM* system, const char* path, FMOD_SOUND** song) {
    return __real_FMOD_System_CreateStream(system, path, FMOD_MODE_STREAM, nullptr, song);
}

FMOD_RESULT Tape::songLength(FMOD_SOUND* song, unsigned int* ms) {
    return __real_FMOD_Sound_GetLength(song, ms, FMOD_LENGTH_MS);
}

void Tape::sleep(std::uint32_t microseconds) {
    __real_usleep(microseconds);
}

SDL_Surface* Tape::openWindow(int width, int height, int depth, std::uint32_t flags) {
    return __real_SDL_SetVideoMode(width, height, depth, flags);
}

void Tape::setViewport(int width, int height) {
    placeViewport(0, 0, width, height);
}

void Tape::placeViewport(int x, int y, int width, int height) {
    __real_glViewport(x, y, width, height);
}

void Tape::endFrame() {
    __real_SDL_GL_SwapBuffers();
}

} // namespace quorva::replay

using quorva::replay::lastSong;
using quorva::replay::tape;

extern "C" {

Uint32 __wrap_SDL_GetTicks() {
    return tape().clock();
}
int __wrap_SDL_PollEvent(SDL_Event* event) {
    return tape().poll(event);
}
int __wrap_SDL_NumJoysticks() {
    return tape().joysticks();
}
SDL_Joystick* __wrap_SDL_JoystickOpen(int index) {
    return tape().openJoystick(index);
}
// The game reads none of these three, and the joystick may be one of the tape's own.
const char* __wrap_SDL_JoystickName(int) {
    return "";
}
int __wrap_SDL_JoystickNumAxes(SDL_Joystick*) {
    return {};
}
int __wrap_SDL_JoystickNumButtons(SDL_Joystick*) {
    return {};
}
Sint16 __wrap_SDL_JoystickGetAxis(SDL_Joystick* joystick, int axis) {
    return tape().axis(joystick, axis);
}
SDL_Surface* __wrap_SDL_SetVideoMode(int width, int height, int depth, Uint32 flags) {
    return tape().openWindow(width, height, depth, flags);
}
void __wrap_SDL_GL_SwapBuffers() {
    tape().endFrame();
}
void __wrap_glViewport(GLint, GLint, GLsizei width, GLsizei height) {
    tape().setViewport(width, height);
}
void __wrap_glLineWidth(GLfloat width) {
    __real_glLineWidth(tape().lineWidth(width));
}
int __wrap_usleep(useconds_t microseconds) {
    tape().sleep(microseconds);
    return {};
}
FMOD_RESULT __wrap_FMOD_System_CreateStream(FMOD_SYSTEM* system, const char* path, unsigned int,
                                            void*, FMOD_SOUND** sound) {
    const FMOD_RESULT result = tape().openSong(system, path, sound);
    lastSong = *sound;
    return result;
}
FMOD_RESULT __wrap_FMOD_System_PlaySound(FMOD_SYSTEM* system, int channelIndex, FMOD_SOUND* sound,
                                         int paused, FMOD_CHANNEL** channel) {
    const bool isSong = sound == lastSong;
    if (!isSong && !tape().sounds()) return FMOD_OK;
    return __real_FMOD_System_PlaySound(system, channelIndex, sound, paused, channel);
}
FMOD_RESULT __wrap_FMOD_Sound_GetLength(FMOD_SOUND* sound, unsigned int* length, unsigned int) {
    return tape().songLength(sound, length);
}

} // extern "C"
