#pragma once

namespace quorva::math::exact {

// The elementary functions by way of numbers so long that the rounding is never in doubt: some
// microseconds each, for the arguments that the fast way leaves open.

double sin(double x); ///< of a finite number that isn't 0
double cos(double x); ///< of a finite number that isn't 0

/// Of the direction of (x, y), in [0, pi], both finite and y above 0, x not 0.
double direction(double y, double x);

double asin(double x); ///< of a number between 0 and 1, these left out
double acos(double x); ///< of a number between -1 and 1, these and 0 left out

} // namespace quorva::math::exact
