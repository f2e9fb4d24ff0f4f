#include "game/BombIndicator.h"

using namespace quorva;

namespace {

constexpr std::size_t line_count = 20;
constexpr float fade_step = 0.05F;
constexpr double half_length = 2.5; // world units

} // namespace

bool BombIndicator::seeded = false;

BombIndicator::BombIndicator(const math::Point& position, const graphics::Colour* colour_)
    : ConvergingLines(seeded, line_count, *colour_, fade_step) {
    for (std::size_t i = 0; i < line_count; ++i) {
        positions[i] = aim(i) + math::Vector(position); // `centre` stays at the origin
        addLine(i, half_length);
    }
}
