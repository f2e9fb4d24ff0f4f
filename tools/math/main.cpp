// Compares the game's elementary functions with MPFR's, which are rounded correctly:
//   kov_elementary [COUNT [SEARCHES [SEED]]]
// COUNT random arguments for each function, of play's ranges and of all doubles each (10,000,000);
// then SEARCHES runs of neighbours (100,000), in which the one is looked for whose result lies
// nearest to the middle between two doubles: it is compared too, and the hardest are printed.
// Exit code 1 if any result differs.

#include "tools/math/HardCases.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace quorva::tests;
using namespace quorva::tools;

namespace {

constexpr std::size_t kept_cases = 8;  ///< of each function
constexpr double searched_range = 4.0; ///< at most: a sine bends too much between wide arguments

long differing = 0;

void compare(const ElementaryFunction& function, double x, double y) {
    const double own = function.own(x, y), reference = function.reference(x, y);
    if (isSame(own, reference)) return;
    ++differing;
    std::printf("%s(%a, %a): %a in place of %a\n", function.name, x, y, own, reference);
}

void compareMany(const ElementaryFunction& function, long count, std::mt19937_64& random) {
    for (long i = 0; i < count; ++i) {
        const double x = within(function.range, random);
        compare(function, x, within(function.range, random));
    }
    for (long i = 0; i < count; ++i) {
        const double x = anyDouble(random);
        compare(function, x, anyDouble(random));
    }
}

void searchHard(const ElementaryFunction& function, long searches, std::mt19937_64& random) {
    std::vector<HardCase> found;
    for (long i = 0; i < searches; ++i) {
        const double x = within(std::min(function.range, searched_range), random);
        const double y = within(function.range, random);
        found.push_back(hardestNear(function, x, y));
        compare(function, found.back().x, y);
        std::sort(found.begin(), found.end(),
                  [](const HardCase& a, const HardCase& b) { return a.distance < b.distance; });
        if (found.size() > kept_cases) found.pop_back();
    }
    for (const HardCase& hard : found)
        std::printf("%s %a %a %.3g\n", function.name, hard.x, hard.y, hard.distance);
}

long argument(int argc, char* argv[], int index, long otherwise) {
    return argc > index ? std::atol(argv[index]) : otherwise;
}

} // namespace

int main(int argc, char* argv[]) {
    const long count = argument(argc, argv, 1, 10000000);
    const long searches = argument(argc, argv, 2, 100000);
    std::mt19937_64 random(static_cast<unsigned long>(argument(argc, argv, 3, 1)));
    for (const ElementaryFunction& function : elementary_functions) {
        const long before = differing;
        compareMany(function, count, random);
        searchHard(function, searches, random);
        std::printf("%s: 2 x %ld arguments and %ld runs of 65,536 neighbours: %ld differ\n",
                    function.name, count, searches, differing - before);
        std::fflush(stdout);
    }
    return differing == 0 ? 0 : 1;
}
