#include "game/Logo.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva;
using namespace quorva::graphics;

namespace {

constexpr float line_width = 10.0F; // pixels, whatever the screen

/// Ends of the straight strokes, in pairs.
constexpr double strokes[][2] = {
    // K: its back, and the two arms
    {-7.5, 3.0},
    {-7.5, -3.0},
    {-4.9, 0.0},
    {-2.6, 3.0},
    {-4.9, 0.0},
    {-2.6, -3.0},
    // O: a tall lozenge with cut corners
    {-1.4, 3.0},
    {0.6, 3.0},
    {0.6, 3.0},
    {1.4, 2.0},
    {1.4, 2.0},
    {1.4, -2.0},
    {1.4, -2.0},
    {0.6, -3.0},
    {0.6, -3.0},
    {-1.4, -3.0},
    {-1.4, -3.0},
    {-2.2, -2.0},
    {-2.2, -2.0},
    {-2.2, 2.0},
    {-2.2, 2.0},
    {-1.4, 3.0},
    // V: before the ring
    {1.35, 3.0},
    {3.0, -3.0},
    {3.0, -3.0},
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
