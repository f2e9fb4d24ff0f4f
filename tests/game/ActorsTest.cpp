#include "tests/support/FieldTest.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GLine.h"
#include "Framework/Managers/PointManager.h"
#include "game/ArrowIndicator.h"
#include "game/BombClear.h"
#include "game/BombImmune.h"
#include "game/Border.h"
#include "game/GCheveron.h"
#include "game/PowerUpLines.h"
#include "game/PupCooldown.h"
#include "game/PupLine.h"

using namespace quorva;

namespace {

class ActorsTest : public FieldTest {
protected:
    static EngineClass& engine() { return Engine::Instance(); }

    /// Puts a power-up under the player and lets it be taken.
    template <class T>
    void give() {
        auto* const gift = engine().createEntity<T>("Gift", body(player).position);
        player->pickupLock = 0;
        body(player).hitBox = true;
        body(player).collidedWith = gift;
        player->process();
        EXPECT_TRUE(gift->dead);
        engine().cleanupDeadEntities();
    }
};

} // namespace

TEST_F(ActorsTest, ArrowsGrowBackInFourSteps) {
    fire(-1, 0);
    std::string shown;
    for (int tick = 0; tick < 20; ++tick) {
        const auto& chevrons = player->arrows[1]->cheverons;
        shown += std::to_string(std::count_if(chevrons.begin(), chevrons.end(),
                                              [](const GCheveron* c) { return c->active; }));
        player->process();
    }
    EXPECT_EQ(shown, "01111122222333334444");
}

TEST_F(ActorsTest, AShotADeathAndTheReturnHaveTheirSounds) {
    const Count<SoundBullet> shots;
    const Count<SoundDeath> deaths;
    const Count<SoundAlive> returns;
    fire(1, 0);
    EXPECT_EQ(shots.count, 1);
    publish(PlayerDead());
    EXPECT_EQ(deaths.count, 1);
    for (int tick = 0; tick < 200; ++tick)
        player->process();
    EXPECT_EQ(returns.count, 0);
    player->process();
    EXPECT_EQ(returns.count, 1);
}

TEST_F(ActorsTest, PickUpsImproveWithinTheirBounds) {
    const Count<SoundPup> pups;
    const Count<SoundClearBomb> clears;
    const Count<SoundImmuneBomb> immunes;
    const auto lengths = [&] { return player->lineLength; };
    give<PupLine>();
    EXPECT_EQ(lengths(), 225);
    give<PupLine>();
    give<PupLine>();
    EXPECT_EQ(lengths(), 250);
    for (int i = 0; i < 20; ++i)
        give<PupCooldown>();
    EXPECT_EQ(player->cooldown, 5);
    const unsigned long triangle = layAt(9, 9)->id;
    give<BombClear>();
    EXPECT_EQ(engine().getEntity(triangle), nullptr) << "a clear bomb";
    player->invulnerable = false;
    player->invulnerableTicks = 3;
    give<BombImmune>();
    EXPECT_TRUE(player->invulnerable);
    EXPECT_EQ(player->invulnerableTicks, 100);
    EXPECT_EQ((std::vector<int>{pups.count, clears.count, immunes.count}),
              (std::vector<int>{23, 1, 1}));
    EXPECT_EQ(Marvo::Instance().numLinePUPS(), 3);
    EXPECT_EQ(Marvo::Instance().numCDPUPS(), 22) << "bombs count as cooldowns";
}

TEST_F(ActorsTest, StaysOnTheFieldAndIgnoresInputOnceDead) {
    for (const double side : {1.0, -1.0}) {
        body(player).position = math::Point(side * 99, side * -99, 0);
        player->process();
        EXPECT_EQ(body(player).position, math::Point(side * 19.5, side * -14.5, 0));
    }
    messages::PlayerInput input;
    input.move = input.fire = math::Vector(1, 1, 0);
    player->dead = true;
    publish(input);
    player->dead = false;
    player->deathTicks = 1;
    publish(input);
    EXPECT_EQ(countOf<Bullet>(), 0);
    EXPECT_FALSE(player->moveRight || player->moveUp);
}

