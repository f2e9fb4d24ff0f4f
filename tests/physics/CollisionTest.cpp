#include "tests/support/FieldTest.h"

#include "Framework/Config.h"
#include "game/PupLine.h"

using namespace quorva;

namespace {

class CollisionTest : public FieldTest {
protected:
    /// The player at a place where triangles can touch it.
    void expose(double x, double y) {
        body(player).isActive = true;
        body(player).position = math::Point(x, y, 0);
        player->invulnerable = false;
    }
    /// One round of tests, without movement.
    void test() {
        physics->makeCollisionTests();
        physics->preSimulate();
        physics->testCollisions(false);
    }
};

} // namespace

TEST_F(CollisionTest, MovesByOneShareOfTheVelocityASubStep) {
    auto* const bullet =
        Engine::Instance().createEntity<Bullet>("Bullet", math::Point(), math::Vector(0.25, 0, 0));
    physics->doMove();
    EXPECT_DOUBLE_EQ(body(bullet).position.x, 0.025);
    body(bullet).velocity = math::Vector(1e-7, 0, 0);
    physics->doMove();
    EXPECT_GT(body(bullet).position.x, 0.025) << "the last tiny move is made all the same";
    EXPECT_EQ(body(bullet).velocity.x, 0.0);
    body(bullet).isStatic = true;
    body(bullet).velocity = math::Vector(1, 0, 0);
    physics->doMove();
    EXPECT_LT(body(bullet).position.x, 0.026);
}

TEST_F(CollisionTest, ReadsTheAccuracyWithinItsBounds) {
    auto& settings = config::Config::Instance();
    auto& accuracy = settings.getConfigValues().intValues.back();
    const struct {
        int setting;
        int steps;
    } cases[] = {{0, 1}, {10, 10}, {5000, 1000}};
    for (const auto& c : cases) {
        accuracy.value = c.setting; // past the check of the settings
        settings.activateConfig();
        EXPECT_EQ(physics::PhysicsProcessor(math::Vector(0, -6, 0)).stepCount, c.steps);
    }
}

TEST_F(CollisionTest, StopsATriangleAtALineAndNothingElse) {
    across(1.0, -5, 5);
    Triangle* const triangle = layAt(0, 0.85); // its tip at 0.95
    body(triangle).velocity = math::Vector(0, 1, 0);
    auto* const bullet = Engine::Instance().createEntity<Bullet>("Bullet", math::Point(2, 0.95, 0),
                                                                 math::Vector(0, 1, 0));
    physics->doMove();
    EXPECT_TRUE(body(triangle).hitLine);
    EXPECT_EQ(body(triangle).position.y, 0.0) << "the move is taken back";
    EXPECT_EQ(body(triangle).velocity.y, 1.0) << "and tried again";
    EXPECT_DOUBLE_EQ(body(bullet).position.y, 1.05);

    // A triangle that comes later knows the standing lines, and forgets a line that ends.
    Triangle* const late = layAt(3, 0.95);
    EXPECT_EQ(body(late).lines.size(), 1U);
    physics->lines.front()->fakeKill(false);
    physics->postSimulate();
    EXPECT_TRUE(body(late).lines.empty());
}

TEST_F(CollisionTest, OverlapOfBoxesExcludesTouching) {
    auto* const pup = Engine::Instance().createEntity<PupLine>("Line", math::Point(5, 5, 0));
    const struct {
        const char* what;
        double x, y;
        bool overlap;
    } cases[] = {{"deep inside", 5, 5, true},
                 {"just overlapping", 6.1999, 5, true},
                 {"touching, reach 1.2", 6.2, 5, false},
                 {"within the tolerance", 6.2 - 1e-7, 5, false},
                 {"beside in y alone", 7, 5, false}};
    for (const auto& c : cases) {
        expose(c.x, c.y);
        body(player).hitBox = false;
        body(player).collidedWith = nullptr;
        test();
        EXPECT_EQ(body(player).hitBox, c.overlap) << c.what;
        EXPECT_EQ(body(player).collidedWith, c.overlap ? pup : nullptr) << c.what;
    }
    expose(5, 5);
    body(player).hitBox = false;
    pup->dead = true;
    test();
    EXPECT_FALSE(body(player).hitBox) << "the dead are not touched";
}

