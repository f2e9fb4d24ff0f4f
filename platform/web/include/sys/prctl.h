#pragma once

// Stands in for the C library's, which not every version of Emscripten has.

constexpr int PR_SET_PDEATHSIG = 1;

extern "C" int prctl(int option, ...);
