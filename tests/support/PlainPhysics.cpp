#include "tests/support/PlainPhysics.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/Primitives/Box.h"
#include "Framework/math/Fuzzy.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/Bullet.h"
#include "game/Marvo.h"
#include "game/PlayerCharacter.h"
#include "game/TrapLine.h"
#include "headless/HeadlessGame.h"

#include <algorithm>
#include <array>

using namespace quorva;
using namespace quorva::physics;
using math::Point;

namespace {

std::array<Point, 3> cornersOf(const PhysicsObject& body) {
    std::array<Point, 3> corners = body.vertices;
    for (Point& c : corners)
        c = Point(body.position.x + c.x, body.position.y + c.y, 0.0);
    return corners;
}

bool holds(const PhysicsObject& triangle, const Point& p) {
    const auto side = [&p](const Point& from, const Point& to) {
        return (to.x - from.x) * (p.y - from.y) - (to.y - from.y) * (p.x - from.x);
    };
    const auto [a, b, c] = cornersOf(triangle);
    const double s1 = side(a, b), s2 = side(b, c), s3 = side(c, a);
    return (s1 < 0 && s2 < 0 && s3 < 0) || (s1 >= 0 && s2 >= 0 && s3 >= 0);
}

bool overlap(double distance, double reach) {
    const double d = std::fabs(distance);
    return d < reach && !math::fuzzyZero(d - reach);
}

bool meets(const TrapLine& line, const Point& b1, const Point& b2) {
    const Point &a1 = line.start, &a2 = line.end;
    const double m = math::fuzzyEqual(b1.x, b2.x) ? 0.0 : (b2.y - b1.y) / (b2.x - b1.x);
    const double c = b1.y - m * b1.x;
    if (a1.y != a2.y) {
        const double k = a1.x;
        if (m == 0.0) return math::fuzzyEqual(b1.y, k);
        if ((b1.x > k && b2.x > k) || (b1.x < k && b2.x < k)) return false;
        const double y = k * m + c;
        return y >= std::min(a1.y, a2.y) && y <= std::max(a1.y, a2.y);
    }
    const double k = a1.y;
    if ((b1.y > k && b2.y > k) || (b1.y < k && b2.y < k)) return false;
    const double x = m != 0.0 ? (k - c) / m : b1.x;
    return x >= std::min(a1.x, a2.x) && x <= std::max(a1.x, a2.x);
}

struct Range {
    double low, high;
    Range(double a, double b) : low(std::min(a, b)), high(std::max(a, b)) {}
};

bool areRails(const TrapLine* top, const TrapLine* bottom) {
    if (top->start.y != top->end.y || bottom->start.y != bottom->end.y) return false;
    if (top->start.x == top->end.x || bottom->start.x == bottom->end.x) return false;
    const Range t(top->start.x, top->end.x), b(bottom->start.x, bottom->end.x);
    if (t.high <= b.low || b.high <= t.low) return false;
    return !math::fuzzyEqual(top->start.y, bottom->start.y);
}

bool joins(const TrapLine* line, const TrapLine* top, const TrapLine* bottom) {
    if (line->start.x != line->end.x || line->start.y == line->end.y) return false;
    const Range own(line->start.y, line->end.y);
    const Range t(top->start.x, top->end.x), b(bottom->start.x, bottom->end.x);
    const double x = line->start.x;
    return own.high >= top->start.y && own.low <= bottom->start.y && x >= b.low && x >= t.low &&
           x <= b.high && x <= t.high;
}

using Participants = std::vector<Participant>;

/// What is tested against each other, of these shapes.
std::vector<std::pair<Entity*, Entity*>> pairs(const Participants& participants, ShapeType first,
                                               ShapeType second) {
    std::vector<std::pair<Entity*, Entity*>> found;
    for (auto a = participants.begin(); a != participants.end(); ++a)
        for (auto b = a; b != participants.end(); ++b)
            if (a->second == first && b->second == second)
                found.emplace_back(a->first, b->first);
            else if (b->second == first && a->second == second)
                found.emplace_back(b->first, a->first);
    return found;
}

bool isStopped(const PhysicsObject& body, const std::vector<TrapLine*>& lines) {
    if (body.type != shape_triangle) return false;
    const auto [a, b, c] = cornersOf(body);
    for (const TrapLine* line : lines)
        if (meets(*line, a, b) || meets(*line, a, c) || meets(*line, b, c)) return true;
    return false;
}

void move(const PhysicsProcessor& processor) {
    for (Entity* e : processor.entities) {
        PhysicsObject& body = *e->physics;
        body.previousPosition = body.position;
        if (body.isStatic) continue;
        const math::Vector d(body.velocity.x / processor.stepDivisor,
                             body.velocity.y / processor.stepDivisor,
                             body.velocity.z / processor.stepDivisor);
        if (body.velocity.length() < 0.000001) body.velocity = math::zero_vector;
        body.position += d;
        if (isStopped(body, processor.lines)) {
            body.hitLine = true;
            body.position = body.previousPosition;
        }
    }
}

void testBoxesAndBoxes(const Participants& participants) {
    for (const auto& [a, b] : pairs(participants, shape_box, shape_box)) {
        PhysicsObject &first = *a->physics, &second = *b->physics;
        const AABB &box1 = first.boxes.front(), &box2 = second.boxes.front();
        const math::Vector way = first.position - second.position;
        if (!overlap(way.y, box1.halfHeight + box2.halfHeight) ||
            !overlap(way.x, box1.halfWidth + box2.halfWidth) || a == b || a->dead || b->dead)
            continue;
        first.hitBox = second.hitBox = true;
        first.collidedWith = b;
        second.collidedWith = a;
    }
}

void testBoxesAndTriangles(const Participants& participants) {
    for (const auto& [a, b] : pairs(participants, shape_box, shape_triangle)) {
        PhysicsObject &box = *a->physics, &triangle = *b->physics;
        const double x = box.position.x, y = box.position.y;
        const double hw = box.boxes.front().halfWidth, hh = box.boxes.front().halfHeight;
        bool hit = false;
        for (const Point& p :
             {Point(x + hw, y - hh, 0), Point(x + hw, y + hh, 0), Point(x - hw, y - hh, 0)}) {
            if (!holds(triangle, p)) continue;
            box.collided = triangle.collided = hit = true;
        }
        for (const Point& c : cornersOf(triangle))
            if (c.x == x + hw && c.y >= y - hh && c.y <= y + hh) hit = true;
        if (hit && dynamic_cast<PlayerCharacter*>(a) != nullptr) Marvo::Instance().killPlayer();
    }
}

void testTrianglesAndPoints(const Participants& participants) {
    for (const auto& [triangle, point] : pairs(participants, shape_triangle, shape_point)) {
        if (!holds(*triangle->physics, point->physics->position)) continue;
        triangle->physics->collided = triangle->physics->hitLine = true;
        point->physics->collided = true;
        auto* const bullet = dynamic_cast<Bullet*>(point);
        if (bullet == nullptr) continue;
        if (!bullet->fakeKilled && !bullet->dead) publish(SoundBuletHit());
        bullet->fakeKill();
        bullet->hitTriangle = true;
    }
}

void retireLines(PhysicsProcessor& processor) {
    auto& lines = processor.lines;
    for (TrapLine* line : lines) {
        line->updateBullet();
        if (!line->fakeDone) continue;
        for (Entity* e : processor.entities) {
            auto& known = e->physics->lines;
            known.erase(std::remove(known.begin(), known.end(), TriLine{line, {}}), known.end());
        }
        line->dead = true;
    }
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const TrapLine* line) { return line->fakeDone; }),
                lines.end());
}

