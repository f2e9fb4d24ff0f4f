// The story of a game, and the remarks on what could have helped in it.

#include "replay/Story.h"
#include "headless/Sandbox.h"
#include "replay/Remarks.h"
#include "tests/support/Field.h"

#include "Framework/input/KeyMapper.h"

#include <gtest/gtest.h>

using namespace quorva;
using namespace quorva::replay;

namespace {

/// A game, watched from its first pass on.
class Watched : public Field {
public:
    Watched() { look(); }

    void look(std::vector<Event> events = {}) {
        progress.look();
        Pass pass;
        pass.events = std::move(events);
        story.look(progress, pass, standins::sdl().ticks);
    }
    void tick() {
        run.tick();
        look();
    }
    GameStory& game() { return story.games.back(); }

    Story story;
    Progress progress;
};

class StoryTest : public testing::Test {
protected:
    const headless::Sandbox sandbox{KOV_SOURCE_DIR};
};

} // namespace

TEST_F(StoryTest, CountsWhatAGameBrings) {
    Watched watched;
    EXPECT_EQ(watched.game().presses, 0U);
    watched.look({{0, Event::key_down, 1}, {0, Event::key_up, 1}, {0, Event::button_down, 1}});
    watched.look({{0, Event::key_up, 1}, {0, Event::axis_moved, 0}, {0, Event::closed, 0}});
    EXPECT_EQ(watched.game().presses, 2U) << "the most of a pass";
    unsigned int bests = 0;
    watched.story.onBestCatch = [&bests] { ++bests; };
    const auto fence = [&](double half) {
        watched.across(half, -half, half);
        watched.across(-half, -half, half);
        watched.upright(-half, -half, half);
        watched.upright(half, -half, half);
        watched.physics->process(); // alone: nothing else moves
        standins::sdl().ticks += 30;
        watched.look();
        Engine::Instance().cleanupDeadEntities();
    };
    watched.layAt(0.5, 0.0);
    watched.layAt(-0.5, 0.0);
    watched.layAt(3.0, 3.0);
    fence(2.0);
    const std::uint32_t first = Marvo::Instance().score;
    fence(5.0); // the one that is left pays less
    EXPECT_EQ(bests, 1U);
    for (const double y : {1.0, -1.0})
        Field::fire(0.0, y);
    publish(SoundPup());
    publish(SoundClearBomb());
    publish(SoundImmuneBomb());
    watched.look();

    ASSERT_EQ(watched.game().catches.size(), 2U);
    EXPECT_EQ(watched.game().triangles(), 3U);
    ASSERT_NE(watched.game().best(), nullptr);
    EXPECT_EQ(watched.game().best()->points, first);
    EXPECT_EQ(watched.game().best()->triangles, 2U);
    EXPECT_EQ(watched.game().best()->time, 30U);
    EXPECT_EQ(watched.game().shots, 2U);
    EXPECT_EQ(watched.game().sides(), 8U);
    EXPECT_EQ(watched.game().powerUps, 3U);
    EXPECT_FALSE(watched.game().end);

    watched.run.press(SDLK_ESCAPE);
    watched.tick();
    watched.tick();
    ASSERT_TRUE(watched.game().end);
    EXPECT_EQ(watched.game().end->score, Marvo::Instance().score);
    EXPECT_NE(inWords(watched.game()).find("3 triangles"), std::string::npos);
    EXPECT_EQ(watched.story.games.size(), 1U);
}

TEST_F(StoryTest, TheFirstOfEqualCatchesIsTheBest) {
    Watched watched;
    unsigned int bests = 0;
    watched.story.onBestCatch = [&bests] { ++bests; };
    for (int times = 0; times < 2; ++times)
        publish(SoundSquare());
    EXPECT_EQ(bests, 1U);
    EXPECT_EQ(watched.game().best(), &watched.game().catches.at(0));
    EXPECT_EQ(watched.game().triangles(), 0U) << "without a rectangle";
}

