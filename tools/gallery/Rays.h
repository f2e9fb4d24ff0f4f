#pragma once

#include <vector>

namespace quorva::headless {
class HeadlessGame;
}

namespace gallery {

/// How much of the picture the rays of the power-ups are, at moments of a game.
class Rays {
public:
    /// @param width, height of the screen, in pixels
    Rays(quorva::headless::HeadlessGame& run_, int width_, int height_)
        : run(run_), width(width_), height(height_) {}

    void measure();      ///< draws the field twice, with and without rays
    void report() const; ///< to standard output

private:
    quorva::headless::HeadlessGame& run;
    const int width, height;
    std::vector<double> pixels, light; ///< of every moment: the rays' share of what is lit
    double brightest = 0.0;            ///< luminance of a pixel under rays, at most
};

} // namespace gallery
