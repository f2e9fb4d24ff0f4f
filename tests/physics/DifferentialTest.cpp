// On any field, the physics must give the same result as its plain loops, to the last bit.

#include "tests/support/FieldTest.h"
#include "tests/support/PlainPhysics.h"

#include "game/PupLine.h"
#include "headless/StateHash.h"

#include <limits>
#include <random>
#include <sstream>

using namespace quorva;
using math::Point;
using namespace quorva::physics;

namespace {

constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

template <class Pairs>
void addPairs(std::ostream& out, const Pairs& pairs) {
    out << "pairs";
    for (const auto& [a, b] : pairs)
        out << ' ' << a->id << '-' << b->id;
    out << '\n';
}

void addSquares(std::ostream& out, const std::vector<PhysicsProcessor::Square>& squares) {
    out << "squares";
    for (const auto& square : squares)
        for (const TrapLine* side : square)
            out << ' ' << side->id;
    out << '\n';
}

/// Everything else that a tick can change, one line for each object.
void addObjects(std::ostream& out, const Field& field) {
    for (const headless::StatePart& part : headless::stateParts())
        out << headless::describe(part) << " state " << part.hash << '\n';
    for (const Entity* e : field.physics->entities) {
        out << e->id << (e->physics->hitLine ? " held, knows" : " knows");
        for (const TriLine& known : e->physics->lines)
            out << ' ' << known.line->id;
        out << '\n';
    }
    out << "score " << Marvo::Instance().score << '\n';
}

/// A field drawn from a seed: coordinates come from a few values that repeat, sit a hair apart or
/// lie just where a rule has its bound.
class FieldMaker {
public:
    FieldMaker(Field& field_, unsigned int seed) : field(field_), random(seed) {}

    void make() {
        numbersFail = chance(8);
        const int lines = below(17), triangles = below(25), bullets = below(4);
        for (int i = 0; i < lines; ++i)
            addLine();
        for (int i = 0; i < triangles; ++i)
            addTriangle();
        for (int i = 0; i < bullets; ++i)
            Engine::Instance().createEntity<Bullet>("Bullet", point(), velocity(1.0));
        for (int i = below(3); i > 0; --i)
            Engine::Instance().createEntity<PupLine>("Pup", point());
        Field::body(field.player).isActive = chance(2);
        Field::body(field.player).position = point();
        field.player->invulnerable = chance(2);
        const std::uint16_t accuracies[] = {1, 2, 10, 10, 10, 37};
        field.physics->stepCount = accuracies[below(6)];
        field.physics->stepDivisor = field.physics->stepCount;
    }

private:
    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned int>(bound)); }
    bool chance(int outOf) { return below(outOf) == 0; }

    double coordinate() {
        if (numbersFail && chance(40)) return not_a_number;
        const double hair[] = {0, 0, 0, 1e-7, -1e-7, 1e-6, -1e-6, 2e-6, 0.1, -0.1, 0.1 + 1e-9};
        const double whole = below(15) - 7;
        if (chance(3)) return whole + below(1000) / 1000.0;
        return whole + hair[below(11)];
    }
    Point point() {
        const double x = coordinate();
        return {x, coordinate(), 0};
    }
    math::Vector velocity(double most) {
        if (chance(6)) return math::zero_vector;
        const auto part = [&] { return chance(4) ? 0.0 : (below(2001) - 1000) / 1000.0 * most; };
        const double x = part();
        return {x, part(), 0};
    }

    void addLine() {
        Point start = point(), end = start;
        const bool horizontal = chance(2);
        (horizontal ? end.x : end.y) = chance(10) ? coordinate() : (chance(2) ? 20.0 : -20.0);
        if (chance(20)) end = point();          // neither across nor upright
        if (chance(20)) end = math::zero_point; // born in this tick
        TrapLine* const line = field.stand(start, end);
        if (line == nullptr) return;
        line->horizontal = chance(30) ? !horizontal : horizontal;
        line->solid = !chance(10);
        line->fakeDone = chance(20);
        if (!chance(10)) return;
        line->bullet = Engine::Instance().createEntity<Bullet>("Bullet", end, velocity(1.0));
        line->bullet->fakeKilled = chance(2);
    }

    void addTriangle() {
        const double size = chance(4) ? 0.05 : 1.5;
        const auto corner = [&] {
            if (numbersFail && chance(60)) return Point(not_a_number, 0, 0);
            if (chance(3)) return Point(below(5) - 2, below(5) - 2, 0); // often meets a bound
            const double x = (below(2001) - 1000) / 1000.0 * size;
            return Point(x, (below(2001) - 1000) / 1000.0 * size, 0);
        };
        const Point a = corner(), b = chance(10) ? a : corner(), c = chance(20) ? b : corner();
        Triangle* const triangle = field.lay(a, b, c);
        Field::body(triangle).position = point();
        Field::body(triangle).velocity = velocity(chance(10) ? 5.0 : 0.3);
        triangle->dead = chance(15);
    }

    Field& field;
    std::mt19937 random;
    bool numbersFail = false;
};

/// As many bodies as before, but not the same.
void swapOneTriangle(Field& field) {
    for (Entity* e : field.physics->entities) {
        auto* const triangle = dynamic_cast<Triangle*>(e);
        if (triangle == nullptr || triangle->dead) continue;
        triangle->explodes = false;
        triangle->dead = true;
        field.layAt(3, 3);
        break;
    }
    Engine::Instance().cleanupDeadEntities();
}

/// Some ticks of this seed's field, by the plain loops or by the physics.
std::string playedOut(unsigned int seed, bool plain) {
    Field field;
    FieldMaker(field, seed).make();
    PhysicsProcessor& processor = *field.physics;
    PlainPhysics loops(processor);
    const std::tuple<ShapeType, ShapeType, PairList*> kinds[] = {
        {shape_box, shape_box, &processor.aabbAabbTests},
        {shape_box, shape_point, &processor.aabbPointTests},
        {shape_box, shape_triangle, &processor.aabbTriangleTests},
        {shape_triangle, shape_triangle, &processor.triangleTriangleTests},
        {shape_triangle, shape_point, &processor.trianglePointTests},
        {shape_point, shape_point, &processor.pointPointTests}};
    std::ostringstream out;
    for (int tick = 0; tick < 3; ++tick) {
        if (plain)
            loops.process();
        else
            processor.process();
        out << "tick " << tick << '\n';
        for (const auto& [first, second, fast] : kinds)
            if (plain)
                addPairs(out, loops.pairs(first, second));
            else
                addPairs(out, *fast);
        addSquares(out, plain ? loops.squares : processor.squares);
        addObjects(out, field);
        field.run.frame();
        swapOneTriangle(field);
    }
    return out.str();
}

} // namespace

TEST(Differential, PhysicsAndPlainLoopsAgreeOnEveryField) {
    int caught = 0, stopped = 0;
    for (unsigned int seed = 0; seed < 2000; ++seed) {
        const std::string plain = playedOut(seed, true);
        ASSERT_EQ(playedOut(seed, false), plain) << "seed " << seed;
        caught += plain.find("score 0\n") == std::string::npos;
        stopped += plain.find(" held") != std::string::npos;
    }
    EXPECT_GT(caught, 100) << "the fields are too tame";
    EXPECT_GT(stopped, 500) << "the fields are too tame";
}