TEST_F(ActorsTest, BulletsAreFiredByCallInTheGunsDirectionsAlone) {
    for (const math::Vector& way : {math::Vector(1, 0, 0), math::Vector(-1, 0, 0),
                                    math::Vector(0, 1, 0), math::Vector(0, -1, 0)}) {
        player->fireBullet(way);
        player->fireBullet(way);
        EXPECT_EQ(body(newest<Bullet>()).velocity, way);
    }
    player->fireBullet(math::Vector(1, 1, 0));
    player->deathTicks = 1;
    player->fireBullet(math::Vector(1, 0, 0));
    EXPECT_EQ(countOf<Bullet>(), 8);
}

TEST_F(ActorsTest, ABombMayRunOutUnderAPlayerThatLiesDead) {
    body(player).isActive = true;
    auto* const bomb = engine().createEntity<BombClear>("Bomb", math::Point(0.5, 0, 0));
    bomb->pulses = 3;
    bomb->ticks = 5;
    publish(PlayerDead());
    run.ticks(4);
    ASSERT_EQ(body(player).collidedWith, bomb);
    run.ticks(2);
    EXPECT_EQ(body(player).collidedWith, nullptr);
    run.ticks(120); // back alive, with hitBox still set
    EXPECT_EQ(player->deathTicks, 0);
    EXPECT_EQ(player->cooldownPups, 0);
}

TEST_F(ActorsTest, AYoungBurstGoesWithItsPowerUp) {
    auto* const pup = engine().createEntity<PupLine>("Line", math::Point());
    PowerUpLines* const young = pup->lines;
    pup->dead = true;
    engine().cleanupDeadEntities();
    young->process();
    EXPECT_TRUE(young->dead) << "without a ray it goes at once";
}

TEST_F(ActorsTest, ABurstMayGoBeforeItsPowerUp) {
    auto* const pup = engine().createEntity<PupCooldown>("Cooldown", math::Point());
    EXPECT_LT(pup->lines->id, pup->id);
    pup->lines->dead = pup->dead = true;
    engine().cleanupDeadEntities(); // a sanitizer sees it if the power-up still reaches for it
    EXPECT_EQ(countOf<PowerUpLines>(), 0);
}

TEST_F(ActorsTest, ATriangleOnThePlayersVeryPlaceCrashesNothing) {
    PointManager::Instance().getV("Player Location").value = math::Point(9, 9, 0);
    EXPECT_TRUE(std::isnan(add(9, 9)->angle));
    run.ticks(100);
    EXPECT_NE(run.game().level, nullptr);
}

TEST_F(ActorsTest, TheBorderLightsUpBehindWhatStandsOutside) {
    Border border;
    const struct {
        const char* what;
        double x, y;
        Border::Side side;
        unsigned int index;
        float light;
    } cases[] = {
        {"half the margin left of the middle", -25, 0.1, Border::side_left, 6, 0.5F},
        {"beyond a corner", -25, 20, Border::side_left, 11, 0.5F},
        {"beyond a corner, the other side", -25, 20, Border::side_top, 0, 0.5F},
        {"not a number beside", -25, NAN, Border::side_left, 0, 0.5F},
    };
    for (const auto& c : cases) {
        Triangle* const triangle = layAt(0, 0);
        body(triangle).position = math::Point(c.x, c.y, 0);
        border.process();
        EXPECT_TRUE(border.lines[c.side][c.index]->active) << c.what;
        EXPECT_FLOAT_EQ(border.colours[c.side][c.index].alpha(), c.light) << c.what;
        triangle->explodes = false;
        triangle->dead = true;
        engine().cleanupDeadEntities();
    }
    Triangle* const edge = layAt(0, 0);
    body(edge).position = math::Point(-20, 0, 0); // exactly on the edge
    border.process();
    for (const auto& side : border.lines)
        for (const GLine* line : side)
            EXPECT_FALSE(line->active);
}
