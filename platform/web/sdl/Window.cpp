// The window is the page, which does the rest (page/page.js).

#include "platform/web/gl/Canvas.h"

#include <SDL.h>

extern "C" {

void kovShowWindow(int width, int height, bool fullScreen);
void kovShowTitle(const char* title);

int SDL_Init(Uint32) {
    return 0;
}
Uint32 SDL_WasInit(Uint32 flags) {
    return flags;
}
void SDL_Quit() {}
char* SDL_GetError() {
    static char text[] = "no WebGL";
    return text;
}

SDL_Surface* SDL_SetVideoMode(int width, int height, int, Uint32 flags) {
    static SDL_Surface surface;
    if (!kovOpenCanvas(width, height)) return nullptr;
    kovShowWindow(width, height, (flags & SDL_FULLSCREEN) != 0);
    return &surface;
}
int SDL_GL_SetAttribute(SDL_GLattr, int) {
    return 0;
}
int SDL_ShowCursor(int toggle) {
    return toggle;
}
void SDL_WM_SetCaption(const char* title, const char*) {
    kovShowTitle(title);
}

// The page has its own icon.
void SDL_WM_SetIcon(SDL_Surface*, Uint8*) {}
SDL_RWops* SDL_RWFromFile(const char*, const char*) {
    return nullptr;
}
SDL_Surface* SDL_LoadBMP_RW(SDL_RWops*, int) {
    return nullptr;
}
void SDL_FreeSurface(SDL_Surface*) {}

} // extern "C"
