#pragma once

#include "Framework/Component.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/math/Vector.h"

#include <boost/array.hpp>

#include <cstdint>
#include <utility>
#include <vector>

class TrapLine;

namespace quorva {
class Entity;
}

namespace quorva::physics {

/// Lines that may stand at once: it bounds the search for rectangles.
constexpr std::size_t max_lines = 16;
/// Sub-steps of a tick, whatever CollisionAccuracy asks for.
constexpr std::uint16_t max_sub_steps = 1000;

/// Moves every body in sub-steps, finds what touches what, and looks for closed rectangles of
/// trap lines after each sub-step. It answers no collision: it sets flags, which the actors
/// read, stops triangles at lines, and tells MarvoClass of kills.
class PhysicsProcessor : public Component,
                         public MessageInterface<messages::PhysicsController>,
                         public MessageInterface<PhysicsLineMessage>,
                         public MessageInterface<messages::EndLevel>,
                         public MessageInterface<PlayerDead> {
public:
    /// @param gravity world units per tick, taken over the length of a tick in ms. Nothing falls.
    explicit PhysicsProcessor(const math::Vector& gravity);

    void update() override;             ///< publishes EndLevel in the pass after the last death
    void process() override;            ///< one tick
    void addEntity(Entity* e) override; ///< one without a body is ignored
    void removeEntity(Entity* e) override;
    void removeAllEntities() override; ///< the lines stay

    void receiveMessage(const messages::PhysicsController* m) override;
    void receiveMessage(const PhysicsLineMessage* m) override; ///< SoundBad if 16 lines stand
    void receiveMessage(const messages::EndLevel* m) override;
    void receiveMessage(const PlayerDead* m) override;

    void makeCollisionTests(); ///< pairs up all bodies, as they stand
    void preSimulate();
    void doMove();
    void testCollisions(bool);
    void postSimulate(); ///< retires finished lines, then looks for closed rectangles

    void testAABB_AABB();
    void testAABB_Triangle();
    void testTriangle_Point();
    void testAABB_Point() {}
    void testTriangle_Triangle() {}
    void testPoint_Point() {}

    bool testLineTriangle(Entity* e) const; ///< whether a line is in the triangle's way
    void constructSquares();                ///< fills `squares` from `lines`
    void testBoxes();                       ///< the first rectangle that holds a triangle pays out

    void zeroAllVelocities();
    void clearBooleanTestResults();
    void booleanTestDynamicObjects();
    void doGravity();

    using Pairs = std::vector<std::pair<Entity*, Entity*>>;
    using Square = boost::array<TrapLine*, 4>; ///< top, left, right, bottom

    std::vector<Entity*> entities; ///< those with a body, in order of arrival; not owned
    Pairs aabbAabbTests;
    Pairs aabbPointTests;    ///< filled, never tested
    Pairs aabbTriangleTests; ///< box first
    Pairs triangleTriangleTests;
    Pairs trianglePointTests; ///< triangle first
    Pairs pointPointTests;
    math::Vector gravity;
    bool enabled = false;
    std::vector<TrapLine*> lines; ///< in order of firing; the engine owns them
    std::vector<Square> squares;  ///< of this sub-step; each rectangle four times
    bool gameOverPending = false; ///< the last life has gone
    std::uint16_t stepCount;      ///< sub-steps of a tick
    double stepDivisor;

private:
    void clearPairs();
    void forgetLine(TrapLine* line); ///< no body knows of it from now on
    void pairUp(Entity* a, Entity* b);
    void addSquaresBetween(TrapLine* a, TrapLine* b, const std::vector<TrapLine*>& vertical);
    unsigned short catchTriangles(const Square& square);
    void payOut(const Square& square, unsigned short count);
};

} // namespace quorva::physics
