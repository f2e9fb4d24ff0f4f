#pragma once

#include <SDL.h>

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

// A stand-in for SDL at link time: virtual time, scripted events, scripted joysticks and a window
// that is only written down. With it the real game runs without a display, as fast as it can.

namespace quorva::standins {

struct VideoMode {
    int width, height, depth;
    std::uint32_t flags;
};

struct VirtualSDL {
    std::uint32_t ticks = 0; ///< ms, what SDL_GetTicks gives
    std::deque<SDL_Event> events;
    std::vector<VideoMode> modes;  ///< asked for, in order
    int refusedModes = 0;          ///< how many of the next modes are refused
    std::uint64_t swaps = 0;       ///< frames shown
    std::function<void()> onSwap;  ///< called at each, the end of a pass
    std::function<void()> onMode;  ///< called at each mode asked for
    std::function<void()> onDelay; ///< called behind each SDL_Delay, which moves the clock on
    int quits = 0;
    int joysticks = 0;
    int refusedJoystick = -1;                          ///< index of a joystick that doesn't open
    std::array<std::array<std::int16_t, 4>, 4> axes{}; ///< by joystick, by axis
};

VirtualSDL& sdl();

void pushKey(int symbol, bool down);
void pushButton(int button, bool down);
void pushAxisMotion(); ///< says that an axis has moved; `axes` says where it stands
void pushQuit();

} // namespace quorva::standins
