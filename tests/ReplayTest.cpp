#include "headless/HeadlessGame.h"
#include "headless/Recording.h"
#include "headless/StateHash.h"

#include "Framework/Engine.h"
#include "Framework/math/MTRand.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/GameBase.h"
#include "game/Marvo.h"
#include "game/Triangle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

using namespace quorva;
using headless::HeadlessGame;
using headless::Recording;

namespace {

Recording recorded(const std::string& name) {
    return Recording::load(std::string(KOV_SOURCE_DIR) + "/tests/recordings/" + name);
}

Triangle* anyTriangle() {
    for (const auto& [id, entity] : Engine::Instance().entities)
        if (auto* const triangle = dynamic_cast<Triangle*>(entity)) return triangle;
    return nullptr;
}

/// What the comparison says when `change` has been made after 300 ticks of a recorded game.
std::string complaintAbout(void (*change)()) {
    const Recording recording = recorded("first-steps");
    HeadlessGame run(recording.startTicks);
    auto key = recording.keys.begin();
    for (std::uint32_t tick = 0;; ++tick) {
        for (; key != recording.keys.end() && key->tick == tick; ++key)
            run.key(key->symbol, key->down);
        run.tick();
        if (tick == 300) change();
        const std::string complaint = recording.compare(tick, headless::stateParts(run.game()));
        if (tick == 300 || !complaint.empty()) return complaint;
    }
}

class Replay : public testing::TestWithParam<const char*> {};

} // namespace

TEST_P(Replay, IsTheRecordedGameAtEveryTick) {
    const Recording recording = recorded(GetParam());
    ASSERT_GE(recording.length(), 1000U);
    EXPECT_EQ(headless::replay(recording), "");
}

INSTANTIATE_TEST_SUITE_P(Games, Replay,
                         testing::Values("first-steps", "one-game", "pages-and-pauses",
                                         "long-evening"),
                         [](const auto& game) {
                             std::string name = game.param;
                             name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
                             return name;
                         });

TEST(Comparison, NamesTheFirstTickAndTheFirstObjectThatDiffer) {
    const auto nothing = [] {};
    const auto byOneBit = [] {
        double& x = anyTriangle()->physics->position.x;
        x = std::nextafter(x, 1000.0);
    };
    const auto point = [] { ++Marvo::Instance().score; };
    const auto draw = [] { math::MTRand_int32()(); };
    const auto extra = [] {
        Engine::Instance().createEntity<Triangle>("Triangle", math::Point(9, 9, 0), 0.0, 1.0);
    };
    EXPECT_EQ(complaintAbout(nothing), "");
    EXPECT_EQ(complaintAbout(byOneBit).find("tick 300: the first that differs: Triangle "), 0U)
        << complaintAbout(byOneBit);
    EXPECT_EQ(complaintAbout(point), "tick 300: the first that differs: score and lives");
    EXPECT_EQ(complaintAbout(draw), "tick 300: the first that differs: random stream");
    EXPECT_NE(complaintAbout(extra).find("objects in place of"), std::string::npos);
}
