#include "game/SquareIndicator.h"

#include "Framework/Managers/ColourManager.h"

using namespace quorva;

namespace {

constexpr std::size_t line_count = 5;
constexpr float fade_step = 0.025F; // in single precision 41 steps from alpha 1, not 40

} // namespace

bool SquareIndicator::seeded = false;

SquareIndicator::SquareIndicator(const primitives::Box& box)
    : ConvergingLines(seeded, line_count, ColourManager::Instance().getV("Square Line Effect"),
                      fade_step) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a copy is rounded
    const primitives::Box rounded(box);
    const double half = (rounded.right - rounded.left) * 0.5;
    centre = math::Point(rounded.left + half, rounded.bottom + (rounded.top - rounded.bottom) * 0.5,
                         0.0);
    for (std::size_t i = 0; i < line_count; ++i) {
        positions[i] = aim(i);
        positions[i].x += (math::randomFraction(Rand) - 0.5) * half;
        positions[i].y += (math::randomFraction(Rand) - 0.5) * half;
        addLine(i, half);
    }
}
