#include "Framework/physics/PhysicsProcessor.h"

#include "Framework/Config.h"
#include "Framework/Engine.h"
#include "Framework/Timer.h"
#include "Framework/physics/Geometry.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/Bullet.h"
#include "game/Marvo.h"
#include "game/PlayerCharacter.h"
#include "game/TrapLine.h"

#include <algorithm>

namespace quorva::physics {

using math::Point;

namespace {

/// Below this speed, in world units per tick, a body counts as standing.
constexpr double standing_speed = 0.000001;

bool isStanding(const math::Vector& velocity) {
    // Saves the square root for all but the slowest bodies.
    return velocity.dot(velocity) < 10.0 * standing_speed * standing_speed &&
           velocity.length() < standing_speed;
}

/// Whether two extents meet by a positive length; touching ones, to within the tolerance, don't.
/// @param distance between the centres, either sign
/// @param reach    sum of the half extents
bool overlaps(double distance, double reach) {
    const double gap = std::fabs(distance) - reach;
    return gap < 0.0 && !math::fuzzyZero(gap);
}

bool isPlayer(const Entity* e) {
    return dynamic_cast<const PlayerCharacter*>(e) != nullptr;
}

/// How many of the box's corners are inside the triangle; if any is, both get `collided`.
unsigned int countBoxCornersInside(PhysicsObject& box, PhysicsObject& triangle, const Corners& c) {
    const double x = box.position.x, y = box.position.y;
    const double hw = box.boxes.front().halfWidth, hh = box.boxes.front().halfHeight;
    // Deliberate: bottom right stands twice and top left is missing, so a triangle may graze
    // that corner unpunished. A "repaired" list would break every recorded game.
    const Point corners[] = {
        {x + hw, y - hh, 0.0}, {x + hw, y + hh, 0.0}, {x - hw, y - hh, 0.0}, {x + hw, y - hh, 0.0}};
    unsigned int hits = 0;
    for (const Point& corner : corners) {
        if (!pointInTriangle(corner, c[0], c[1], c[2])) continue;
        box.collided = true;
        triangle.collided = true;
        ++hits;
    }
    return hits;
}

/// Deliberate: the x range is the single value of the box's right edge.
bool hasCornerOnRightEdge(const PhysicsObject& box, const Corners& corners) {
    const double edge = box.position.x + box.boxes.front().halfWidth;
    const double y = box.position.y, hh = box.boxes.front().halfHeight;
    return std::any_of(corners.begin(), corners.end(), [&](const Point& corner) {
        return corner.x >= edge && corner.x <= edge && corner.y >= y - hh && corner.y <= y + hh;
    });
}

} // namespace

PhysicsProcessor::PhysicsProcessor(const math::Vector& gravity_) : gravity(gravity_) {
    subscribeToAll();

    const double rate = Timer::Instance().getProcessRate();
    gravity = math::Vector(gravity.x / rate, gravity.y / rate, gravity.z / rate);
    const std::uint16_t accuracy = config::Config::Instance().getCollisionAccuracy();
    stepCount = std::clamp<std::uint16_t>(accuracy, 1, max_sub_steps);
    stepDivisor = stepCount;
}

void PhysicsProcessor::addEntity(Entity* e) {
    if (e->physics == nullptr) return;
    entities.push_back(e);
    if (e->physics->type != shape_triangle) return;
    for (TrapLine* line : lines)
        e->physics->lines.push_back({line, {}}); // the lines that stood before it came
}

void PhysicsProcessor::removeEntity(Entity* e) {
    entities.erase(std::remove(entities.begin(), entities.end(), e), entities.end());
    // The engine is about to delete it: no pointer to it may stay.
    for (Entity* other : entities)
        if (other->physics->collidedWith == e) other->physics->collidedWith = nullptr;
    const auto gone = std::find(lines.begin(), lines.end(), e);
    if (gone != lines.end()) {
        forgetLine(*gone);
        lines.erase(gone);
    }
    for (TrapLine* line : lines)
        if (line->bullet == e) line->bullet = nullptr;
}

void PhysicsProcessor::forgetLine(TrapLine* line) {
    linesChanged();
    for (Entity* e : entities) {
        auto& known = e->physics->lines;
        known.erase(std::remove(known.begin(), known.end(), TriLine{line, {}}), known.end());
    }
}

void PhysicsProcessor::removeAllEntities() {
    entities.clear();
    participants.clear();
    forgetPairs();
}

void PhysicsProcessor::forgetPairs() {
    for (PairList* pairs : {&aabbAabbTests, &aabbPointTests, &aabbTriangleTests,
                            &triangleTriangleTests, &trianglePointTests, &pointPointTests})
        pairs->forget();
}

void PhysicsProcessor::update() {
    if (!gameOverPending) return;
    gameOverPending = false;
    publish(messages::EndLevel());
}

void PhysicsProcessor::process() {
    makeCollisionTests(); // the pairs stay fixed for the whole tick
    inTick = true;
    linesChanged(); // they have grown since the last tick
    for (std::uint16_t step = 0; step < stepCount; ++step) {
        preSimulate();
        doMove();
        testCollisions(false);
        postSimulate();
    }
    inTick = false;
}

void PhysicsProcessor::receiveMessage(const PlayerDead* m) {
    if (m->gameOver) gameOverPending = true;
}

void PhysicsProcessor::receiveMessage(const messages::EndLevel*) {
    squares.clear();
    lines.clear();
    searchedLines.clear();
    outerBounds.clear();
    gameOverPending = false; // or the next game would end in its first pass
}

void PhysicsProcessor::receiveMessage(const messages::PhysicsController* m) {
    if (m->resetVelocities) {
        zeroAllVelocities();
        enabled = m->enable;
    }
    if (m->runTests) booleanTestDynamicObjects();
}

void PhysicsProcessor::receiveMessage(const PhysicsLineMessage* m) {
    if (lines.size() >= max_lines) {
        publish(SoundBad()); // the bullet flies on alone
        return;
    }
    auto* const line = Engine::Instance().createEntity<TrapLine>(
        "Bullet Line", m->position, m->bullet, Marvo::Instance().getPlayerLineLength(),
        m->horizontal);
    lines.push_back(line);
    linesChanged();
    for (Entity* e : entities)
        e->physics->lines.push_back({line, {}});
}

void PhysicsProcessor::zeroAllVelocities() {
    for (Entity* e : entities)
        e->physics->velocity = math::zero_vector;
}

void PhysicsProcessor::clearBooleanTestResults() {
    for (Entity* e : entities)
        e->physics->booleanResult = false;
}

void PhysicsProcessor::booleanTestDynamicObjects() {
    clearBooleanTestResults();
    makeCollisionTests();
    testCollisions(false);
}

void PhysicsProcessor::doGravity() {
    for (Entity* e : entities)
        if (e->physics->hasGravity && !e->physics->isStatic) e->physics->velocity += gravity;
}

void PhysicsProcessor::makeCollisionTests() {
    const auto takesPart = [](const PhysicsObject& body) {
        return body.collidable && body.isActive && !(body.type == shape_box && body.boxes.empty());
    };
    formerParticipants.swap(participants);
    participants.clear();
    for (Entity* e : entities)
        if (takesPart(*e->physics)) participants.emplace_back(e, e->physics->type);
    if (participants != formerParticipants) forgetPairs(); // the same bodies give the same pairs
}

void PhysicsProcessor::preSimulate() {
    for (Entity* e : entities) {
        e->physics->collided = false;
        e->physics->stepResult = 0;
    }
}

void PhysicsProcessor::doMove() {
    for (Entity* e : entities) {
        PhysicsObject& body = *e->physics;
        body.previousPosition = body.position;
        if (body.isStatic) continue;
        const math::Vector move(body.velocity.x / stepDivisor, body.velocity.y / stepDivisor,
                                body.velocity.z / stepDivisor);
        if (isStanding(body.velocity)) body.velocity = math::zero_vector;
        body.position += move;
        if (!testLineTriangle(e)) continue;
        body.hitLine = true;
        body.position = body.previousPosition;
    }
}

bool PhysicsProcessor::testLineTriangle(Entity* e) const {
    PhysicsObject& body = *e->physics;
    if (body.type != shape_triangle) return false;
    if (inTick) return body.nearby.isStopped(body, epochs);
    const Corners corners = worldCorners(body);
    return std::any_of(body.lines.begin(), body.lines.end(), [&corners](const TriLine& known) {
        return isInTheWay(*known.line, corners);
    });
}

void PhysicsProcessor::testCollisions(bool) {
    testAABB_AABB();
    testAABB_Triangle();
    testTriangle_Point();
}

void PhysicsProcessor::testAABB_AABB() {
    for (const auto& [a, b] : aabbAabbTests) {
        PhysicsObject& bodyA = *a->physics;
        PhysicsObject& bodyB = *b->physics;
        const AABB& boxA = bodyA.boxes.front();
        const AABB& boxB = bodyB.boxes.front();
        if (!overlaps(bodyA.position.y - bodyB.position.y, boxA.halfHeight + boxB.halfHeight) ||
            !overlaps(bodyA.position.x - bodyB.position.x, boxA.halfWidth + boxB.halfWidth))
            continue;
        if (a == b || a->dead || b->dead) continue;
        bodyA.hitBox = bodyB.hitBox = true;
        bodyA.collidedWith = b;
        bodyB.collidedWith = a;
    }
}

void PhysicsProcessor::testAABB_Triangle() {
    for (const auto& [box, triangle] : aabbTriangleTests) {
        const Corners corners = worldCorners(*triangle->physics);
        if (countBoxCornersInside(*box->physics, *triangle->physics, corners) == 0 &&
            !hasCornerOnRightEdge(*box->physics, corners))
            continue;
        if (isPlayer(box)) Marvo::Instance().killPlayer();
    }
}

void PhysicsProcessor::testTriangle_Point() {
    for (const auto& [triangle, point] : trianglePointTests) {
        const Corners c = worldCorners(*triangle->physics);
        if (!pointInTriangle(point->physics->position, c[0], c[1], c[2])) continue;
        triangle->physics->collided = true;
        triangle->physics->hitLine = true;
        point->physics->collided = true;

        auto* const bullet = dynamic_cast<Bullet*>(point);
        if (bullet == nullptr) continue;
        if (!bullet->fakeKilled && !bullet->dead) publish(SoundBuletHit());
        bullet->fakeKill();
        bullet->hitTriangle = true;
    }
}

void PhysicsProcessor::postSimulate() {
    for (TrapLine* line : lines) {
        line->updateBullet();
        if (!line->isFakeDone()) continue;
        forgetLine(line);
        line->dead = true;
    }
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const TrapLine* line) { return line->isFakeDone(); }),
                lines.end());
    constructSquares();
    testBoxes();
}

} // namespace quorva::physics
