// What the elementary functions cost, beside those of the C library, over arguments as in play.

#include "Framework/math/Elementary.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <random>

namespace {

namespace math = quorva::math;

using Unary = double (*)(double);

/// The whole of `count` calls; the arguments lie up to `range` from 0.
template <class Call>
void run(benchmark::State& state, double range, Call call) {
    constexpr std::size_t count = 1024;
    std::array<double, count> arguments;
    std::mt19937_64 random(1);
    for (double& x : arguments)
        x = std::uniform_real_distribution<double>(-range, range)(random);
    for (auto _ : state)
        for (const double x : arguments)
            benchmark::DoNotOptimize(call(x));
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * count));
}

void add(const char* name, double range, Unary own, Unary library) {
    const std::string whole = std::string("elementary/") + name;
    const auto bench = [range](benchmark::State& state, Unary call) { run(state, range, call); };
    benchmark::RegisterBenchmark(whole.c_str(), bench, own);
    benchmark::RegisterBenchmark((whole + "/library").c_str(), bench, library);
}

const bool added = [] {
    constexpr double angles = 10.0, ratios = 10.0, cosines = 1.0, other_leg = 3.0;
    add("sin", angles, math::sin, std::sin);
    add("cos", angles, math::cos, std::cos);
    add("atan", ratios, math::atan, std::atan);
    add(
        "atan2", ratios, [](double y) { return math::atan2(y, other_leg); },
        [](double y) { return std::atan2(y, other_leg); });
    add("acos", cosines, math::acos, std::acos);
    add("asin", cosines, math::asin, std::asin);
    return true;
}();

} // namespace
