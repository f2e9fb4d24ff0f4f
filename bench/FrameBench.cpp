// What a frame costs the game's own code: GL's calls go to a counter, fonts to their library.

#include "bench/support/Allocations.h"
#include "bench/support/Furniture.h"
#include "platform/headless/GLRecorder.h"

#include "game/Border.h"
#include "game/PowerUpLines.h"

#include <benchmark/benchmark.h>

namespace {

/// All that a field can hold at once: 200 triangles, 16 lines, two bursts of 100 rays, the border
/// lit all round, the display.
void furnish(Field& field) {
    const bench::Crowd crowd(200);
    bench::crossLines(field, 8, 8);
    bench::exposePlayer(field);
    bench::addBursts(field);
    for (int i = 0; i < 60; ++i) { // beyond each edge, where the border shows them
        const double along = i - 30.0;
        const quorva::math::Point places[] = {
            {along, 17, 0}, {along, -17, 0}, {22, along, 0}, {-22, along, 0}};
        quorva::Engine::Instance().createEntity<Triangle>("Triangle", places[i % 4], 0.0, 1.0);
    }
    field.run.tick();
}

void busyFrame(benchmark::State& state) {
    Field field;
    furnish(field);
    field.run.frame();
    const std::uint64_t before = bench::allocations();
    const std::uint64_t calls = quorva::headless::glRecorder().total;
    for (auto _ : state)
        field.run.frame();
    const auto frames = static_cast<double>(state.iterations());
    state.counters["gl_calls"] =
        static_cast<double>(quorva::headless::glRecorder().total - calls) / frames;
    state.counters["allocations"] = static_cast<double>(bench::allocations() - before) / frames;
}

BENCHMARK(busyFrame)->Unit(benchmark::kMicrosecond);

} // namespace
