#pragma once

namespace quorva::math {

// The elementary functions that the game calls, the same to the last bit on every machine: the
// value of mathematics, rounded once to the nearest double, ties to even. A C library's own differ
// between libraries, and within one by processor. Angles are in radians, arguments may be any
// doubles; zeros, infinities and not-a-numbers give what Annex F of the C standard says.

double sin(double x); ///< not-a-number for infinities
double cos(double x); ///< not-a-number for infinities

struct SinCos {
    double sin, cos;
};
SinCos sinCos(double x); ///< both, for little more than one costs

double atan(double x);            ///< [-pi/2, pi/2]
double atan2(double y, double x); ///< [-pi, pi], the direction of (x, y) counted from +x to +y
double asin(double x);            ///< [-pi/2, pi/2]; not-a-number beyond -1 and 1
double acos(double x);            ///< [0, pi]; not-a-number beyond -1 and 1

} // namespace quorva::math
