// The lower bound for a start with the game's libraries: with --help nothing at all, else a window
// of the default size and one cleared frame; with --stay it stays open.

#include <GL/glew.h>
#include <SDL.h>

#include <string>

int main(int argc, char** argv) {
    const std::string option = argc > 1 ? argv[1] : "";
    if (option == "--help") return 0;
    SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK);
    SDL_SetVideoMode(800, 600, 32, SDL_OPENGL);
    glewInit();
    glClear(GL_COLOR_BUFFER_BIT);
    SDL_GL_SwapBuffers();
    while (option == "--stay")
        SDL_Delay(1000);
    return 0;
}
