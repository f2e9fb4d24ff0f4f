#include "headless/Sandbox.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const quorva::headless::Sandbox sandbox(KOV_SOURCE_DIR);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
