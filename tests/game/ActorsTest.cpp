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

TEST_F(ActorsTest, PickUpsAndLivesAreHeardAndACooldownShortensOnlySoFar) {
    const Count<SoundPup> pups;
    const Count<SoundClearBomb> clears;
    const Count<SoundImmuneBomb> immunes;
    const Count<SoundDeath> deaths;
    const Count<SoundAlive> returns;
    for (int i = 0; i < 20; ++i)
        give<PupCooldown>();
    EXPECT_EQ(player->cooldown, 5);
    give<PupLine>();
    give<BombClear>();
    give<BombImmune>();
    publish(PlayerDead());
    run.ticks(202);
    EXPECT_EQ(
        (std::vector<int>{pups.count, clears.count, immunes.count, deaths.count, returns.count}),
        (std::vector<int>{21, 1, 1, 1, 1}));
}

TEST_F(ActorsTest, AnArrowGrowsBackInFourSteps) {
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

TEST_F(ActorsTest, StaysOnTheField) {
    body(player).position = math::Point(19.6, 14.6, 0);
    player->process();
    EXPECT_EQ(body(player).position, math::Point(19.5, 14.5, 0));
}

TEST_F(ActorsTest, FiresByCallInTheGunsDirectionsAloneAndNotOnceDead) {
    player->fireBullet({0, -1, 0});
    EXPECT_EQ(body(newest<Bullet>()).velocity, math::Vector(0, -1, 0));
    player->fireBullet({1, 1, 0});
    player->deathTicks = 1;
    player->fireBullet({1, 0, 0});
    EXPECT_EQ(all<Bullet>().size(), 1U);
}

TEST_F(ActorsTest, ABurstMayGoAfterItsPowerUpOrBeforeIt) {
    auto* const pup = engine().createEntity<PupLine>("Line", math::Point());
    PowerUpLines* const young = pup->lines;
    pup->dead = true;
    engine().cleanupDeadEntities();
    young->process();
    EXPECT_TRUE(young->dead) << "without a ray it goes at once";
    auto* const other = engine().createEntity<PupCooldown>("Cooldown", math::Point());
    other->lines->dead = other->dead = true;
    engine().cleanupDeadEntities(); // a sanitizer sees it if the power-up still reaches for it
    EXPECT_TRUE(all<PowerUpLines>().empty());
}

TEST_F(ActorsTest, ATriangleOnThePlayersVeryPlaceCrashesNothing) {
    PointManager::Instance().getV("Player Location").value = math::Point(9, 9, 0);
    EXPECT_TRUE(std::isnan(add(9, 9)->angle));
    run.ticks(100);
    EXPECT_NE(run.game().level, nullptr);
}

TEST_F(ActorsTest, ABulletThatEndsBehindThePhysicsGoesWithoutAFade) {
    fire(1, 0);
    TrapLine* const line = physics->lines.back();
    Bullet* const bullet = line->bullet;
    body(bullet).position = math::Point(3, 0, 0);
    bullet->fakeKill();
    line->update();
    EXPECT_EQ(line->end, body(bullet).position);
    EXPECT_EQ(line->bullet, nullptr);
    EXPECT_TRUE(bullet->dead);
}

TEST_F(ActorsTest, TheBorderKnowsItsEnds) {
    Border border;
    math::Point& place = body(layAt(0, 0)).position;
    place = math::Point(-25, 20, 0); // beyond a corner
    border.process();
    EXPECT_TRUE(border.lines[Border::side_left][11]->active);
    EXPECT_TRUE(border.lines[Border::side_top][0]->active);
    EXPECT_FLOAT_EQ(border.colours[Border::side_top][0].alpha(), 0.5F);
    place.y = NAN;
    border.process();
    EXPECT_TRUE(border.lines[Border::side_left][0]->active);
}
