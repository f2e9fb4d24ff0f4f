#include "tests/support/FieldTest.h"

using namespace quorva;

namespace {

class SquaresTest : public FieldTest {
protected:
    /// How many rectangles the present lines make, each counted four times.
    std::size_t search() {
        physics->constructSquares();
        return physics->squares.size();
    }
    /// All sides but the right one.
    void threeSides() {
        across(5, -20, 20);
        across(-5, -20, 20);
        upright(-3, -15, 15);
    }
    std::uint32_t scoreOf(double top, double bottom, double left, double right, int count) {
        const double share = (right - left) * (top - bottom) / Marvo::Instance().fieldArea;
        return static_cast<std::uint32_t>(std::pow(1 - share, 4) * 1000 * 2 * count);
    }
};

} // namespace

TEST_F(SquaresTest, FindsARectangleFourTimesWithItsSidesInOrder) {
    threeSides();
    upright(7, -15, 15);
    ASSERT_EQ(search(), 4U);
    for (const auto& square : physics->squares) {
        EXPECT_EQ(square[0]->start.y, 5);
        EXPECT_EQ(square[1]->start.x, -3);
        EXPECT_EQ(square[2]->start.x, 7);
        EXPECT_EQ(square[3]->start.y, -5);
    }
}

TEST_F(SquaresTest, WantsTheFourthSideToReachAndToStandWithin) {
    const struct {
        const char* what;
        math::Point start, end;
        std::size_t found;
    } cases[] = {
        {"overshoots", {7, -15, 0}, {7, 15, 0}, 4},
        {"drawn downwards", {7, 15, 0}, {7, -15, 0}, 4},
        {"ends on the line", {7, -5, 0}, {7, 5, 0}, 4},
        {"stops short of the bottom", {7, -4, 0}, {7, 15, 0}, 0},
        {"stops short of the top", {7, -15, 0}, {7, 4.999, 0}, 0},
        {"through the ends of the rails", {20, -15, 0}, {20, 15, 0}, 4},
        {"just past their ends", {20.001, -15, 0}, {20.001, 15, 0}, 0},
        {"at the very x of the other side", {-3, -15, 0}, {-3, 15, 0}, 0},
        {"almost at it", {-2.9999999, -15, 0}, {-2.9999999, 15, 0}, 4},
        {"of no length", {7, 0, 0}, {7, 0, 0}, 0},
    };
    threeSides();
    for (const auto& c : cases) {
        TrapLine* const side = stand(c.start, c.end);
        side->horizontal = false;
        EXPECT_EQ(search(), c.found) << c.what;
        side->fakeDone = true;
        physics->postSimulate();
    }
}

TEST_F(SquaresTest, WantsTheRailsToOverlapAndToStandApart) {
    const struct {
        const char* what;
        double y, x1, x2;
        std::size_t found;
    } cases[] = {
        {"overlaps", -5, 0, 20, 4},
        {"touches at one value", -5, 5, 20, 0},
        {"a millionth below", 5 - 1e-7, -20, 20, 0},
        {"of no length", -5, 2, 2, 0},
        {"above instead of below", 9, -20, 20, 4},
    };
    for (const auto& c : cases) {
        across(5, -20, 5);
        across(c.y, c.x1, c.x2);
        upright(1, -15, 15);
        upright(4, -15, 15);
        EXPECT_EQ(search(), c.found) << c.what;
        physics->receiveMessage(static_cast<const messages::EndLevel*>(nullptr));
    }
}

TEST_F(SquaresTest, LeavesOutANewbornLineUnlessItHappensToFit) {
    threeSides();
    TrapLine* const born = upright(7, -15, 15);
    born->end = math::zero_point; // not written yet
    EXPECT_EQ(search(), 0U);
    born->end = math::Point(7, 15, 0);
    born->solid = false;
    EXPECT_EQ(search(), 0U) << "not solid";
}

TEST_F(SquaresTest, CatchesByTwoCornersWithinATenth) {
    const struct {
        const char* what;
        math::Point a, b, c;
        bool caught;
    } cases[] = {
        {"all inside", {0, 0, 0}, {1, 0, 0}, {0, 1, 0}, true},
        {"two inside", {0, 0, 0}, {1, 0, 0}, {0, 9, 0}, true},
        {"one inside", {0, 0, 0}, {9, 9, 0}, {0, 9, 0}, false},
        {"two just outside", {7.0999, 0, 0}, {7.0999, 1, 0}, {9, 0, 0}, true},
        {"two farther outside", {7.1001, 0, 0}, {7.1001, 1, 0}, {9, 0, 0}, false},
        {"not a number", {NAN, NAN, 0}, {NAN, 0, 0}, {0, 0, 0}, false},
    };
    for (const auto& c : cases) {
        threeSides();
        upright(7, -15, 15);
        Triangle* const triangle = lay(c.a, c.b, c.c);
        triangle->explodes = false;
        physics->constructSquares();
        physics->testBoxes();
        EXPECT_EQ(triangle->dead, c.caught) << c.what;
        triangle->dead = true;
        physics->receiveMessage(static_cast<const messages::EndLevel*>(nullptr));
        Engine::Instance().cleanupDeadEntities();
    }
}

TEST_F(SquaresTest, PaysOnceForAllThatIsInsideAndTakesTheLinesAway) {
    const Count<SoundSquare> effects;
    threeSides();
    upright(7, -15, 15);
    layAt(0, 0);
    layAt(2, 2);
    layAt(30, 30);
    physics->process();
    EXPECT_EQ(Marvo::Instance().score, scoreOf(5, -5, -3, 7, 2));
    EXPECT_EQ(effects.count, 1);
    EXPECT_TRUE(physics->lines.empty());
    Engine::Instance().cleanupDeadEntities();
    EXPECT_EQ(countOf<Triangle>(), 1);
    EXPECT_EQ(countOf<TrapLine>(), 0);
}

TEST_F(SquaresTest, PaysOneRectangleASubStepInOrderOfFiring) {
    // Two cells side by side, the left one found first: its lines are gone before the next.
    threeSides();
    upright(7, -15, 15);
    upright(12, -15, 15);
    Triangle* const left = layAt(0, 0);
    Triangle* const right = layAt(10, 0);
    physics->process();
    EXPECT_TRUE(left->dead);
    EXPECT_FALSE(right->dead);
    EXPECT_EQ(physics->lines.size(), 1U);
}

TEST_F(SquaresTest, LeavesAnEmptyRectangleStanding) {
    threeSides();
    upright(7, -15, 15);
    run.ticks(5);
    EXPECT_EQ(physics->lines.size(), 4U);
    EXPECT_EQ(Marvo::Instance().score, 0U);
}

TEST_F(SquaresTest, RefusesTheSeventeenthLine) {
    const Count<SoundBad> refused;
    for (int i = 0; i < 16; ++i)
        EXPECT_NE(across(i, 0, 1), nullptr);
    EXPECT_EQ(refused.count, 0);
    EXPECT_EQ(across(16, 0, 1), nullptr);
    EXPECT_EQ(refused.count, 1);
}