TEST_F(StoryTest, TakesPausesOutOfTheClock) {
    Watched watched;
    for (int i = 0; i < 5; ++i)
        watched.tick();
    standins::sdl().ticks += 31; // 61 in all, which is slow, after 60, which isn't
    watched.tick();
    standins::sdl().ticks += 30;
    watched.tick();
    EXPECT_EQ(watched.game().slowTicks, 1U);
    EXPECT_EQ(watched.game().longestTick, 61U);
    watched.run.press(SDLK_p);
    watched.tick(); // pauses behind this tick
    const std::uint32_t played = watched.game().played(), ticks = watched.game().ticks;
    standins::sdl().ticks += 12000;
    watched.look();
    watched.run.press(SDLK_p);
    watched.run.frame();
    watched.look();
    watched.tick();
    EXPECT_EQ(watched.game().pauses, 1U);
    EXPECT_EQ(watched.game().paused, 12000U);
    EXPECT_EQ(watched.game().ticks, ticks + 1);
    EXPECT_EQ(watched.game().played(), played + 30);
    EXPECT_EQ(watched.game().longestTick, 61U);

    watched.run.press(SDLK_p); // left while it stands
    watched.tick();
    standins::sdl().ticks += 500;
    watched.run.press(SDLK_ESCAPE);
    watched.run.frame();
    watched.look();
    EXPECT_EQ(watched.game().pauses, 2U);
    EXPECT_EQ(watched.game().paused, 12500U);
}

TEST(RemarksTest, MarkWhatIsUnlikeAnUntouchedGame) {
    const auto usual = [] {
        GameStory game;
        game.last = 40000;
        game.ticks = 1000;
        game.settings = {{'w', 800}, {'l', 600}, {'z', 10}};
        return game;
    };
    using Change = void (*)(GameStory&, Changes&);
    const struct {
        const char* marked; ///< what is; else nothing
        Change change;
    } cases[] = {
        {nullptr, [](GameStory&, Changes&) {}},
        {"40.0 ms each", [](GameStory& g, Changes&) { ++g.last; }},
        {nullptr, [](GameStory& g, Changes&) { g.longestTick = 500; }},
        {"501 ms at most", [](GameStory& g, Changes&) { g.longestTick = 501; }},
        {nullptr, [](GameStory& g, Changes&) { g.slowTicks = 20; }},
        {"21 over 60 ms", [](GameStory& g, Changes&) { g.slowTicks = 21; }},
        {nullptr, [](GameStory& g, Changes&) { g.pauses = 3; }},
        {"4 pauses of 0:10",
         [](GameStory& g, Changes&) { g.pauses = 4, g.paused = 10000, g.last += 10000; }},
        {nullptr, [](GameStory& g, Changes&) { g.pauses = 4, g.ticks = 2000, g.last = 60000; }},
        {"accuracy 9", [](GameStory& g, Changes&) { g.settings[2].second = 9; }},
        {"accuracy 11", [](GameStory& g, Changes&) { g.settings[2].second = 11; }},
        {nullptr, [](GameStory& g, Changes&) { g.settings[0].second = 750; }},
        {"window 749x600", [](GameStory& g, Changes&) { g.settings[0].second = 749; }},
        {nullptr, [](GameStory& g, Changes&) { g.settings[0].second = 1422; }},
        {"window 1423x600", [](GameStory& g, Changes&) { g.settings[0].second = 1423; }},
        {"1 colour changed", [](GameStory&, Changes& c) { c.colours = 1; }},
        {"2 points changed", [](GameStory&, Changes& c) { c.points = 2; }},
        {nullptr, [](GameStory&, Changes& c) { c.keys = 11; }},
        {"4 actions a key", [](GameStory&, Changes& c) { c.actionsOfAKey = 4; }},
        {nullptr, [](GameStory& g, Changes&) { g.presses = 6; }},
        {"up to 7 presses at once", [](GameStory& g, Changes&) { g.presses = 7; }},
    };
    EXPECT_EQ(
        inWords(remarksOn(usual(), {})),
        "1000 ticks in 0:40, 40.0 ms each, 0 ms at most, 0 over 60 ms, 0 pauses, accuracy 10, "
        "window 800x600, 0 colours changed, 0 points changed, 0 keys changed, "
        "1 action a key, up to 0 presses at once");
    GameStory none; // over at once
    EXPECT_EQ(inWords(remarksOn(none, {})).find("0 ticks in 0:00, 0.0 ms each, "), 0U);
    none.ticks = 1;
    EXPECT_EQ(inWords(remarksOn(none, {})).find("1 tick in 0:00, 0.0 ms each, "), 0U);
    for (const auto& c : cases) {
        GameStory game = usual();
        Changes changes;
        c.change(game, changes);
        const std::vector<Remark> remarks = remarksOn(game, changes);
        std::string marked;
        for (const Remark& remark : remarks)
            if (remark.marked) marked += remark.text;
        EXPECT_EQ(marked, c.marked == nullptr ? "" : c.marked) << &c - cases;
        EXPECT_EQ(anyMarked(remarks), c.marked != nullptr);
        EXPECT_EQ(inWords(remarks).find("(!)") != std::string::npos, c.marked != nullptr);
    }
}

