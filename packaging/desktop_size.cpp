// Prints the game's options for a full screen that suits the desktop, for the launcher: whether a
// system has a tool that tells the desktop's size is left to chance, SDL knows it anyway.

#include "Framework/Graphics/VideoDriver.h"
#include "Framework/menus/Resolutions.h"

#include <SDL.h>

#include <iostream>

using namespace quorva;

int main() {
    graphics::keepToDriversWithGL();
    if (SDL_Init(SDL_INIT_VIDEO) < 0) return 1;
    const SDL_VideoInfo& screen = *SDL_GetVideoInfo(); // of the desktop until a window opens
    const auto size = menus::fullScreenResolution({static_cast<std::uint16_t>(screen.current_w),
                                                   static_cast<std::uint16_t>(screen.current_h)});
    SDL_Quit();
    if (!size) return 1;
    std::cout << "-w=" << size->width << " -l=" << size->height << '\n';
    return 0;
}
