#pragma once

#include <boost/array.hpp>

namespace quorva::graphics {

/// Red, green, blue and alpha, each from 0 to 1; an alpha of 1 covers what lies below. Values
/// outside are kept, and clamped by GL alone.
class Colour {
public:
    /// In this order, as glColor4fv takes them.
    boost::array<float, 4> components = {{0.0F, 0.0F, 0.0F, 0.0F}};

    Colour() = default;
    constexpr Colour(float red, float green, float blue, float alpha)
        : components{{red, green, blue, alpha}} {}

    /// The four components, valid as long as the colour.
    const float* data() const { return components.data(); }

    float red() const { return components[0]; }
    float green() const { return components[1]; }
    float blue() const { return components[2]; }
    float alpha() const { return components[3]; }
    /// What fades does so by its alpha.
    void setAlpha(float alpha) { components[3] = alpha; }
};

/// The fixed palette. All other colours are resources by name, from data/Colour.kov, so that the
/// look of the game is data.
namespace colours {

constexpr Colour black(0.0F, 0.0F, 0.0F, 1.0F);
constexpr Colour white(1.0F, 1.0F, 1.0F, 1.0F);
constexpr Colour red(1.0F, 0.0F, 0.0F, 1.0F);
constexpr Colour green(0.0F, 1.0F, 0.0F, 1.0F);
constexpr Colour blue(0.0F, 0.0F, 1.0F, 1.0F);
constexpr Colour pink(1.0F, 0.5F, 1.0F, 1.0F);
constexpr Colour orange(1.0F, 0.5F, 0.0F, 1.0F);
constexpr Colour cyan(0.0F, 1.0F, 1.0F, 1.0F);
constexpr Colour yellow(1.0F, 1.0F, 0.0F, 1.0F);

} // namespace colours

} // namespace quorva::graphics
