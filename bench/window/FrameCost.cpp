// What a frame costs the whole process in a real window, beside a bare loop that sends the very
// same GL calls. Wants a display.
//
//   kov_frame_cost [frames a round]

#include "bench/support/Furniture.h"
#include "bench/window/GLTape.h"
#include "headless/Sandbox.h"

#include <GL/gl.h>
#include <SDL.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <iomanip>
#include <iostream>
#include <vector>

namespace {

constexpr int rounds = 7;
constexpr int usual_frames = 100;
constexpr int width = 800, height = 600; // the default settings

/// ms of processor time, of all threads.
double processTime() {
    timespec t;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) * 1e-6;
}

template <class Frame>
double costOf(int frames, Frame frame) {
    glFinish();
    const double start = processTime();
    for (int i = 0; i < frames; ++i)
        frame();
    glFinish();
    return (processTime() - start) / frames;
}

std::vector<unsigned char> pixels() {
    std::vector<unsigned char> rgb(width * height * 3);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadBuffer(GL_FRONT);
    glReadPixels(0, 0, width, height, GL_RGB, GL_UNSIGNED_BYTE, rgb.data());
    return rgb;
}

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + rounds / 2, values.end());
    return values[rounds / 2];
}

/// One line of the table: the scene's frames by the game and from the tape, in turn.
/// @return false if the tape doesn't draw what the game draws
template <class Frame>
bool measure(const char* scene, int frames, Frame gameFrame) {
    const auto bareFrame = [] {
        bench::glTape().play();
        SDL_GL_SwapBuffers();
    };
    gameFrame(); // makes the letters
    bench::glTape().record();
    gameFrame();
    bench::glTape().stop();
    const auto seen = pixels();
    glClear(GL_COLOR_BUFFER_BIT);
    SDL_GL_SwapBuffers();
    bareFrame();
    if (pixels() != seen) return false;

    std::vector<double> game, bare, ratio;
    for (int round = 0; round < rounds; ++round) {
        game.push_back(costOf(frames, gameFrame));
        bare.push_back(costOf(frames, bareFrame));
        ratio.push_back(game.back() / bare.back());
    }
    std::cout << std::setw(12) << scene << std::setw(12) << bench::glTape().size() << std::setw(12)
              << median(game) << std::setw(12) << median(bare) << std::setw(12) << median(ratio)
              << std::setw(12) << *std::min_element(ratio.begin(), ratio.end()) << std::setw(12)
              << *std::max_element(ratio.begin(), ratio.end()) << '\n';
    return true;
}

bool measureMenu(int frames) {
    quorva::headless::HeadlessGame run;
    return measure("menu", frames, [&run] { run.frame(); });
}

bool measureIdleGame(int frames) {
    quorva::headless::HeadlessGame run;
    run.startLevel();
    run.ticks(60);
    return measure("idle game", frames, [&run] { run.frame(); });
}

bool measureBusyField(int frames) {
    Field field;
    bench::furnishFrame(field);
    return measure("busy field", frames, [&field] { field.run.frame(); });
}

} // namespace

int main(int argc, char** argv) {
    const quorva::headless::Sandbox sandbox(KOV_SOURCE_DIR);
    if (SDL_Init(SDL_INIT_VIDEO) < 0) {
        std::cerr << "no display: " << SDL_GetError() << '\n';
        return 1;
    }
    const int frames = argc > 1 ? std::max(1, std::atoi(argv[1])) : usual_frames;
    std::cout
        << "Processor time of the process, ms a frame; medians of " << rounds << " rounds of "
        << frames << " frames\n"
        << "       scene    GL calls        game        bare       ratio       least        most\n"
        << std::setprecision(4);
    if (measureMenu(frames) && measureIdleGame(frames) && measureBusyField(frames)) return 0;
    std::cerr << "the tape draws another picture than the game\n";
    return 1;
}
