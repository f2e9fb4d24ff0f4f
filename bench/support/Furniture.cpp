#include "bench/support/Furniture.h"

#include "Framework/Managers/ColourManager.h"
#include "game/PowerUpLines.h"

#include <random>

using namespace quorva;

namespace bench {

namespace {

constexpr double half_width = 20.0, half_height = 15.0; // of a 4:3 field, world units
constexpr double line_gap = 2.0;                        // world units
constexpr double crowd_from = 7.5;                      // x, past the outermost upright line
constexpr double crowd_speed = 0.1;                     // world units per tick
constexpr std::uint16_t line_life = 60000;              // ticks
constexpr unsigned int burst_growth = 1500;             // ticks until a burst is full

/// The coordinate of the i-th of `count` lines, centred on the origin.
double coordinateOf(int i, int count) {
    return (i - (count - 1) / 2.0) * line_gap;
}

} // namespace

void quieten(Field& field) {
    field.level->ticksSinceSpawn = field.level->ticksSinceBomb = 0;
    field.level->trianglesSincePowerUp = 0;
    field.level->tickCount = 0;
}

void exposePlayer(Field& field) {
    Field::body(field.player).isActive = true;
    field.player->invulnerable = true;
    field.player->invulnerableTicks = line_life;
}

void crossLines(Field& field, int across, int upright) {
    for (int i = 0; i < across; ++i)
        field.across(coordinateOf(i, across), -half_width, half_width)->lifeTicks = line_life;
    for (int i = 0; i < upright; ++i)
        field.upright(coordinateOf(i, upright), -half_height, half_height)->lifeTicks = line_life;
    Engine::Instance().cleanupDeadEntities();
}

void addBursts(Field& field, int count) {
    const auto& colour = ColourManager::Instance().getV("Line Powerup");
    std::vector<PowerUpLines*> bursts;
    for (int i = 0; i < count; ++i)
        bursts.push_back(Engine::Instance().createEntity<PowerUpLines>("Burst", math::Point(),
                                                                       &colour, i % 2 == 0));
    for (unsigned int tick = 0; tick < burst_growth; ++tick)
        for (PowerUpLines* burst : bursts)
            burst->process();
    quieten(field);
}

Crowd::Crowd(int count) {
    std::mt19937 random(1);
    const auto share = [&random] { return random() / 4294967296.0; };
    for (int i = 0; i < count; ++i) {
        const double x = crowd_from + 0.7 + share() * (half_width - crowd_from - 2.0);
        const double y = (share() * 2.0 - 1.0) * (half_height - 1.0);
        const math::Point point(i % 2 == 0 ? x : -x, y, 0);
        auto* const triangle =
            Engine::Instance().createEntity<Triangle>("Triangle", point, 0.0, 1.0);
        Field::body(triangle).velocity = math::Vector(0.0, crowd_speed, 0.0);
        triangles.push_back(triangle);
    }
}

void Crowd::sway() {
    for (Triangle* triangle : triangles)
        Field::body(triangle).velocity = Field::body(triangle).velocity * -1.0;
}

void furnishFrame(Field& field, const Furniture& furniture) {
    const Crowd crowd(furniture.triangles);
    crossLines(field, furniture.linesEachWay, furniture.linesEachWay);
    exposePlayer(field);
    addBursts(field, furniture.bursts);
    for (int i = 0; i < 60; ++i) { // beyond each edge in turn
        const double along = i - 30.0;
        const math::Point points[] = {
            {along, 17, 0}, {along, -17, 0}, {22, along, 0}, {-22, along, 0}};
        Engine::Instance().createEntity<Triangle>("Triangle", points[i % 4], 0.0, 1.0);
    }
    field.run.tick();
}

} // namespace bench
