#pragma once

#include "Framework/Component.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/math/Vector.h"
#include "Framework/physics/PairList.h"
#include "Framework/physics/PhysicsObject.h"

#include <boost/array.hpp>

#include <cstdint>
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
    void constructSquares();                ///< fills `squares` from `lines`, if those have changed
    void testBoxes(); ///< the first of `squares` that holds a triangle pays out

    void zeroAllVelocities();
    void clearBooleanTestResults();
    void booleanTestDynamicObjects();
    void doGravity();

    using Square = boost::array<TrapLine*, 4>; ///< top, left, right, bottom

    std::vector<Entity*> entities; ///< those with a body, in order of arrival; not owned
    PairList aabbAabbTests{partakers, shape_box, shape_box};
    PairList aabbPointTests{partakers, shape_box, shape_point}; ///< never tested
    PairList aabbTriangleTests{partakers, shape_box, shape_triangle};
    PairList triangleTriangleTests{partakers, shape_triangle, shape_triangle}; ///< never tested
    PairList trianglePointTests{partakers, shape_triangle, shape_point};
    PairList pointPointTests{partakers, shape_point, shape_point}; ///< never tested
    math::Vector gravity;
    bool enabled = false;
    std::vector<TrapLine*> lines; ///< in order of firing; the engine owns them
    std::vector<Square> squares;  ///< of this sub-step; each rectangle four times
    bool gameOverPending = false; ///< the last life has gone
    std::uint16_t stepCount;      ///< sub-steps of a tick
    double stepDivisor;

private:
    /// What the search for rectangles reads of a line.
    struct SearchedLine {
        const TrapLine* line;
        double startX, startY, endX, endY;
        bool horizontal, solid;
    };
    void forgetPairs();
    void forgetLine(TrapLine* line); ///< no body knows of it from now on
    void addSquaresBetween(TrapLine* a, TrapLine* b);
    bool linesHaveChanged(); ///< since the last search; remembers them as they are now
    void findOuterBounds();
    bool holdsAnyTriangle() const;
    unsigned short catchTriangles(const Square& square);
    void payOut(const Square& square, unsigned short count);

    // What has been found once, kept while that from which it follows stays the same.
    std::vector<Partaker> partakers, formerPartakers; ///< of the pair lists
    std::vector<SearchedLine> searchedLines, formerLines;
    std::vector<TrapLine*> horizontalLines, verticalLines; ///< the solid ones
    /// The bounds of `squares` without those that lie within others.
    std::vector<SquareBounds> outerBounds;
    bool inTick = false;        ///< nothing but doMove moves bodies now, and no line grows
    Reach::Epochs epochs{1, 1}; ///< a new Reach, at 0, has looked nothing up
};

} // namespace quorva::physics
