// The rule at the heart of the game: four standing lines that enclose a rectangle catch the
// triangles in it.

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

/// The extent of a line along its own direction.
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

/// Two horizontal lines, candidates for the top and the bottom of a rectangle.
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

/// Of the rectangle, widened by the tolerance.
Bounds boundsOf(const PhysicsProcessor::Square& square) {
    return {square[1]->start.x - inside_tolerance, square[2]->start.x + inside_tolerance,
            square[3]->start.y - inside_tolerance, square[0]->start.y + inside_tolerance};
}

int cornersInside(const Bounds& bounds, const PhysicsObject& body) {
    int count = 0;
    for (const math::Point& vertex : body.vertices)
        count += bounds.hold(body.position.x + vertex.x, body.position.y + vertex.y) ? 1 : 0;
    return count;
}

} // namespace

bool PhysicsProcessor::linesDifferFromLastSearch() {
    formerLines.swap(searchedLines);
    searchedLines.clear();
    for (const TrapLine* line : lines)
        searchedLines.push_back({line, line->start.x, line->start.y, line->end.x, line->end.y,
                                 line->horizontal, line->solid});
    const auto same = [](const SearchedLine& a, const SearchedLine& b) {
        return a.line == b.line && a.startX == b.startX && a.startY == b.startY &&
               a.endX == b.endX && a.endY == b.endY && a.horizontal == b.horizontal &&
               a.solid == b.solid; // not-a-number differs from itself: searched each time
    };
    return !std::equal(searchedLines.begin(), searchedLines.end(), formerLines.begin(),
                       formerLines.end(), same);
}

void PhysicsProcessor::constructSquares() {
    if (!linesDifferFromLastSearch()) return;
    squares.clear();
    horizontalLines.clear();
    verticalLines.clear();
    for (TrapLine* line : lines)
        if (line->solid) (line->horizontal ? horizontalLines : verticalLines).push_back(line);

    for (TrapLine* a : horizontalLines)
        for (TrapLine* b : horizontalLines)
            if (a != b) addSquaresBetween(a, b);
    findOuterBounds();
}

void PhysicsProcessor::addSquaresBetween(TrapLine* a, TrapLine* b) {
    // Fails for a newborn line too, whose end is zero until its first update.
    if (a->start.y != a->end.y || b->start.y != b->end.y) return;
    const Rails rails(a, b);
    if (!rails.areValid()) return;
    for (TrapLine* c : verticalLines) {
        if (!rails.areJoinedBy(*c)) continue;
        for (TrapLine* d : verticalLines) {
            if (d == c || !rails.areJoinedBy(*d) || d->start.x == c->start.x) continue;
            const bool inOrder = c->start.x <= d->start.x;
            squares.push_back({{rails.top, inOrder ? c : d, inOrder ? d : c, rails.bottom}});
        }
    }
}

/// Whatever is inside a rectangle is inside any that encloses it, so the outermost alone decide
/// whether anything is caught. They stay few, while the number of rectangles grows with the
/// fourth power of the number of lines.
void PhysicsProcessor::findOuterBounds() {
    ++epochs.rectangles;
    outerBounds.clear();
    for (const Square& square : squares) {
        const Bounds bounds = boundsOf(square);
        const auto covers = [&bounds](const Bounds& outer) { return outer.cover(bounds); };
        if (std::any_of(outerBounds.begin(), outerBounds.end(), covers)) continue;
        const auto covered = [&bounds](const Bounds& inner) { return bounds.cover(inner); };
        outerBounds.erase(std::remove_if(outerBounds.begin(), outerBounds.end(), covered),
                          outerBounds.end());
        outerBounds.push_back(bounds);
    }
}

bool PhysicsProcessor::holdsAnyTriangle() const {
    return std::any_of(entities.begin(), entities.end(), [this](const Entity* e) {
        PhysicsObject& body = *e->physics;
        if (body.type != shape_triangle) return false;
        if (inTick && !body.nearby.isNearAny(outerBounds, body, epochs)) return false;
        return std::any_of(outerBounds.begin(), outerBounds.end(), [&body](const Bounds& b) {
            return cornersInside(b, body) >= caught_corners;
        });
    });
}

void PhysicsProcessor::testBoxes() {
    if (!holdsAnyTriangle()) return;
    for (const Square& square : squares) {
        const unsigned short count = catchTriangles(square);
        if (count == 0) continue;
        payOut(square, count);
        return; // one rectangle at most in a sub-step
    }
}

bool PhysicsProcessor::holds(const Square& square, const PhysicsObject& triangle) {
    return cornersInside(boundsOf(square), triangle) >= caught_corners;
}

unsigned short PhysicsProcessor::catchTriangles(const Square& square) {
    unsigned short count = 0;
    for (Entity* e : entities) {
        if (e->physics->type != shape_triangle || !holds(square, *e->physics)) continue;
        e->dead = true; // even if it was dead already: it then pays twice
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
