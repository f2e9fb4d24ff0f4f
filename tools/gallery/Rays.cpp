#include "tools/gallery/Rays.h"

#include "Framework/Engine.h"
#include "Framework/Managers/ColourManager.h"
#include "game/PowerUpLines.h"
#include "headless/HeadlessGame.h"
#include "tools/gallery/Picture.h"

#include <algorithm>
#include <cmath>
#include <iostream>

using namespace quorva;

namespace gallery {

namespace {

constexpr double field_grey = 0.105882; ///< what the screen is cleared with
constexpr double glare = 0.05;          ///< added to luminances where WCAG 2 compares them

/// @param rgb three values from 0 to 1
template <class Value>
double luminance(const Value* rgb, double most) {
    const double weights[] = {0.2126, 0.7152, 0.0722};
    double sum = 0.0;
    for (int i = 0; i < 3; ++i) {
        const double v = rgb[i] / most;
        sum += weights[i] * (v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4));
    }
    return sum;
}

/// Of a colour as it stands on the field.
double luminanceOnField(const graphics::Colour& colour) {
    double seen[3];
    for (int i = 0; i < 3; ++i)
        seen[i] = field_grey + (colour.components[i] - field_grey) * colour.alpha();
    return luminance(seen, 1.0);
}

const double field_luminance = luminance(std::begin({field_grey, field_grey, field_grey}), 1.0);

Picture withoutRays(headless::HeadlessGame& run, int width, int height) {
    std::vector<std::pair<PowerUpLines*, float>> bursts;
    for (const auto& [id, entity] : Engine::Instance().entities)
        if (auto* const burst = dynamic_cast<PowerUpLines*>(entity)) {
            bursts.emplace_back(burst, burst->colour.alpha());
            burst->colour.setAlpha(0.0F); // what they hide stays hidden
        }
    run.frame();
    Picture picture = Picture::ofScreen(width, height);
    for (const auto& [burst, alpha] : bursts)
        burst->colour.setAlpha(alpha);
    return picture;
}

double share(double part, double whole) {
    return whole > 0.0 ? part / whole : 0.0;
}

void print(const char* what, std::vector<double> shares) {
    std::sort(shares.begin(), shares.end());
    std::cout << what << ": half of the time above " << shares[shares.size() / 2] << ", at most "
              << shares.back() << '\n';
}

} // namespace

void Rays::measure() {
    const Picture with = Picture::ofScreen(width, height);
    const Picture without = withoutRays(run, width, height);
    double lit = 0.0, rays = 0.0, allLight = 0.0, rayLight = 0.0;
    for (std::size_t i = 0; i < with.pixels.size(); i += 3) {
        const unsigned char* const now = &with.pixels[i];
        const unsigned char* const then = &without.pixels[i];
        const double bright = luminance(now, 255.0);
        const bool isRay = !std::equal(now, now + 3, then);
        if (!isRay && std::fabs(bright - field_luminance) < 1e-4) continue;
        ++lit;
        allLight += bright - field_luminance;
        if (!isRay) continue;
        ++rays;
        rayLight += bright - luminance(then, 255.0);
        if (std::fabs(luminance(then, 255.0) - field_luminance) < 1e-4)
            brightest = std::max(brightest, bright);
    }
    pixels.push_back(share(rays, lit));
    light.push_back(share(rayLight, allLight));
}

void Rays::report() const {
    print("Rays' share of the lit pixels", pixels);
    print("Rays' share of the light", light);
    std::cout << "A pixel under rays to the field: "
              << (brightest + glare) / (field_luminance + glare) << '\n';
    for (const char* role :
         {"Player Colour", "Badguy Colour", "Badguy Stuck Colour", "Line Colour", "Border Colour",
          "Clear Bomb Line Colour", "Immune Bomb Line Colour", "Square Line Effect", "Score Font"})
        std::cout << role << " to that pixel: "
                  << (luminanceOnField(ColourManager::Instance().getV(role)) + glare) /
                         (brightest + glare)
                  << '\n';
}

} // namespace gallery
