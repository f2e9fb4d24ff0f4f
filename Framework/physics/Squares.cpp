// The rule that makes the game: four standing lines that enclose a rectangle around triangles.

#include "Framework/physics/PhysicsProcessor.h"

#include "Framework/Entity.h"
#include "Framework/Primitives/Box.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/Marvo.h"
#include "game/TrapLine.h"

#include <algorithm>

namespace quorva::physics {

namespace {

/// A corner this far outside a side still counts as inside, in world units, so that a triangle
/// pressed against its fence is caught.
constexpr double inside_tolerance = 0.1;
/// Corners of a triangle that must be inside for it to be caught.
constexpr int caught_corners = 2;

/// What a line covers along its own direction.
struct Span {
    double min, max;

    Span(double a, double b) : min(std::min(a, b)), max(std::max(a, b)) {}
    bool holds(double value) const { return value >= min && value <= max; }
};

Span alongX(const TrapLine& line) {
    return {line.start.x, line.end.x};
}
Span alongY(const TrapLine& line) {
    return {line.start.y, line.end.y};
}

/// Two horizontal lines that can be the top and the bottom of a rectangle.
struct Rails {
    TrapLine* top;
    TrapLine* bottom;

    Rails(TrapLine* a, TrapLine* b)
        : top(b->start.y > a->start.y ? b : a), bottom(top == a ? b : a) {}

    bool areValid() const {
        if (top->start.x == top->end.x || bottom->start.x == bottom->end.x) return false;
        const Span t = alongX(*top), b = alongX(*bottom);
        if (t.max <= b.min || b.max <= t.min) return false;
        return !math::fuzzyEqual(top->start.y, bottom->start.y);
    }

    /// Whether the vertical line reaches both rails and stands within both.
    bool areJoinedBy(const TrapLine& line) const {
        if (line.start.x != line.end.x || line.start.y == line.end.y) return false;
        const Span y = alongY(line);
        return y.max >= top->start.y && y.min <= bottom->start.y &&
               alongX(*bottom).holds(line.start.x) && alongX(*top).holds(line.start.x);
    }
};

} // namespace

void PhysicsProcessor::constructSquares() {
    squares.clear();
    std::vector<TrapLine*> horizontal, vertical;
    for (TrapLine* line : lines)
        if (line->solid) (line->horizontal ? horizontal : vertical).push_back(line);

    for (TrapLine* a : horizontal)
        for (TrapLine* b : horizontal)
            if (a != b) addSquaresBetween(a, b, vertical);
}

void PhysicsProcessor::addSquaresBetween(TrapLine* a, TrapLine* b,
                                         const std::vector<TrapLine*>& vertical) {
    // A line whose end has not been written yet fails here.
    if (a->start.y != a->end.y || b->start.y != b->end.y) return;
    const Rails rails(a, b);
    if (!rails.areValid()) return;
    for (TrapLine* c : vertical) {
        if (!rails.areJoinedBy(*c)) continue;
        for (TrapLine* d : vertical) {
            if (d == c || !rails.areJoinedBy(*d) || d->start.x == c->start.x) continue;
            const bool inOrder = c->start.x <= d->start.x;
            squares.push_back({{rails.top, inOrder ? c : d, inOrder ? d : c, rails.bottom}});
        }
    }
}

void PhysicsProcessor::testBoxes() {
    for (const Square& square : squares) {
        const unsigned short count = catchTriangles(square);
        if (count == 0) continue;
        payOut(square, count);
        return; // one rectangle at most in a sub-step
    }
}

unsigned short PhysicsProcessor::catchTriangles(const Square& square) {
    const double top = square[0]->start.y + inside_tolerance;
    const double left = square[1]->start.x - inside_tolerance;
    const double right = square[2]->start.x + inside_tolerance;
    const double bottom = square[3]->start.y - inside_tolerance;
    unsigned short count = 0;
    for (Entity* e : entities) {
        const PhysicsObject& body = *e->physics;
        if (body.type != shape_triangle) continue;
        const auto inside = std::count_if(
            body.vertices.begin(), body.vertices.end(), [&](const math::Point& vertex) {
                const double x = body.position.x + vertex.x, y = body.position.y + vertex.y;
                return x >= left && x <= right && y <= top && y >= bottom;
            });
        if (inside < caught_corners) continue;
        e->dead = true; // also if it is dead already: it then pays twice
        ++count;
    }
    return count;
}

void PhysicsProcessor::payOut(const Square& square, unsigned short count) {
    for (TrapLine* side : square)
        side->fakeKill(true);
    const primitives::Box box(square[0]->start.y, square[3]->start.y, square[1]->start.x,
                              square[2]->start.x);
    Marvo::Instance().killTriangles(box, count);
}

} // namespace quorva::physics
