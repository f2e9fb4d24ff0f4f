// The lower bound for a start with the game's libraries: with an argument nothing at all, else a
// window of the default size and one cleared frame.

#include <GL/glew.h>
#include <SDL.h>

int main(int argc, char**) {
    if (argc > 1) return 0;
    SDL_Init(SDL_INIT_VIDEO | SDL_INIT_JOYSTICK);
    SDL_SetVideoMode(800, 600, 32, SDL_OPENGL);
    glewInit();
    glClear(GL_COLOR_BUFFER_BIT);
    SDL_GL_SwapBuffers();
    return 0;
}
