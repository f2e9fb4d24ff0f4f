// What a frame costs the game's own code: GL's calls go to a counter, fonts to their library.

#include "bench/support/Allocations.h"
#include "bench/support/Furniture.h"
#include "platform/standins/GLRecorder.h"

#include <benchmark/benchmark.h>

namespace {

void busyFrame(benchmark::State& state) {
    Field field;
    bench::furnishFrame(field);
    field.run.frame();
    const std::uint64_t before = bench::allocations();
    const std::uint64_t calls = quorva::standins::glRecorder().total;
    for (auto _ : state)
        field.run.frame();
    const auto frames = static_cast<double>(state.iterations());
    state.counters["gl_calls"] =
        static_cast<double>(quorva::standins::glRecorder().total - calls) / frames;
    state.counters["allocations"] = static_cast<double>(bench::allocations() - before) / frames;
}

BENCHMARK(busyFrame)->Unit(benchmark::kMicrosecond);

} // namespace
