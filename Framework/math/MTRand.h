#pragma once

namespace quorva::math {

/// The one stream of random words that the whole game shares: every object of this class draws
/// from it, so the order of draws is part of the game.
/// MT19937, Matsumoto and Nishimura 1998, ACM TOMACS 8(1).
class MTRand_int32 {
public:
    /// Seeds the stream with 5489 if no object has been made before.
    MTRand_int32();

    void seed(unsigned long value);                     ///< the low 32 bits count
    void seed(const unsigned long* key, int keyLength); ///< in words; no effect below 1 or for null

    /// Next word, uniform on [0, 2^32). Never fails.
    unsigned long operator()();

    void gen_state(); ///< makes the next 624 words

    static constexpr int state_size = 624; ///< words

    static unsigned long state[state_size];
    static int p;     ///< index of the next word of `state` to hand out
    static bool init; ///< whether the stream has been seeded
};

/// Next fraction in [0, 1), one draw: a word times 2 to the -32.
inline double randomFraction(MTRand_int32& random) {
    constexpr double word_to_fraction = 2.3283064365386963e-10; // exactly 2^-32
    return static_cast<double>(random()) * word_to_fraction;
}

} // namespace quorva::math
