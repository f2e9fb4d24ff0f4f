// On any field, the physics must give the same result as its plain loops, to the last bit: alone,
// and in whole ticks of play, in which all that it reads changes.

#include "tests/support/FieldTest.h"
#include "tests/support/PlainPhysics.h"

#include "game/PupLine.h"
#include "headless/StateHash.h"

#include <cmath>
#include <optional>
#include <random>
#include <sstream>

using namespace quorva;
using math::Point;
using namespace quorva::physics;

namespace {

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
    if (Marvo::Instance().score != 0) out << "scored " << Marvo::Instance().score << '\n';
}

/// A field drawn from a seed: coordinates come from a few values that repeat, sit a hair apart or
/// lie just where a rule has its bound.
class FieldMaker {
public:
    FieldMaker(Field& field_, unsigned int seed) : field(field_), random(seed) {}

    void make() {
        numbersFail = chance(8);
        lively = chance(4);
        furnish();
    }

    /// What may happen before a tick of play.
    void act() {
        if (chance(3)) shoot();
        if (chance(60)) publish(PlayerDead());
        if (chance(40)) publish(messages::EndLevel());
        if (field.run.game().level != nullptr) return;
        field.startLevel();
        furnish();
    }

    bool lively = false; ///< whole ticks, of the entities too

private:
    void furnish() {
        const int lines = lively ? 10 + below(7) : below(17), triangles = below(25),
                  bullets = below(4);
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
        field.physics->stepCount = chance(60) ? 250 : accuracies[below(6)];
        field.physics->stepDivisor = field.physics->stepCount;
        Marvo::Instance().lives = static_cast<std::int16_t>(below(2));
    }

    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned int>(bound)); }
    bool chance(int outOf) { return below(outOf) == 0; }

    double coordinate() {
        if (numbersFail && chance(40)) return NAN;
        const double hair[] = {0,    0,   0,    1e-7,       -1e-7, 1e-6,      -1e-6,
                               2e-6, 0.1, -0.1, 0.1 + 1e-9, 0.2,   0.2 - 1e-7};
        const double whole = below(15) - 7;
        if (chance(3)) return whole + below(1000) / 1000.0;
        return whole + hair[below(13)];
    }
    Point point() {
        const double x = coordinate();
        return {x, coordinate(), 0};
    }
    math::Vector velocity(double most) {
        if (chance(6)) return math::zero_vector;
        if (chance(20)) return {1e-7, 0, 0}; // stands, after a last tiny move
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
        line->lifeTicks = static_cast<std::uint16_t>(1 + (chance(4) ? below(9) : 70 + below(9)));
        if (!chance(10)) return;
        line->bullet = Engine::Instance().createEntity<Bullet>("Bullet", end, velocity(1.0));
        line->bullet->fakeKilled = chance(2);
    }

    /// A line behind a bullet that flies.
    void shoot() {
        PhysicsLineMessage message;
        message.position = point();
        message.horizontal = chance(2);
        const math::Vector way = message.horizontal ? math::x_axis : math::y_axis;
        message.bullet = Engine::Instance().createEntity<Bullet>("Bullet", message.position, way);
        publish(message);
    }

    void addTriangle() {
        const double size = chance(4) ? 0.05 : 1.5;
        const auto corner = [&] {
            if (numbersFail && chance(60)) return Point(NAN, 0, 0);
            if (chance(3)) return Point(below(5) - 2, below(5) - 2, 0); // often meets a bound
            const double x = (below(2001) - 1000) / 1000.0 * size;
            return Point(x, (below(2001) - 1000) / 1000.0 * size, 0);
        };
        const Point a = corner(), b = chance(10) ? a : corner(), c = chance(20) ? b : corner();
        Triangle* const triangle = field.lay(a, b, c);
        Field::body(triangle).position = point();
        Field::body(triangle).velocity = velocity(chance(10) ? 5.0 : 0.3);
        Field::body(triangle).isStatic = chance(12);
        triangle->dead = chance(15);
        if (!lively) return;
        triangle->modelA = a;
        triangle->modelB = b;
        triangle->modelC = c;
        triangle->state = static_cast<Triangle::State>(below(4));
        triangle->pauseTicks = static_cast<std::uint16_t>(1 + below(16));
        triangle->contractTicks = triangle->noseTarget = static_cast<std::uint16_t>(1 + below(9));
    }

    Field& field;
    std::mt19937 random;
    bool numbersFail = false;
};

/// Some ticks of this seed's field, by the plain loops or by the physics.
std::string playedOut(unsigned int seed, bool plain) {
    Field field;
    PhysicsProcessor& processor = *field.physics;
    std::optional<PlainPhysics> loops;
    if (plain) loops.emplace(processor);
    const Count<SoundBad> refused;
    const Count<SoundBuletHit> hits;
    FieldMaker maker(field, seed);
    maker.make();
    std::ostringstream out;
    for (int tick = 0; tick < (maker.lively ? 15 : 3); ++tick) {
        if (maker.lively) {
            maker.act();
            loops ? loops->tick(field.run) : field.run.process();
        } else {
            loops ? loops->process() : processor.process();
        }
        out << "tick " << tick << ", " << processor.stepCount << " sub-steps\n";
        addSquares(out, plain ? loops->squares : processor.squares);
        addObjects(out, field);
        if (refused.count != 0) out << "refused " << refused.count << '\n';
        out << "hits " << hits.count << '\n';
        field.run.frame();
        if (field.run.game().level == nullptr) out << "level ended\n";
    }
    return out.str();
}

} // namespace

TEST(Differential, PhysicsAndPlainLoopsAgreeOnEveryField) {
    struct Sign {
        const char* text;
        int least;
        int fields = 0; ///< that show it
    } signs[] = {
        {" held", 500}, {"scored", 80}, {" ended", 10}, {"250 sub-steps", 15}, {"refused ", 50}};
    for (unsigned int seed = 0; seed < 2000; ++seed) {
        const std::string plain = playedOut(seed, true);
        ASSERT_EQ(playedOut(seed, false), plain) << "seed " << seed;
        for (Sign& sign : signs)
            sign.fields += plain.find(sign.text) != std::string::npos;
    }
    for (const Sign& sign : signs)
        EXPECT_GT(sign.fields, sign.least) << "too tame:" << sign.text;
}
