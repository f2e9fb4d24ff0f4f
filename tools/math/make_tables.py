#!/usr/bin/env python3
"""Writes Framework/math/ElementaryTables.h, from nothing but whole numbers.

    tools/math/make_tables.py > Framework/math/ElementaryTables.h
"""

from fractions import Fraction

BITS = 2400  # of all fixed-point numbers here: more than are printed
ONE = 1 << BITS


def arctangent(x):
    """Of a fixed-point number from 0 to 1."""
    if x > ONE // 8:  # atan x = 2 atan(x / (1 + sqrt(1 + x^2)))
        root = int_sqrt(ONE * ONE + x * x)
        return 2 * arctangent(x * ONE // (ONE + root))
    square, total, power, n = x * x >> BITS, 0, x, 0
    while power:
        total += (power // (2 * n + 1)) * (-1) ** n
        power, n = power * square >> BITS, n + 1
    return total


def int_sqrt(n):
    x = 1 << (n.bit_length() + 1) // 2
    while True:  # Newton's, from above
        y = (x + n // x) // 2
        if y >= x:
            return x
        x = y


def sine(x):
    square, total, term, n = x * x >> BITS, 0, x, 1
    while term:
        total += term if n % 4 == 1 else -term
        term, n = (term * square >> BITS) // ((n + 1) * (n + 2)), n + 2
    return total


PI = 4 * (4 * arctangent(ONE // 5) - arctangent(ONE // 239))  # Machin 1706


def pair(x):
    """A fixed-point number as the sum of two doubles, each rounded to nearest."""
    high = Fraction(x, ONE)
    first = float(high)
    return first, float(high - Fraction(first))


def literal(value):
    if value == 0.0:
        return "0.0"
    mantissa, exponent = value.hex().split("p")
    mantissa = mantissa.rstrip("0") if "." in mantissa else mantissa
    return mantissa.rstrip(".") + "p" + exponent.replace("+", "")


def rows(values):
    lines = ["    {%s, %s}," % tuple(map(literal, pair(v))) for v in values]
    return "\n".join(lines)


def piece(x, bits):
    """The first so many bits of a fixed-point number, and the rest."""
    low = x.bit_length() - bits
    first = x >> low << low
    return float(Fraction(first, ONE)), x - first


def two_over_pi(words, bits=2048):
    value = (2 * ONE * ONE // PI) >> (BITS - bits)
    text = "%0*x" % (bits // 4, value)
    width = len(text) // words
    return "\n".join('    "%s"' % text[i:i + width] for i in range(0, len(text), width))


def main():
    step1, rest = piece(PI // 128, 33)
    step2, rest = piece(rest, 33)
    step3 = float(Fraction(rest, ONE))
    print("""#pragma once

#include "Framework/math/DoubleDouble.h"

// Written by tools/math/make_tables.py; the tests compute each value anew.
// clang-format off

namespace quorva::math {

constexpr int sine_steps = 64; ///< in a right angle

/// sin(i pi / 128).
constexpr DoubleDouble sines[sine_steps + 1] = {
%s
};

/// pi / 128 in three pieces. The first two have 33 bits, so that their products with a whole
/// number below 2^20 are exact; the third is rounded, and the sum is off by less than 2^-125.
constexpr double step_pieces[] = {%s, %s, %s};
constexpr double steps_per_radian = %s; ///< 128 / pi

constexpr int tangent_steps = 64; ///< from 0 to 1

/// atan(i / 64).
constexpr DoubleDouble arctangents[tangent_steps + 1] = {
%s
};

constexpr DoubleDouble half_pi = {%s, %s};
constexpr DoubleDouble whole_pi = {%s, %s};

constexpr DoubleDouble minus_sixth = {%s, %s};
constexpr DoubleDouble minus_third = {%s, %s};

constexpr int two_over_pi_bits = 2048; ///< behind the point: enough for 2^1024 radians

/// 2 / pi, truncated.
constexpr char two_over_pi_digits[] = "0x"
%s;

} // namespace quorva::math

// clang-format on""" % (
        rows(sine(PI * i // 128) for i in range(65)),
        literal(step1), literal(step2), literal(step3),
        literal(float(Fraction(128 * ONE, PI))),
        rows(arctangent(ONE * i // 64) for i in range(65)),
        *map(literal, pair(PI // 2)), *map(literal, pair(PI)),
        *map(literal, pair(-ONE // 6)), *map(literal, pair(-ONE // 3)),
        two_over_pi(8)))


main()
