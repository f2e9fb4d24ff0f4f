#include "Framework/Graphics/Colour.h"
#include "Framework/Managers/ResourceTraits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <map>
#include <string>

using quorva::graphics::Colour;

namespace {

using Triple = std::array<double, 3>; // RGB, linear RGB or Lab

constexpr double field_grey = 0.105882; // what the screen is cleared with

/// What a colour looks like over an opaque one.
Triple over(const Colour& colour, const Triple& under) {
    Triple seen;
    for (std::size_t i = 0; i < 3; ++i)
        seen[i] = under[i] + (colour.components[i] - under[i]) * colour.alpha();
    return seen;
}

Triple linear(Triple rgb) {
    for (double& v : rgb)
        v = v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    return rgb;
}

Triple times(const double (&m)[3][3], const Triple& v) {
    Triple product;
    for (std::size_t i = 0; i < 3; ++i)
        product[i] = m[i][0] * v[0] + m[i][1] * v[1] + m[i][2] * v[2];
    return product;
}

/// CIE L*a*b* under D65 of a colour in linear sRGB.
Triple lab(const Triple& rgb) {
    const double to_xyz[3][3] = {{0.4124564, 0.3575761, 0.1804375},
                                 {0.2126729, 0.7151522, 0.0721750},
                                 {0.0193339, 0.1191920, 0.9503041}};
    const double white[] = {0.95047, 1.0, 1.08883};
    Triple f = times(to_xyz, rgb);
    for (std::size_t i = 0; i < 3; ++i) {
        const double t = f[i] / white[i];
        f[i] = t > 216.0 / 24389.0 ? std::cbrt(t) : (24389.0 / 27.0 * t + 16.0) / 116.0;
    }
    return {116.0 * f[1] - 16.0, 500.0 * (f[0] - f[1]), 200.0 * (f[1] - f[2])};
}

/// CIE94 of two colours in linear RGB.
double difference(const Triple& one, const Triple& two) {
    const Triple a = lab(one), b = lab(two);
    const double chroma = std::hypot(a[1], a[2]), dc = chroma - std::hypot(b[1], b[2]);
    const double dh2 = std::pow(a[1] - b[1], 2) + std::pow(a[2] - b[2], 2) - dc * dc;
    const double dh = std::sqrt(std::max(dh2, 0.0)); // rounding may leave a hair less
    return std::hypot(a[0] - b[0], dc / (1.0 + 0.045 * chroma), dh / (1.0 + 0.015 * chroma));
}

/// How an eye sees linear RGB: Machado, Oliveira and Fernandes (2009), full severity.
const struct Eye {
    const char* name;
    double least; ///< difference between any two roles
    double matrix[3][3];
} eyes[] = {
    {"common", 16.5, {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}},
    {"protanopic",
     13.0,
     {{0.152286, 1.052583, -0.204868},
      {0.114503, 0.786281, 0.099216},
      {-0.003882, -0.048116, 1.051998}}},
    {"deuteranopic",
     10.5,
     {{0.367322, 0.860646, -0.227968},
      {0.280085, 0.672501, 0.047413},
      {-0.011820, 0.042940, 0.968881}}},
    {"tritanopic",
     10.5,
     {{1.255528, -0.076749, -0.178779},
      {-0.078411, 0.930809, 0.147602},
      {0.004733, 0.691367, 0.303900}}},
};

/// @return linear RGB
Triple seenBy(const Eye& eye, const Triple& rgb) {
    Triple seen = times(eye.matrix, linear(rgb));
    for (double& v : seen)
        v = std::clamp(v, 0.0, 1.0);
    return seen;
}

/// Luminance of the first over that of the second, as WCAG 2 has it: below 1 if it is darker.
double contrast(const Triple& one, const Triple& two, const Eye& eye = eyes[0]) {
    const auto luminance = [&eye](const Triple& rgb) {
        const Triple v = seenBy(eye, rgb);
        return 0.2126 * v[0] + 0.7152 * v[1] + 0.0722 * v[2] + 0.05;
    };
    return luminance(one) / luminance(two);
}

// All of these can be on the field at once, so every two of them meet.
const char* const roles[] = {
    "Player Colour", "Badguy Colour",          "Badguy Stuck Colour",     "Line Colour",
    "Border Colour", "Clear Bomb Line Colour", "Immune Bomb Line Colour", "Square Line Effect",
    "Score Font",    "PUP Line Colour",        "PUP Cooldown Colour"};
const char* const* const rays = std::end(roles) - 2; ///< the roles from here throw rays

/// Contrasts as bounds.
struct File {
    const char* path;
    double weakestRole; ///< of any to the field, for every eye, at least
    double rays;        ///< to the field, at most
};

class Palette : public testing::TestWithParam<File> {
protected:
    Palette() {
        std::ifstream file(GetParam().path);
        std::string line, name;
        for (Colour colour; std::getline(file, line);)
            if (quorva::resources::ResourceTraits<Colour>::parseLine(line, name, colour))
                colours[name] = colour;
    }
    const Colour& colour(const std::string& name) {
        EXPECT_EQ(colours.count(name), 1U) << name << " is missing";
        return colours[name];
    }
    Triple onField(const std::string& name) { return over(colour(name), field); }

