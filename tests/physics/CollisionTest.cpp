#include "tests/support/FieldTest.h"

#include "Framework/Config.h"
#include "game/PupLine.h"

using namespace quorva;

using CollisionTest = FieldTest;

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

TEST_F(CollisionTest, StandingTouchingAndHittingTwiceAreNothing) {
    auto* const bullet =
        Engine::Instance().createEntity<Bullet>("Bullet", math::Point(), math::Vector(1e-7, 0, 0));
    physics->doMove();
    EXPECT_EQ(body(bullet).velocity.x, 0.0);
    EXPECT_GT(body(bullet).position.x, 0.0) << "the last tiny move is made all the same";

    const Count<SoundBuletHit> hits;
    layAt(0, 0);
    Engine::Instance().createEntity<PupLine>("Line", math::Point(5, 5, 0)); // with a reach of 1.2
    body(player).isActive = true;
    for (const double x : {6.1999, 6.2 - 1e-7, 6.2}) {
        body(player).position = math::Point(x, 5, 0);
        body(player).hitBox = false;
        physics->makeCollisionTests();
        physics->testCollisions(false);
        EXPECT_EQ(body(player).hitBox, x == 6.1999) << x;
    }
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

    for (const double side : {-3.0, 3.0}) {
        across(side, -4, 4);
        upright(side, -4, 4);
    }
    physics->process();
    EXPECT_FALSE(physics->squares.empty());
    for (TrapLine* each : physics->lines)
        each->dead = true; // all of them in one tick
    Engine::Instance().cleanupDeadEntities();
    physics->process();
    EXPECT_TRUE(physics->squares.empty());
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
