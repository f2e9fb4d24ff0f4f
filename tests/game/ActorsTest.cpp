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
#include "game/TriangleExplodeLine.h"

using namespace quorva;

namespace {

class ActorsTest : public FieldTest {
protected:
    static EngineClass& engine() { return Engine::Instance(); }

    template <class T>
    static int ticksToDeath(T& entity, int most = 500) {
        int ticks = 0;
        for (; !entity.dead && ticks < most; ++ticks)
            entity.process();
        return ticks;
    }
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

TEST_F(ActorsTest, AGunCoolsDownByItselfWhileTheOthersFire) {
    messages::PlayerInput input;
    input.fire = math::Vector(1, 1, 0);
    publish(input);
    EXPECT_EQ(countOf<Bullet>(), 2) << "one on each axis";
    for (int tick = 0; tick < 19; ++tick)
        player->process();
    publish(input);
    EXPECT_EQ(countOf<Bullet>(), 2);
    player->process();
    publish(input);
    EXPECT_EQ(countOf<Bullet>(), 4) << "twenty ticks after the shot";
    const TrapLine* const line = newest<TrapLine>();
    EXPECT_DOUBLE_EQ(line->start.y, -0.15);
    EXPECT_FALSE(line->horizontal);
}

TEST_F(ActorsTest, ArrowsGrowBackInFourSteps) {
    messages::PlayerInput input;
    input.fire = math::Vector(-1, 0, 0);
    publish(input);
    std::string shown;
    for (int tick = 0; tick < 20; ++tick) {
        const auto& chevrons = player->arrows[1]->cheverons;
        shown += std::to_string(std::count_if(chevrons.begin(), chevrons.end(),
                                              [](const GCheveron* c) { return c->active; }));
        player->process();
    }
    EXPECT_EQ(shown, "01111122222333334444");
}

TEST_F(ActorsTest, PickUpsImproveWithinTheirBounds) {
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
    EXPECT_EQ(Marvo::Instance().numLinePUPS(), 3);
    EXPECT_EQ(Marvo::Instance().numCDPUPS(), 22) << "bombs count as cooldowns";
}

TEST_F(ActorsTest, APickUpWaitsForItsLock) {
    auto* const gift = engine().createEntity<PupLine>("Gift", math::Point());
    body(player).hitBox = true;
    body(player).collidedWith = gift;
    player->pickupLock = 2;
    player->process();
    EXPECT_FALSE(gift->dead);
    EXPECT_TRUE(body(player).hitBox);
    player->process();
    EXPECT_TRUE(gift->dead);
    EXPECT_EQ(player->pickupLock, 2);
}

TEST_F(ActorsTest, DiesLiesAndComesBackInvulnerable) {
    messages::PlayerInput right;
    right.move = math::Vector(1, 0, 0);
    publish(right);
    body(player).position = math::Point(5, 5, 0);
    player->invulnerable = false;
    Marvo::Instance().killPlayer();
    Marvo::Instance().killPlayer(); // once
    EXPECT_EQ(Marvo::Instance().lives, 1);
    EXPECT_EQ(body(player).position, math::zero_point);
    for (int tick = 0; tick < 100; ++tick) {
        publish(right); // deaf
        player->process();
        EXPECT_FALSE(player->moveRight);
    }
    int alive = 0;
    for (; player->invulnerable && alive < 200; ++alive)
        player->process();
    EXPECT_EQ(alive, 101);
    EXPECT_TRUE(player->graphics->enabled) << "it ends visible";
}

TEST_F(ActorsTest, StaysOnTheFieldAndIgnoresInputOnceDead) {
    body(player).position = math::Point(99, -99, 0);
    player->process();
    EXPECT_EQ(body(player).position, math::Point(19.5, -14.5, 0));
    player->dead = true;
    messages::PlayerInput input;
    input.fire = math::Vector(1, 0, 0);
    publish(input);
    EXPECT_EQ(countOf<Bullet>(), 0);
}

TEST_F(ActorsTest, ALineStandsItsTimeAndBlinksAtItsEnd) {
    TrapLine* const line = across(5, -20, 20);
    int toggles = 0, ticks = 0, firstToggle = 0;
    for (bool last = true; !line->fakeDone && ticks < 500; ++ticks) {
        line->process();
        if (line->graphics->enabled == last) continue;
        last = !last;
        if (++toggles == 1) firstToggle = line->lifeTicks;
    }
    EXPECT_EQ(ticks, 200);
    EXPECT_EQ(firstToggle, 71);
    EXPECT_EQ(toggles, 18) << "every fourth tick of the last 74";
}

TEST_F(ActorsTest, ALineLetsGoOfItsBulletInTheSubStepAfterItsEnd) {
    messages::PlayerInput input;
    input.fire = math::Vector(1, 0, 0);
    publish(input);
    auto* const bullet = newest<Bullet>();
    TrapLine* const line = newest<TrapLine>();
    EXPECT_EQ(line->end, math::zero_point) << "until the first update";
    line->update();
    body(bullet).position = math::Point(3, 0, 0);
    bullet->fakeKill();
    line->updateBullet();
    EXPECT_EQ(line->bullet, nullptr);
    EXPECT_EQ(line->line->end, math::Point(3, 0, 0)) << "the drawn end snaps";
    EXPECT_EQ(line->end, math::zero_point) << "the other stays as the last update left it";
    EXPECT_FALSE(bullet->dead) << "it fades by itself";
    EXPECT_EQ(ticksToDeath(*bullet), 10);
}

TEST_F(ActorsTest, ALineWhoseBulletEndsAfterTheTickKillsItOutright) {
    messages::PlayerInput input;
    input.fire = math::Vector(0, 1, 0);
    publish(input);
    TrapLine* const line = newest<TrapLine>();
    line->fakeKill(true);
    line->update();
    EXPECT_TRUE(newest<Bullet>()->dead);
    EXPECT_EQ(line->bullet, nullptr);
    EXPECT_TRUE(line->finished);
}

TEST_F(ActorsTest, ABulletEndsAQuarterUnitPastTheEdge) {
    for (const double x : {20.25, 20.2500001}) {
        Bullet bullet(math::Point(x, 0, 0), math::Vector());
        bullet.process();
        EXPECT_EQ(bullet.fakeKilled, x > 20.25) << x;
    }
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
    EXPECT_EQ(ticksToDeath(*young), 1) << "without a ray it goes at once";
}

TEST_F(ActorsTest, ABurstMayGoBeforeItsPowerUp) {
    auto* const pup = engine().createEntity<PupCooldown>("Cooldown", math::Point());
    EXPECT_LT(pup->lines->id, pup->id);
    pup->lines->dead = pup->dead = true;
    engine().cleanupDeadEntities(); // a sanitizer sees it if the power-up still reaches for it
    EXPECT_EQ(countOf<PowerUpLines>(), 0);
}

TEST_F(ActorsTest, ATriangleTurnsAndCrawlsLikeAnInchworm) {
    PointManager::Instance().getV("Player Location").value = math::Point(0, -100, 0);
    auto* const triangle = engine().createEntity<Triangle>("Triangle", math::Point(), 5.0, 1.0);
    EXPECT_NEAR(triangle->angle, -2.5 * math::pi / 180, 1e-12) << "from behind it turns right";
    for (int i = 0; i < 75; ++i)
        triangle->reposition();
    EXPECT_NEAR(std::cos(triangle->angle), -1.0, 1e-3) << "it has come around";
    EXPECT_NEAR(triangle->step.length(), 0.1, 1e-12) << "1 / (15 - 5)";

    std::string gait;
    for (int tick = 0; tick < 200; ++tick) {
        triangle->process();
        gait += std::to_string(triangle->state);
    }
    // Nose to base is between 2 and 2.236: over the root of 1.1, at 0.1 a tick, 20 to 22 ticks.
    const std::size_t contracted = gait.find('2');
    EXPECT_GE(contracted, 19U);
    EXPECT_LE(contracted, 21U);
    const std::string cycle = std::string(16, '2') + std::string(contracted + 1, '0') +
                              std::string(16, '3') + std::string(contracted + 1, '1') + "2";
    EXPECT_EQ(gait.substr(contracted, cycle.size()), cycle);
}

TEST_F(ActorsTest, ATriangleOnThePlayersVeryPlaceCrashesNothing) {
    PointManager::Instance().getV("Player Location").value = math::Point(9, 9, 0);
    auto* const triangle =
        engine().createEntity<Triangle>("Triangle", math::Point(9, 9, 0), 0.0, 1.0);
    EXPECT_TRUE(std::isnan(triangle->angle));
    run.ticks(100);
    EXPECT_NE(run.game().level, nullptr);
}

TEST_F(ActorsTest, ATriangleBurstsUnlessTheLevelEnds) {
    const auto die = [&](const std::function<void(Triangle&)>& how) {
        auto* const triangle =
            engine().createEntity<Triangle>("Triangle", math::Point(9, 9, 0), 0.0, 1.0);
        how(*triangle);
        const int before = countOf<TriangleExplodeLine>();
        engine().cleanupDeadEntities();
        return countOf<TriangleExplodeLine>() - before;
    };
    EXPECT_EQ(die([](Triangle& t) { t.receiveMessage(static_cast<const PlayerDead*>(nullptr)); }),
              3);
    EXPECT_EQ(
        die([](Triangle& t) { t.receiveMessage(static_cast<const KillAllTriangles*>(nullptr)); }),
        3);
    EXPECT_EQ(
        die([](Triangle& t) { t.receiveMessage(static_cast<const messages::EndLevel*>(nullptr)); }),
        0);
    auto* const line = newest<TriangleExplodeLine>();
    for (int i = 0; i < 10; ++i)
        line->process();
    EXPECT_NEAR(body(line).velocity.length(), 1.0, 1e-9) << "0.1 more each tick";
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
        {"far away: lit, but black", 0.1, 60, Border::side_top, 6, 0.0F},
        {"beyond a corner", -25, 20, Border::side_left, 11, 0.5F},
        {"beyond a corner, the other side", -25, 20, Border::side_top, 0, 0.5F},
        {"below", 19.9, -20, Border::side_bottom, 11, 0.5F},
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
