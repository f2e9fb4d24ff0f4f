#include "tests/support/PlainPhysics.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/Messages.h"
#include "Framework/Primitives/Box.h"
#include "Framework/math/Fuzzy.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/Bullet.h"
#include "game/GTriangle.h"
#include "game/Marvo.h"
#include "game/PlayerCharacter.h"
#include "game/TrapLine.h"
#include "game/Triangle.h"
#include "headless/HeadlessGame.h"

#include <algorithm>

using namespace quorva;
using namespace quorva::physics;
using math::Point;

namespace {

Point cornerOf(const PhysicsObject& body, std::size_t i) {
    return {body.position.x + body.vertices[i].x, body.position.y + body.vertices[i].y, 0.0};
}

bool holds(const PhysicsObject& triangle, const Point& p) {
    const Point a = cornerOf(triangle, 0), b = cornerOf(triangle, 1), c = cornerOf(triangle, 2);
    const double s1 = (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
    const double s2 = (c.x - b.x) * (p.y - b.y) - (c.y - b.y) * (p.x - b.x);
    const double s3 = (a.x - c.x) * (p.y - c.y) - (a.y - c.y) * (p.x - c.x);
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

void touchPlayer(const Entity* a) {
    if (dynamic_cast<const PlayerCharacter*>(a) != nullptr) Marvo::Instance().killPlayer();
}

struct Range {
    double low, high;
    Range(double a, double b) : low(std::min(a, b)), high(std::max(a, b)) {}
};

bool joins(const TrapLine* line, const TrapLine* top, const TrapLine* bottom) {
    if (line->start.x != line->end.x || line->start.y == line->end.y) return false;
    const Range own(line->start.y, line->end.y);
    const Range t(top->start.x, top->end.x), b(bottom->start.x, bottom->end.x);
    const double x = line->start.x;
    return own.high >= top->start.y && own.low <= bottom->start.y && x >= b.low && x >= t.low &&
           x <= b.high && x <= t.high;
}

void swapComponents(const Component* from, Component* to) {
    for (Component*& component : Engine::Instance().components)
        if (component == from) component = to;
}

class PlainLine : public TrapLine {
public:
    using TrapLine::receiveMessage;
    using TrapLine::TrapLine;

    void process() override {
        if (fading) {
            fadeStep += 0.01F;
            fadeScale -= fadeStep;
            line->setScale(fadeScale);
            if (fadeScale > 0) return;
            fakeDone = true;
            if (bullet != nullptr) bullet->fakeKill();
            return;
        }
        if (!solid && solidDelay++ > 5) solid = true;
        if (bullet != nullptr) return;
        if (--lifeTicks == 0) fakeDone = true;
        if (lifeTicks == 0 || lifeTicks > 74 || --blinkTicks > 4) return;
        blinkTicks = 8;
        graphics->setEnabled(!graphics->enabled);
    }

    void update() override {
        if (bullet == nullptr) return;
        end = line->end = bullet->physics->position;
        if (!bullet->fakeKilled) return;
        finished = solid = bullet->dead = true;
        bullet = nullptr;
    }

    void receiveMessage(const PlayerDead*) override {
        fading = true;
        fadeScale = 1.0F;
        fadeStep = 0.01F;
    }
};

} // namespace

PlainPhysics::PlainPhysics(PhysicsProcessor& processor_) : processor(processor_) {
    MessageHandler<PhysicsLineMessage>::Instance().unsubscribe(&processor);
    subscribe<PhysicsLineMessage>(this);
}

PlainPhysics::~PlainPhysics() {
    subscribe<PhysicsLineMessage>(&processor);
}

void PlainPhysics::receiveMessage(const PhysicsLineMessage* m) {
    if (processor.lines.size() > 15) return publish(SoundBad());
    processor.lines.push_back(Engine::Instance().createEntity<PlainLine>(
        "Line", m->position, m->bullet, Marvo::Instance().getPlayerLineLength(), m->horizontal));
    for (Entity* e : processor.entities)
        e->physics->lines.push_back({processor.lines.back(), {}});
}

void PlainPhysics::tick(headless::HeadlessGame& run) {
    swapComponents(&processor, this);
    run.process();
    swapComponents(this, &processor);
}

/// A triangle is as it is drawn.
void PlainPhysics::takeOutlines() const {
    for (Entity* e : processor.entities)
        if (const auto* const triangle = dynamic_cast<Triangle*>(e))
            e->physics->vertices = triangle->graphic->points;
}

void PlainPhysics::process() {
    const auto& components = Engine::Instance().components;
    if (std::count(components.begin(), components.end(), this) != 0) takeOutlines();
    participants.clear();
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
        move();
        testBoxesAndBoxes();
        testBoxesAndTriangles();
        testTrianglesAndPoints();
        retireLines();
        constructSquares();
        testBoxes();
    }
}

PlainPhysics::Pairs PlainPhysics::pairs(ShapeType first, ShapeType second) const {
    Pairs found;
    for (auto a = participants.begin(); a != participants.end(); ++a)
        for (auto b = a; b != participants.end(); ++b)
            if (a->second == first && b->second == second)
                found.emplace_back(a->first, b->first);
            else if (b->second == first && a->second == second)
                found.emplace_back(b->first, a->first);
    return found;
}

bool PlainPhysics::isStopped(const PhysicsObject& body) const {
    if (body.type != shape_triangle) return false;
    const Point a = cornerOf(body, 0), b = cornerOf(body, 1), c = cornerOf(body, 2);
    return std::any_of(processor.lines.begin(), processor.lines.end(), [&](const TrapLine* line) {
        return meets(*line, a, b) || meets(*line, a, c) || meets(*line, b, c);
    });
}

void PlainPhysics::move() const {
    for (Entity* e : processor.entities) {
        PhysicsObject& body = *e->physics;
        body.previousPosition = body.position;
        if (body.isStatic) continue;
        const math::Vector d(body.velocity.x / processor.stepDivisor,
                             body.velocity.y / processor.stepDivisor,
                             body.velocity.z / processor.stepDivisor);
        if (body.velocity.length() < 0.000001) body.velocity = math::zero_vector;
        body.position += d;
        if (isStopped(body)) {
            body.hitLine = true;
            body.position = body.previousPosition;
        }
    }
}

void PlainPhysics::testBoxesAndBoxes() const {
    for (const auto& [a, b] : pairs(shape_box, shape_box)) {
        PhysicsObject &first = *a->physics, &second = *b->physics;
        const AABB &box1 = first.boxes.front(), &box2 = second.boxes.front();
        const bool touch =
            overlap(first.position.y - second.position.y, box1.halfHeight + box2.halfHeight) &&
            overlap(first.position.x - second.position.x, box1.halfWidth + box2.halfWidth);
        if (!touch || a == b || a->dead || b->dead) continue;
        first.hitBox = second.hitBox = true;
        first.collidedWith = b;
        second.collidedWith = a;
    }
}

void PlainPhysics::testBoxesAndTriangles() const {
    for (const auto& [a, b] : pairs(shape_box, shape_triangle)) {
        PhysicsObject &box = *a->physics, &triangle = *b->physics;
        const double x = box.position.x, y = box.position.y;
        const double hw = box.boxes.front().halfWidth, hh = box.boxes.front().halfHeight;
        const Point points[] = {
            {x + hw, y - hh, 0}, {x + hw, y + hh, 0}, {x - hw, y - hh, 0}, {x + hw, y - hh, 0}};
        bool hit = false;
        for (const Point& point : points) {
            if (!holds(triangle, point)) continue;
            box.collided = triangle.collided = true;
            hit = true;
        }
        for (std::size_t i = 0; i < 3 && !hit; ++i) {
            const Point c = cornerOf(triangle, i);
            hit = c.x >= x + hw && c.x <= x + hw && c.y >= y - hh && c.y <= y + hh;
        }
        if (hit) touchPlayer(a);
    }
}

void PlainPhysics::testTrianglesAndPoints() const {
    for (const auto& [triangle, point] : pairs(shape_triangle, shape_point)) {
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

void PlainPhysics::retireLines() const {
    auto& lines = processor.lines;
    for (TrapLine* line : lines) {
        if (line->bullet != nullptr && line->bullet->fakeKilled) {
            line->line->end = line->bullet->physics->position;
            line->bullet = nullptr;
        }
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

void PlainPhysics::constructSquares() {
    squares.clear();
    std::vector<TrapLine*> horizontal, vertical;
    for (TrapLine* line : processor.lines)
        if (line->solid) (line->horizontal ? horizontal : vertical).push_back(line);
    for (TrapLine* a : horizontal) {
        for (TrapLine* b : horizontal) {
            if (a == b || a->start.y != a->end.y || b->start.y != b->end.y) continue;
            TrapLine* const top = b->start.y > a->start.y ? b : a;
            TrapLine* const bottom = top == a ? b : a;
            if (top->start.x == top->end.x || bottom->start.x == bottom->end.x) continue;
            const Range t(top->start.x, top->end.x), u(bottom->start.x, bottom->end.x);
            if (t.high <= u.low || u.high <= t.low) continue;
            if (math::fuzzyEqual(top->start.y, bottom->start.y)) continue;
            for (TrapLine* c : vertical) {
                if (!joins(c, top, bottom)) continue;
                for (TrapLine* d : vertical) {
                    if (d == c || !joins(d, top, bottom) || d->start.x == c->start.x) continue;
                    if (c->start.x <= d->start.x)
                        squares.push_back({{top, c, d, bottom}});
                    else
                        squares.push_back({{top, d, c, bottom}});
                }
            }
        }
    }
}

void PlainPhysics::testBoxes() const {
    for (const auto& square : squares) {
        const double left = square[1]->start.x, right = square[2]->start.x;
        const double top = square[0]->start.y, bottom = square[3]->start.y;
        unsigned short count = 0;
        for (Entity* e : processor.entities) {
            if (e->physics->type != shape_triangle) continue;
            int inside = 0;
            for (std::size_t i = 0; i < 3; ++i) {
                const Point c = cornerOf(*e->physics, i);
                if (c.x >= left - 0.1 && c.x <= right + 0.1 && c.y <= top + 0.1 &&
                    c.y >= bottom - 0.1)
                    ++inside;
            }
            if (inside < 2) continue;
            e->dead = true;
            ++count;
        }
        if (count == 0) continue;
        for (TrapLine* side : square) {
            side->fakeDone = true;
            if (side->bullet != nullptr) side->bullet->fakeKill();
        }
        Marvo::Instance().killTriangles(primitives::Box(top, bottom, left, right), count);
        return;
    }
}
