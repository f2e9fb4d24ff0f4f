#include "Framework/math/MTRand.h"

#include <algorithm>

namespace quorva::math {

unsigned long MTRand_int32::state[MTRand_int32::state_size];
int MTRand_int32::p = 0;
bool MTRand_int32::init = false;

namespace {

constexpr unsigned long word_mask = 0xffffffffUL;
constexpr unsigned long default_seed = 5489UL;
constexpr int shift_size = 397; // the recurrence's middle word

unsigned long twist(unsigned long high, unsigned long low) {
    const unsigned long mixed = (high & 0x80000000UL) | (low & 0x7fffffffUL);
    return (mixed >> 1) ^ ((low & 1UL) != 0 ? 0x9908b0dfUL : 0UL);
}

} // namespace

MTRand_int32::MTRand_int32() {
    if (!init) seed(default_seed);
    init = true;
}

void MTRand_int32::seed(unsigned long value) {
    state[0] = value & word_mask;
    for (int i = 1; i < state_size; ++i) {
        const unsigned long previous = state[i - 1] ^ (state[i - 1] >> 30);
        state[i] = (1812433253UL * previous + static_cast<unsigned long>(i)) & word_mask;
    }
    p = state_size;
}

void MTRand_int32::seed(const unsigned long* key, int keyLength) {
    if (key == nullptr || keyLength < 1) return;
    seed(19650218UL);
    int i = 1;
    const auto step = [&i] {
        if (++i == state_size) {
            state[0] = state[state_size - 1];
            i = 1;
        }
    };
    const auto mixed = [&i](unsigned long factor) {
        return state[i] ^ ((state[i - 1] ^ (state[i - 1] >> 30)) * factor);
    };
    for (int k = 0, rounds = std::max(state_size, keyLength); k < rounds; ++k) {
        const int j = k % keyLength;
        state[i] = (mixed(1664525UL) + key[j] + static_cast<unsigned long>(j)) & word_mask;
        step();
    }
    for (int k = 1; k < state_size; ++k) {
        state[i] = (mixed(1566083941UL) - static_cast<unsigned long>(i)) & word_mask;
        step();
    }
    state[0] = 0x80000000UL;
    p = state_size;
}

void MTRand_int32::gen_state() {
    for (int i = 0; i < state_size; ++i)
        state[i] =
            state[(i + shift_size) % state_size] ^ twist(state[i], state[(i + 1) % state_size]);
    p = 0;
}

unsigned long MTRand_int32::operator()() {
    if (p == state_size) gen_state();
    unsigned long word = state[p++];
    word ^= word >> 11;
    word ^= (word << 7) & 0x9d2c5680UL;
    word ^= (word << 15) & 0xefc60000UL;
    word ^= word >> 18;
    return word & word_mask;
}

} // namespace quorva::math