TEST_F(CollisionTest, ATriangleKillsAtThreeCornersAndOnTheRightEdge) {
    // The player's box reaches from 0.8 to 1.2 in x and in y.
    const struct {
        const char* what;
        math::Point a, b, c;
        bool kills;
    } cases[] = {
        {"over bottom right", {1.0, 0.7, 0}, {1.5, 0.7, 0}, {1.25, 1, 0}, true},
        {"over top right", {1.0, 1.3, 0}, {1.25, 1, 0}, {1.5, 1.3, 0}, true},
        {"over bottom left", {0.5, 0.7, 0}, {1.0, 0.7, 0}, {0.75, 1, 0}, true},
        {"over top left alone", {0.5, 1.3, 0}, {0.75, 1, 0}, {1.0, 1.3, 0}, false},
        {"wholly within the box", {0.95, 0.95, 0}, {1.05, 0.95, 0}, {1, 1.05, 0}, false},
        {"a corner exactly on the right edge", {1.2, 1, 0}, {2, 0.9, 0}, {2, 1.1, 0}, true},
        {"a corner a hair inside it", {1.1999, 1, 0}, {2, 0.9, 0}, {2, 1.1, 0}, false},
        {"apart", {3, 3, 0}, {4, 3, 0}, {3, 4, 0}, false},
    };
    for (const auto& c : cases) {
        expose(1, 1);
        // The sum 1 + 0.2 has to meet the corner to the bit.
        const math::Point a(c.a.x == 1.2 ? 1 + 0.2 : c.a.x, c.a.y, 0);
        Triangle* const triangle = lay(a, c.b, c.c);
        const int lives = Marvo::Instance().lives;
        test();
        EXPECT_EQ(Marvo::Instance().lives, lives - (c.kills ? 1 : 0)) << c.what;
        triangle->explodes = false;
        triangle->dead = true;
        Engine::Instance().cleanupDeadEntities();
    }
}

TEST_F(CollisionTest, ABulletHoldsATriangleAndSoundsOnce) {
    const Count<SoundBuletHit> hits;
    Triangle* const triangle = layAt(5, 5);
    auto* const bullet =
        Engine::Instance().createEntity<Bullet>("Bullet", math::Point(5, 5, 0), math::Vector());
    test();
    test();
    EXPECT_TRUE(body(triangle).hitLine);
    EXPECT_FALSE(triangle->dead);
    EXPECT_TRUE(bullet->fakeKilled && bullet->hitTriangle && bullet->dying);
    EXPECT_EQ(hits.count, 1);
}

TEST_F(CollisionTest, ForgetsWhatTheEngineDeletes) {
    auto* const pup = Engine::Instance().createEntity<PupLine>("Line", math::Point(5, 5, 0));
    body(player).collidedWith = pup;
    TrapLine* const line = across(1, -5, 5);
    auto* const bullet =
        Engine::Instance().createEntity<Bullet>("Bullet", math::Point(), math::Vector());
    line->bullet = bullet;
    Triangle* const triangle = layAt(8, 8);
    pup->dead = bullet->dead = true;
    Engine::Instance().cleanupDeadEntities();
    EXPECT_EQ(body(player).collidedWith, nullptr);
    EXPECT_EQ(line->bullet, nullptr);
    line->dead = true; // not by its own end
    Engine::Instance().cleanupDeadEntities();
    EXPECT_TRUE(physics->lines.empty());
    EXPECT_TRUE(body(triangle).lines.empty());
}

TEST_F(CollisionTest, TheLastDeathEndsTheLevelInTheNextPassAndOnlyOnce) {
    const Count<messages::EndLevel> ends;
    PlayerDead message;
    publish(message);
    physics->update();
    EXPECT_EQ(ends.count, 0) << "a life is left";
    message.gameOver = true;
    publish(message);
    physics->update();
    physics->update();
    EXPECT_EQ(ends.count, 1);
}

TEST_F(CollisionTest, RunsWhatAControllerAsksFor) {
    Triangle* const triangle = layAt(5, 5);
    body(triangle).velocity = math::Vector(1, 1, 0);
    body(triangle).booleanResult = true;
    messages::PhysicsController message;
    message.resetVelocities = message.enable = message.runTests = true;
    publish(message);
    EXPECT_EQ(body(triangle).velocity, math::zero_vector);
    EXPECT_FALSE(body(triangle).booleanResult);
    EXPECT_TRUE(physics->enabled);
    physics->doGravity();
    EXPECT_DOUBLE_EQ(body(triangle).velocity.y, -6.0 / 30.0);
}
