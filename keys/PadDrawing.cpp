#include "keys/PadDrawing.h"

#include "Framework/Graphics/Draw.h"
#include "Framework/math/Elementary.h"

namespace quorva::keys {

namespace {

using namespace quorva::graphics;

struct Position {
    double x, y; ///< world units
};

/// Half of the outline, from the upper edge's middle to the lower edge's: curves that bend towards
/// the second of three points each. The other half mirrors it.
constexpr Position outline[] = {{0.0, 5.1},  {3.2, 5.1},    {6.4, 4.5},   {8.6, 4.2},
                                {9.3, 1.9},  {9.85, -0.65}, {10.4, -3.2}, {10.6, -5.0},
                                {9.1, -4.8}, {8.0, -4.6},   {6.7, -2.7},  {6.3, -2.1},
                                {5.6, -2.1}, {2.8, -2.1},   {0.0, -2.1}};
constexpr int curve_steps = 12, circle_points = 28;

constexpr Position left_stick = {-6.1, 2.1}, right_stick = {3.0, -0.3}, cross = {-3.05, -0.4};
constexpr double stick_radius = 1.35, knob_radius = 0.7, right_stick_radius = 1.05;
constexpr double cross_length = 1.15, cross_half_width = 0.38;
constexpr double button_radius = 0.78, oval_half_width = 0.4, oval_radius = 0.32;
constexpr double arrow_tip = 1.15, arrow_length = 0.25, arrow_half_width = 0.3;

/// Where the action's button is, which way an arrow on it points, and whether it is the long button
/// of a pair in the middle.
const struct {
    const char* action;
    Position position, arrow;
    bool isOval;
} buttons[] = {
    {"Fire Up", {6.1, 3.6}, {0.0, 1.0}, false},     {"Fire Down", {6.1, 0.6}, {0.0, -1.0}, false},
    {"Fire Left", {4.6, 2.1}, {-1.0, 0.0}, false},  {"Fire Right", {7.6, 2.1}, {1.0, 0.0}, false},
    {"Game Pause", {1.75, 2.2}, {0.0, 0.0}, true},  {"Menu Select", {6.1, 0.6}, {0.0, 0.0}, false},
    {"Menu Escape", {-1.3, 2.2}, {0.0, 0.0}, true},
};

void bend(const Position& from, const Position& towards, const Position& to, double side) {
    for (int i = 0; i < curve_steps; ++i) {
        const double t = static_cast<double>(i) / curve_steps, s = 1.0 - t;
        draw::vertex2D(side * (s * s * from.x + 2.0 * s * t * towards.x + t * t * to.x),
                       s * s * from.y + 2.0 * s * t * towards.y + t * t * to.y);
    }
}

void drawOutline() {
    for (const double side : {-1.0, 1.0}) {
        draw::begin(SHAPE_LINE_STRIP);
        for (std::size_t i = 0; i + 2 < std::size(outline); i += 2)
            bend(outline[i], outline[i + 1], outline[i + 2], side);
        draw::vertex2D(side * std::rbegin(outline)->x, std::rbegin(outline)->y);
        draw::end();
    }
}

/// A circle that is pulled apart sideways.
void drawRound(ShapeEnum shape, const Position& position, double radius, double halfWidth = 0.0) {
    draw::begin(shape);
    for (int i = 0; i < circle_points; ++i) {
        const double angle = (i + 0.5) * 2.0 * math::pi / circle_points;
        const double shift = math::cos(angle) > 0.0 ? halfWidth : -halfWidth;
        draw::vertex2D(position.x + shift + radius * math::cos(angle),
                       position.y + radius * math::sin(angle));
    }
    draw::end();
}

void drawCross() {
    const double a = cross_half_width, b = cross_length;
    const Position corners[] = {{a, a},   {b, a},   {b, -a}, {a, -a}, {a, -b}, {-a, -b},
                                {-a, -a}, {-b, -a}, {-b, a}, {-a, a}, {-a, b}, {a, b}};
    draw::begin(SHAPE_LINE_LOOP);
    for (const Position& corner : corners)
        draw::vertex2D(cross.x + corner.x, cross.y + corner.y);
    draw::end();
}

/// The point of an arrow, `tip` away from the middle.
void drawArrow(const Position& middle, const Position& way, double tip) {
    const Position end = {middle.x + way.x * tip, middle.y + way.y * tip};
    const Position back = {end.x - way.x * arrow_length, end.y - way.y * arrow_length};
    draw::begin(SHAPE_LINE_STRIP);
    draw::vertex2D(back.x - way.y * arrow_half_width, back.y - way.x * arrow_half_width);
    draw::vertex2D(end.x, end.y);
    draw::vertex2D(back.x + way.y * arrow_half_width, back.y + way.x * arrow_half_width);
    draw::end();
}

void drawLeftStick() {
    drawRound(SHAPE_LINE_LOOP, left_stick, stick_radius);
    drawRound(SHAPE_LINE_LOOP, left_stick, knob_radius);
    for (const Position& way : {Position{0.0, 1.0}, {0.0, -1.0}, {1.0, 0.0}, {-1.0, 0.0}})
        drawArrow(left_stick, way, arrow_tip);
}

} // namespace

Part PadDrawing::partOf(const char* action) const {
    const input::InputKey* const asked = questions->asked();
    return asked != nullptr && asked->name == action ? Part::asked : Part::bound;
}

void PadDrawing::drawParts(Part kind) const {
    if (kind == Part::plain) {
        drawOutline();
        drawCross();
        drawRound(SHAPE_LINE_LOOP, right_stick, right_stick_radius);
        drawLeftStick();
    }
    for (const auto& button : buttons) {
        if (partOf(button.action) != kind) continue;
        if (button.isOval)
            drawRound(SHAPE_LINE_LOOP, button.position, oval_radius, oval_half_width);
        else
            drawRound(SHAPE_LINE_LOOP, button.position, button_radius);
        const bool hasArrow = button.arrow.x != 0.0 || button.arrow.y != 0.0;
        if (hasArrow) drawArrow(button.position, button.arrow, arrow_length / 2.0);
    }
}

void PadDrawing::fillAsked() const {
    for (const auto& button : buttons) {
        if (partOf(button.action) != Part::asked) continue;
        if (button.isOval)
            drawRound(SHAPE_POLYGON, button.position, oval_radius, oval_half_width);
        else
            drawRound(SHAPE_POLYGON, button.position, button_radius);
    }
}

} // namespace quorva::keys