TEST_F(StoryTest, ComparesWithWhatIsShipped) {
    headless::HeadlessGame game;
    const Shipped shipped(KOV_SOURCE_DIR);
    ASSERT_EQ(shipped.palettes.size(), 2U);
    EXPECT_GT(shipped.palettes[1].size(), 15U);
    EXPECT_EQ(shipped.bindings.filename(), "bind1.conf");
    replay::Setup untouched = {};
    untouched.colours = shipped.palettes[1]; // of the two, the usual
    untouched.colours.push_back({"made by the game", {1.0, 1.0, 1.0, 0.5}});
    untouched.points = {{"made by the game", {0, 0, 0}}};
    for (const auto& key : input::KeyMapper::Instance().keys)
        untouched.bindings.emplace_back(key->key, key->jsButton);
    const struct {
        std::size_t colours, points, keys, actions; ///< expected
        void (*change)(replay::Setup&);
    } cases[] = {
        {0, 0, 0, 1, [](replay::Setup&) {}},
        {1, 0, 0, 1, [](replay::Setup& s) { s.colours[4].parts[3] = 0.25; }},
        {1, 0, 0, 1, [](replay::Setup& s) { s.colours.back().parts[0] = 0.0; }},
        {1, 0, 0, 1, [](replay::Setup& s) { s.colours.erase(s.colours.begin()); }},
        {0, 0, 0, 1, // for bright light
         [](replay::Setup& s) { s.colours = Shipped(KOV_SOURCE_DIR).palettes[0]; }},
        {0, 1, 0, 1, [](replay::Setup& s) { s.points[0].coordinates[1] = 2.0; }},
        {0, 0, 2, 1, [](replay::Setup& s) { s.bindings[7] = std::pair('z', 3); }},
        {0, 0, 3, 4,
         [](replay::Setup& s) {
             for (int i = 8; i < 11; ++i)
                 s.bindings[i].first = s.bindings[7].first;
         }},
        {0, 0, 1, 1, [](replay::Setup& s) { s.bindings[0].first = s.bindings[7].first; }},
        {0, 0, 2, 2, [](replay::Setup& s) { s.bindings[8].second = s.bindings[7].second = 5; }},
        {0, 0, 2, 1,
         [](replay::Setup& s) { s.bindings[8].first = s.bindings[7].first = input::unknown_key; }},
    };
    for (const auto& c : cases) {
        replay::Setup setup = untouched;
        c.change(setup);
        const Changes changes = changesFrom(shipped, setup);
        EXPECT_EQ(changes.colours, c.colours) << &c - cases;
        EXPECT_EQ(changes.points, c.points) << &c - cases;
        EXPECT_EQ(changes.keys, c.keys) << &c - cases;
        EXPECT_EQ(changes.actionsOfAKey, c.actions) << &c - cases;
    }
}
