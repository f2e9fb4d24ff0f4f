#include "game/Logo.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva;
using namespace quorva::graphics;

namespace {

constexpr float line_width = 10.0F; // pixels, whatever the screen

/// Ends of the straight strokes, in pairs. Strokes end bluntly, so those of a joint run on a
/// little, which closes its notch at every size of screen.
constexpr double strokes[][2] = {
    // K: its back, and the two arms from the tip of the arrows
    {-7.5, 3.0},
    {-7.5, -3.0},
    {-3.05, 3.0},
    {-5.05, -0.08},
    {-3.05, -3.0},
    {-5.05, 0.08},
    // O: with cut corners, like the letters of the fonts
    {-1.73, 3.0},
    {-0.52, 3.0},
    {-0.6, 3.0},
    {0.2, 2.2},
    {0.2, 2.28},
    {0.2, -2.28},
    {0.2, -2.2},
    {-0.6, -3.0},
    {-0.52, -3.0},
    {-1.73, -3.0},
    {-1.65, -3.0},
    {-2.45, -2.2},
    {-2.45, -2.28},
    {-2.45, 2.28},
    {-2.45, 2.2},
    {-1.65, 3.0},
    // V: its left arm touches the ring from outside and the right one ends on it, so that the
    // ring hangs in the letter instead of crossing it out
    {0.82, 3.0},
    {2.79, -3.0},
    {2.67, -3.0},
    {4.65, 3.0},
};

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

void drawStrokes() {
    draw::begin(SHAPE_LINES);
    for (const auto& end : strokes)
        draw::vertex2D(end[0], end[1]);
    draw::end();
}

void drawCircle() {
    draw::begin(SHAPE_LINE_LOOP);
    for (unsigned int i = 0; i < circle_points; ++i) {
        const double angle = i * 360.0 / circle_points * math::pi / 180.0;
        draw::vertex2D(circle_x + circle_radius * std::cos(angle),
                       circle_y + circle_radius * std::sin(angle));
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