std::vector<PhysicsProcessor::Square> squaresOf(const std::vector<TrapLine*>& lines) {
    std::vector<PhysicsProcessor::Square> squares;
    std::vector<TrapLine*> horizontal, vertical;
    for (TrapLine* line : lines)
        if (line->solid) (line->horizontal ? horizontal : vertical).push_back(line);
    for (TrapLine* a : horizontal)
        for (TrapLine* b : horizontal) {
            TrapLine* const top = b->start.y > a->start.y ? b : a;
            TrapLine* const bottom = top == a ? b : a;
            if (a == b || !areRails(top, bottom)) continue;
            for (TrapLine* c : vertical)
                for (TrapLine* d : vertical) {
                    if (d == c || d->start.x == c->start.x) continue;
                    if (!joins(c, top, bottom) || !joins(d, top, bottom)) continue;
                    const bool inOrder = c->start.x <= d->start.x;
                    squares.push_back({{top, inOrder ? c : d, inOrder ? d : c, bottom}});
                }
        }
    return squares;
}

/// @return whether the rectangle has paid out
bool paysOut(const PhysicsProcessor::Square& square, const std::vector<Entity*>& entities) {
    const primitives::Box box(square[0]->start.y, square[3]->start.y, square[1]->start.x,
                              square[2]->start.x);
    const auto isInside = [&](const Point& c) {
        return c.x >= box.left - 0.1 && c.x <= box.right + 0.1 && c.y <= box.top + 0.1 &&
               c.y >= box.bottom - 0.1;
    };
    unsigned short count = 0;
    for (Entity* e : entities) {
        const auto corners = cornersOf(*e->physics);
        if (e->physics->type != shape_triangle ||
            std::count_if(corners.begin(), corners.end(), isInside) < 2)
            continue;
        e->dead = true;
        ++count;
    }
    if (count == 0) return false;
    for (TrapLine* side : square) {
        side->fakeDone = true;
        if (side->bullet != nullptr) side->bullet->fakeKill();
    }
    Marvo::Instance().killTriangles(box, count);
    return true;
}

} // namespace

void PlainPhysics::tick(headless::HeadlessGame& run) {
    auto& components = Engine::Instance().components;
    Component *const own = this, *const game = &processor;
    std::replace(components.begin(), components.end(), game, own);
    run.process();
    std::replace(components.begin(), components.end(), own, game);
}

void PlainPhysics::process() {
    Participants participants;
    for (Entity* e : processor.entities) {
        const PhysicsObject& body = *e->physics;
        if (!body.collidable || !body.isActive) continue;
        if (body.type != shape_box || !body.boxes.empty()) participants.emplace_back(e, body.type);
    }
    for (unsigned int step = 0; step < processor.stepCount; ++step) {
        for (Entity* e : processor.entities) {
            e->physics->collided = false;
            e->physics->stepResult = 0;
        }
        move(processor);
        testBoxesAndBoxes(participants);
        testBoxesAndTriangles(participants);
        testTrianglesAndPoints(participants);
        retireLines(processor);
        squares = squaresOf(processor.lines);
        for (const auto& square : squares)
            if (paysOut(square, processor.entities)) break;
    }
}
