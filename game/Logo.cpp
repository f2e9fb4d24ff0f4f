#include "game/Logo.h"

#include "Framework/Graphics/Draw.h"
#include "Framework/math/Elementary.h"

using namespace quorva;
using namespace quorva::graphics;

namespace {

constexpr float line_width = 10.0F; // pixels, whatever the screen

using Corner = double[2];

// Middles of the straight strokes.
constexpr Corner k_back[] = {{-7.5, 3.0}, {-7.5, -3.0}};
constexpr Corner k_arms[] = {{-3.35, 3.0}, {-4.95, 0.0}, {-3.35, -3.0}};
constexpr Corner o_corners[] = {{-1.65, 2.87}, {0.15, 2.87},   {0.95, 2.07},   {0.95, -2.07},
                                {0.15, -2.87}, {-1.65, -2.87}, {-2.45, -2.07}, {-2.45, 2.07}};
// The V stands in the ring as on a coin. Two of its corners are on the ring, which covers their
// ends, and the third on the ring's axis.
constexpr Corner v_arms[] = {{2.42, 2.3}, {3.535, -2.075}, {4.65, 2.3}};

// Strokes end bluntly. Where two meet, short ones at angles between theirs round the corner off:
// they are as wide as the strokes on every screen.
constexpr int join_steps = 5;
constexpr double half_join = 0.04;

constexpr unsigned int circle_points = 40;
constexpr double circle_x = 4.5, circle_y = 0.5, circle_radius = 2.75;

/// Quads: the upper and the lower half of each arrow, from the outer to the inner one.
constexpr double arrows[][4][2] = {
    {{-7.6, 2.4}, {-7.6, 2.0}, {-5.7, 0.0}, {-5.3, 0.0}},
    {{-7.6, -2.0}, {-7.6, -2.4}, {-5.3, 0.0}, {-5.7, 0.0}},
    {{-7.6, 1.5}, {-7.6, 1.1}, {-6.6, 0.0}, {-6.2, 0.0}},
    {{-7.6, -1.1}, {-7.6, -1.5}, {-6.2, 0.0}, {-6.6, 0.0}},
    {{-7.6, 0.6}, {-7.6, 0.3}, {-7.5, 0.0}, {-7.1, 0.0}},
    {{-7.6, -0.3}, {-7.6, -0.6}, {-7.1, 0.0}, {-7.5, 0.0}},
};

void drawStroke(const Corner& from, const Corner& to) {
    draw::vertex2D(from[0], from[1]);
    draw::vertex2D(to[0], to[1]);
}

void drawJoin(const Corner& before, const Corner& corner, const Corner& after) {
    const double arrives = math::atan2(corner[1] - before[1], corner[0] - before[0]);
    const double turn = std::remainder(
        math::atan2(after[1] - corner[1], after[0] - corner[0]) - arrives, 2.0 * math::pi);
    for (int step = 1; step < join_steps; ++step) {
        const double angle = arrives + turn * step / join_steps;
        const double dx = half_join * math::cos(angle), dy = half_join * math::sin(angle);
        drawStroke({corner[0] - dx, corner[1] - dy}, {corner[0] + dx, corner[1] + dy});
    }
}

template <std::size_t count>
void drawLetter(const Corner (&corners)[count], bool closed = false) {
    for (std::size_t i = 0; i < count; ++i) {
        const Corner& before = corners[(i + count - 1) % count];
        const Corner& after = corners[(i + 1) % count];
        const bool ends = !closed && i + 1 == count;
        if (!ends) drawStroke(corners[i], after);
        if (closed || (i > 0 && !ends)) drawJoin(before, corners[i], after);
    }
}

void drawStrokes() {
    draw::begin(SHAPE_LINES);
    drawLetter(k_back);
    drawLetter(k_arms);
    drawLetter(o_corners, true);
    drawLetter(v_arms);
    draw::end();
}

void drawCircle() {
    draw::begin(SHAPE_LINE_LOOP);
    for (unsigned int i = 0; i < circle_points; ++i) {
        const double angle = i * 360.0 / circle_points * math::pi / 180.0;
        draw::vertex2D(circle_x + circle_radius * math::cos(angle),
                       circle_y + circle_radius * math::sin(angle));
    }
    draw::end();
}

void drawArrows() {
    draw::begin(SHAPE_QUADS);
    for (const auto& quad : arrows)
        for (const auto& corner : quad)
            draw::vertex2D(corner[0], corner[1]);
    draw::end();
}

} // namespace

void Logo::render() {
    begin();
    draw::setLineWidth(line_width);
    drawStrokes();
    drawCircle();
    drawArrows();
}