    const Triple field = {field_grey, field_grey, field_grey};
    std::map<std::string, Colour> colours;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Files, Palette,
                         testing::Values(File{"data/Colour.kov", 3.5, 2.2},
                                         File{"data/Colour-contrast.kov", 4.5, 2.6}),
                         [](const auto& file) { return file.index == 0 ? "Usual" : "Contrast"; });

TEST_P(Palette, OnTheFieldAllDifferForEveryEyeAndFreeTrianglesDrawItBeforeHeldOnes) {
    for (const Eye& eye : eyes) {
        const std::string who = std::string(" to the ") + eye.name + " eye";
        for (const auto* one = std::begin(roles); one != std::end(roles); ++one) {
            for (const auto* two = std::begin(roles); two != one; ++two)
                EXPECT_GE(difference(seenBy(eye, onField(*one)), seenBy(eye, onField(*two))),
                          eye.least)
                    << *one << " and " << *two << who;
            if (one < rays) {
                EXPECT_GE(contrast(onField(*one), field, eye), GetParam().weakestRole)
                    << *one << who;
            }
        }
        EXPECT_GE(contrast(onField("Badguy Colour"), onField("Badguy Stuck Colour"), eye), 1.5)
            << who;
    }
}

// Where rays cross, the first that is drawn hides the others: so this is a pixel under any number
// of them. Only the circle that they come from shines through.
TEST_P(Palette, RaysAreAVeil) {
    for (const auto* ray = rays; ray != std::end(roles); ++ray) {
        const Triple veil = onField(*ray);
        EXPECT_LE(contrast(veil, field), GetParam().rays) << *ray;
        EXPECT_GE(contrast(over(colour(*ray), veil), veil), 1.55) << "the circle of " << *ray;
        for (const auto* role = std::begin(roles); role != rays; ++role)
            EXPECT_GE(contrast(onField(*role), veil), 1.9) << *role << " before " << *ray;
        EXPECT_GE(contrast(onField("Badguy Colour"), veil), 3.3) << *ray;
    }
}

TEST_P(Palette, TextIsReadableAndTheSelectionStandsOut) {
    const struct {
        const char* backdrop; ///< nullptr: the bare field
        std::initializer_list<const char*> texts;
    } pages[] = {
        {nullptr, {"Score Font"}},
        {"Pause BG", {"Score Font"}},
        {"Main Menu Background",
         {"Main Menu Word On", "Main Menu Word Off", "Menu Title", "Logo Colour"}},
        {"Config Menu Colour",
         {"Main Menu Word On", "Main Menu Word Off", "Menu Title", "Menu Selecting"}},
        {"Console Bar", {"Console Bar Outline"}},
    };
    for (const auto& page : pages) {
        const Triple ground = page.backdrop != nullptr ? over(colour(page.backdrop), field) : field;
        for (const char* text : page.texts)
            EXPECT_GE(contrast(over(colour(text), ground), ground), 7.0) << text;
    }
    const Triple ground = over(colour("Main Menu Background"), field);
    EXPECT_GE(contrast(over(colour("Main Menu Word On"), ground),
                       over(colour("Main Menu Word Off"), ground)),
              2.0);
}
