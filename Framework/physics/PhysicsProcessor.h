#pragma once

#include "Framework/Component.h"
#include "Framework/MessageReceiver.h"
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
/// trap lines after each sub-step. It resolves no collision: it sets flags, which the actors
/// read, stops triangles at lines, and reports kills to MarvoClass.
///
/// Its methods are in two files: the search for rectangles in Squares.cpp (constructSquares,
/// addSquaresBetween, linesDifferFromLastSearch, findOuterBounds, testBoxes, holdsAnyTriangle,
/// holds, catchTriangles, payOut), all others in PhysicsProcessor.cpp.
class PhysicsProcessor : public Component,
                         public MessageReceiver<messages::PhysicsController, PhysicsLineMessage,
                                                messages::EndLevel, PlayerDead> {
public:
    /// @param gravity kept divided by the length of a tick in ms; as it stands, nothing falls
    explicit PhysicsProcessor(const math::Vector& gravity);

    void update() override;                ///< publishes EndLevel in the pass after the last death
    void process() override;               ///< one tick
    void addEntity(Entity* e) override;    ///< an entity without a body is ignored
    void removeEntity(Entity* e) override; ///< nothing here points to it afterwards
    void removeAllEntities() override;     ///< the lines stay

    void receiveMessage(const messages::PhysicsController* m) override;
    void receiveMessage(const PhysicsLineMessage* m) override; ///< SoundBad if 16 lines stand
    void receiveMessage(const messages::EndLevel* m) override;
    void receiveMessage(const PlayerDead* m) override;

    void makeCollisionTests(); ///< pairs up all bodies, as they stand
    void preSimulate();        ///< clears the flags of the last sub-step
    void doMove();             ///< takes a triangle's move back when a line is in its way
    void testCollisions(bool); ///< runs the three tests; the argument is ignored
    void postSimulate();       ///< retires finished lines, then looks for closed rectangles

    void testAABB_AABB();      ///< player and power-ups: hitBox and collidedWith
    void testAABB_Triangle();  ///< a triangle that touches the player kills it
    void testTriangle_Point(); ///< a bullet ends at a triangle, which is held for a moment
    void testAABB_Point() {}
    void testTriangle_Triangle() {}
    void testPoint_Point() {}

    bool testLineTriangle(Entity* e) const; ///< whether a line is in the triangle's way
    void constructSquares();                ///< renews `squares` if `lines` have changed
    void testBoxes(); ///< the first of `squares` that holds a triangle pays out

    void zeroAllVelocities();
    void clearBooleanTestResults();
    void booleanTestDynamicObjects(); ///< one round of tests, without a move
    void doGravity();                 ///< nothing calls it: nothing falls

    using Square = boost::array<TrapLine*, 4>; ///< top, left, right, bottom
    /// Whether so much of the triangle is in the rectangle that it is caught.
    static bool holds(const Square& square, const PhysicsObject& triangle);

    std::vector<Entity*> entities; ///< all that have a body, in order of arrival; not owned
    PairList aabbAabbTests{participants, shape_box, shape_box};
    PairList aabbPointTests{participants, shape_box, shape_point}; ///< never tested
    PairList aabbTriangleTests{participants, shape_box, shape_triangle};
    PairList triangleTriangleTests{participants, shape_triangle, shape_triangle}; ///< never tested
    PairList trianglePointTests{participants, shape_triangle, shape_point};
    PairList pointPointTests{participants, shape_point, shape_point}; ///< never tested
    math::Vector gravity;
    bool enabled = false;         ///< taken over from PhysicsController; nothing reads it
    std::vector<TrapLine*> lines; ///< in order of firing; the engine owns them
    std::vector<Square> squares;  ///< of this sub-step; each rectangle four times
    bool gameOverPending = false; ///< the last life has gone
    std::uint16_t stepCount;      ///< sub-steps of a tick
    double stepDivisor;           ///< the same, to divide velocities by

private:
    /// What the search for rectangles reads of a line.
    struct SearchedLine {
        const TrapLine* line;
        double startX, startY, endX, endY;
        bool horizontal, solid;
    };
    /// To be called after any change within a tick by which a triangle could meet other lines, or
    /// lines elsewhere: a line that comes, goes or moves an end. What the triangles have looked up
    /// is void then. Between ticks lines may change freely: each tick starts with a call.
    void linesChanged() { ++epochs.lines; }

    void forgetPairs();
    void forgetLine(TrapLine* line); ///< takes it out of every body's list
    void addSquaresBetween(TrapLine* a, TrapLine* b);
    bool linesDifferFromLastSearch(); ///< remembers them as they are now
    void findOuterBounds();
    bool holdsAnyTriangle() const;
    unsigned short catchTriangles(const Square& square);
    void payOut(const Square& square, unsigned short count);

    // Results that are kept until their input changes.
    std::vector<Participant> participants, formerParticipants; ///< of the pair lists
    std::vector<SearchedLine> searchedLines, formerLines;
    std::vector<TrapLine*> horizontalLines, verticalLines; ///< the solid ones
    std::vector<Bounds> outerBounds; ///< of the `squares` that no other one encloses
    bool inTick = false; ///< only doMove moves bodies now; no body turns and no line grows
    NearbyObstacles::Epochs epochs{1, 1}; ///< a new body, at 0, has looked nothing up
};

} // namespace quorva::physics
