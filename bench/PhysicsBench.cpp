// What a tick costs. The plain loops of tests/support/PlainPhysics stand beside the game's own
// physics, so that one run gives the ratio.

#include "bench/support/Allocations.h"
#include "bench/support/Furniture.h"
#include "tests/support/PlainPhysics.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

using bench::Crowd;

constexpr int worst_lines = 8; // in each direction
constexpr int worst_triangles = 200;

void setAccuracy(Field& field, std::int64_t subSteps) {
    field.physics->stepCount = static_cast<std::uint16_t>(subSteps);
    field.physics->stepDivisor = static_cast<double>(subSteps);
}

/// A rectangle that had paid out would have changed the field that is measured.
void checkStanding(benchmark::State& state, const Field& field, std::size_t lines) {
    if (field.physics->lines.size() != lines) state.SkipWithError("the field has changed");
}

template <class Tick>
void runWorstField(benchmark::State& state, Field& field, Tick tick) {
    Crowd crowd(worst_triangles);
    bench::crossLines(field, worst_lines, worst_lines);
    bench::exposePlayer(field);
    setAccuracy(field, state.range(0));
    for (int i = 0; i < 2; ++i) { // results that are kept from tick to tick are made
        tick();
        crowd.sway();
    }
    const std::uint64_t before = bench::allocations();
    for (auto _ : state) {
        tick();
        crowd.sway();
    }
    state.counters["allocations"] = static_cast<double>(bench::allocations() - before);
    const auto& bodies = field.physics->entities;
    state.counters["stuck"] = static_cast<double>(std::count_if(
        bodies.begin(), bodies.end(), [](const auto* e) { return e->physics->hitLine; }));
    checkStanding(state, field, 2 * worst_lines);
}

void worstFieldPlain(benchmark::State& state) {
    Field field;
    PlainPhysics plain(*field.physics);
    runWorstField(state, field, [&plain] { plain.process(); });
}

void worstField(benchmark::State& state) {
    Field field;
    runWorstField(state, field, [&field] { field.physics->process(); });
}

/// Whole ticks: every entity, every component. Arguments: lines in each direction, triangles,
/// sub-steps, bursts of a hundred rays.
void wholeTick(benchmark::State& state) {
    Field field;
    Crowd crowd(static_cast<int>(state.range(1)));
    const auto lines = static_cast<int>(state.range(0));
    bench::crossLines(field, lines, lines);
    bench::exposePlayer(field);
    bench::addBursts(field, static_cast<int>(state.range(3)));
    setAccuracy(field, state.range(2));
    for (int i = 0; i < 20; ++i) // words and lists reach their full capacity
        field.run.process();
    std::uint64_t allocated = 0; // in ticks in which nothing is born
    for (auto _ : state) {
        bench::quieten(field);
        const std::uint64_t before = bench::allocations();
        const unsigned long nextId = quorva::Engine::Instance().nextId;
        field.run.process();
        if (quorva::Engine::Instance().nextId == nextId) allocated += bench::allocations() - before;
    }
    state.counters["allocations"] = static_cast<double>(allocated);
    checkStanding(state, field, static_cast<std::size_t>(2 * lines));
}

/// The same with 16 lines, and a triangle that comes or goes in every tick.
void changingTick(benchmark::State& state) {
    Field field;
    Crowd crowd(static_cast<int>(state.range(0)));
    bench::crossLines(field, worst_lines, worst_lines);
    bench::exposePlayer(field);
    Triangle* guest = nullptr;
    for (auto _ : state) {
        bench::quieten(field);
        if (guest == nullptr) {
            guest = field.layAt(0, 14);
            guest->explodes = false;
        } else {
            guest->dead = true;
            guest = nullptr;
        }
        field.run.process();
    }
    checkStanding(state, field, 2 * worst_lines);
}

constexpr int ticks_measured = 200; // few enough for the field to stay as it is

BENCHMARK(worstFieldPlain)->Arg(10)->Unit(benchmark::kMicrosecond);
BENCHMARK(worstFieldPlain)->Arg(1000)->Iterations(3)->Unit(benchmark::kMicrosecond);
BENCHMARK(worstField)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);
/// An ordinary field; else a busy one, and how its tick grows with each of its amounts.
void tickFields(benchmark::internal::Benchmark* bench) {
    bench->ArgNames({"lines", "triangles", "substeps", "bursts"});
    bench->Args({3, 25, 10, 2});
    for (const int triangles : {0, 50, 100, 200, 250, 400, 700, 1000})
        bench->Args({8, triangles, 10, 2});
    for (const int lines : {0, 2, 4, 6})
        bench->Args({lines, 200, 10, 2});
    for (const int subSteps : {1, 100, 300, 600, 1000})
        bench->Args({8, 200, subSteps, 2});
    for (const int bursts : {0, 1, 4, 8})
        bench->Args({8, 200, 10, bursts});
}

BENCHMARK(wholeTick)->Apply(tickFields)->Iterations(ticks_measured)->Unit(benchmark::kMicrosecond);
BENCHMARK(changingTick)
    ->Arg(250)
    ->Arg(1000)
    ->Iterations(ticks_measured)
    ->Unit(benchmark::kMicrosecond);

} // namespace
