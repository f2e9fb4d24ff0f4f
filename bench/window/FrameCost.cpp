// What a frame costs the whole process in a real window, beside a bare loop that sends the very
// same GL calls and one that draws the same picture in the fewest calls. Wants a display.
//
//   kov_frame_cost [frames a round]
//   kov_frame_cost growth    how the cost grows with what is on the field

#include "bench/support/Furniture.h"
#include "bench/window/FewestCalls.h"
#include "bench/window/GLTape.h"
#include "headless/Sandbox.h"

#include <GL/gl.h>
#include <SDL.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr int rounds = 7;
constexpr int usual_frames = 100, growth_frames = 20; // a round
constexpr int width = 800, height = 600;              // the default settings

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
void clearWindow() {
    glClear(GL_COLOR_BUFFER_BIT);
    SDL_GL_SwapBuffers();
}

void bareFrame() {
    bench::glTape().play();
    SDL_GL_SwapBuffers();
}

void fewestFrame() {
    bench::fewestCalls().play();
    SDL_GL_SwapBuffers();
}

/// Whether both loops draw, on what they have recorded, what the game draws.
template <class Frame>
bool recordLoops(Frame gameFrame) {
    gameFrame(); // makes the letters
    bench::glTape().record();
    bench::fewestCalls().record();
    gameFrame();
    bench::fewestCalls().stop();
    bench::glTape().stop();
    const auto seen = pixels();
    for (const auto loop : {bareFrame, fewestFrame}) {
        clearWindow();
        loop();
        if (pixels() != seen) return false;
    }
    return true;
}

/// One line of the table: the scene's frames by the game and by the loops, in turn.
/// @return false if a loop doesn't draw what the game draws
template <class Frame>
bool measure(const char* scene, int frames, Frame gameFrame) {
    if (!recordLoops(gameFrame)) return false;
    std::vector<double> game, bare, fewest, ratio;
    for (int round = 0; round < rounds; ++round) {
        game.push_back(costOf(frames, gameFrame));
        bare.push_back(costOf(frames, bareFrame));
        fewest.push_back(costOf(frames, fewestFrame));
        ratio.push_back(game.back() / bare.back());
    }
    std::cout << std::setw(12) << scene << std::setw(10) << bench::glTape().size();
    for (const double figure :
         {median(game), median(bare), median(ratio), *std::min_element(ratio.begin(), ratio.end()),
          *std::max_element(ratio.begin(), ratio.end())})
        std::cout << std::setw(10) << figure;
    std::cout << std::setw(10) << bench::fewestCalls().arrays() << std::setw(10) << median(fewest)
              << '\n';
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

using Amount = int bench::Furniture::*;

/// Prints the least cost of a frame of the busy field, one of its amounts changed.
void measureGrowth(const char* what, Amount amount, std::initializer_list<int> steps) {
    for (const int step : steps) {
        bench::Furniture furniture;
        furniture.*amount = step;
        Field field;
        bench::furnishFrame(field, furniture);
        double least = costOf(growth_frames, [&field] { field.run.frame(); });
        for (int round = 1; round < rounds; ++round)
            least = std::min(least, costOf(growth_frames, [&field] { field.run.frame(); }));
        std::cout << what << ' ' << step << ' ' << least << '\n';
    }
}

void measureAllGrowth() {
    measureGrowth("triangles", &bench::Furniture::triangles, {0, 50, 100, 200, 400});
    measureGrowth("lines", &bench::Furniture::linesEachWay, {0, 2, 4, 6, 8});
    measureGrowth("bursts", &bench::Furniture::bursts, {0, 1, 2, 4, 8});
}

} // namespace

int main(int argc, char** argv) {
    const quorva::headless::Sandbox sandbox(KOV_SOURCE_DIR);
    if (SDL_Init(SDL_INIT_VIDEO) < 0) {
        std::cerr << "no display: " << SDL_GetError() << '\n';
        return 1;
    }
    if (argc > 1 && std::string(argv[1]) == "growth") {
        measureAllGrowth();
        return 0;
    }
    const int frames = argc > 1 ? std::max(1, std::atoi(argv[1])) : usual_frames;
    std::cout
        << "Processor time of the process, ms a frame; medians of " << rounds << " rounds of "
        << frames << " frames\n"
        << "       scene     calls      game      bare     ratio     least      most    arrays"
           "    fewest\n"
        << std::setprecision(4);
    if (measureMenu(frames) && measureIdleGame(frames) && measureBusyField(frames)) return 0;
    std::cerr << "a loop draws another picture than the game\n";
    return 1;
}
