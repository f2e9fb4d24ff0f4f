#include "Framework/Graphics/TGA.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

using quorva::graphics::TGA;

namespace {

constexpr const char* path = "image.tga";
using Bytes = std::vector<int>;

/// A header with the fields that matter here; 2 by 2 pixels unless told otherwise.
struct Header {
    int type = 2, bits = 24, width = 2, height = 2, descriptor = 0x20;
    int idLength = 0, mapType = 0, mapFirst = 0, mapLength = 0, mapBits = 0, x = 0, y = 0;
};

Bytes file(const Header& h, const Bytes& data) {
    Bytes bytes = {h.idLength,      h.mapType,         h.type,           h.mapFirst & 255,
                   h.mapFirst >> 8, h.mapLength & 255, h.mapLength >> 8, h.mapBits,
                   h.x & 255,       h.x >> 8,          h.y & 255,        h.y >> 8,
                   h.width & 255,   h.width >> 8,      h.height & 255,   h.height >> 8,
                   h.bits,          h.descriptor};
    bytes.insert(bytes.end(), data.begin(), data.end());
    return bytes;
}

int load(const Bytes& bytes, TGA& image) {
    std::ofstream out(path, std::ios::binary);
    for (const int byte : bytes)
        out.put(static_cast<char>(byte));
    out.close();
    std::string name = path;
    return image.load(name);
}

Bytes pixelsOf(const TGA& image, int count) {
    return image.getImg() == nullptr ? Bytes() : Bytes(image.getImg(), image.getImg() + count);
}

Header mappedHeader(int type) {
    Header h;
    h.type = type;
    h.bits = 8;
    h.mapType = 1;
    h.mapLength = 256;
    h.mapBits = 24;
    return h;
}

class TGATest : public testing::Test {
protected:
    void TearDown() override { std::remove(path); }
    TGA image{"none.tga"};
};

const Bytes four = {3, 2, 1, 6, 5, 4, 9, 8, 7, 12, 11, 10}; // blue, green, red

} // namespace

TEST_F(TGATest, TurnsPixelsToRedFirstAndTopDownOnlyIfFlaggedBottomUp) {
    EXPECT_EQ(load(file({}, four), image), 1);
    EXPECT_EQ(pixelsOf(image, 12), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    Header h;
    h.descriptor = 0;
    EXPECT_EQ(load(file(h, four), image), 1);
    EXPECT_EQ(pixelsOf(image, 12), (Bytes{7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6}));
    h.bits = 32;
    h.width = h.height = 1;
    EXPECT_EQ(load(file(h, {3, 2, 1, 200}), image), 1);
    EXPECT_EQ(pixelsOf(image, 4), (Bytes{1, 2, 3, 200})) << "alpha stays";
}

TEST_F(TGATest, UnpacksRunsAndLiteralsAndSurvivesLies) {
    Header h;
    h.type = 10;
    EXPECT_EQ(load(file(h, {0x82, 3, 2, 1, 0x00, 6, 5, 4}), image), 1);
    EXPECT_EQ(pixelsOf(image, 12), (Bytes{1, 2, 3, 1, 2, 3, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(load(file(h, {0xff, 3, 2, 1}), image), 1) << "overruns the image";
    EXPECT_EQ(pixelsOf(image, 12), (Bytes{1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3}));
    EXPECT_EQ(load(file(h, {0x01, 3, 2, 1}), image), 1) << "ends early: black";
    EXPECT_EQ(pixelsOf(image, 12), (Bytes{1, 2, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    h.bits = 4; // pixels of no bytes
    EXPECT_EQ(load(file(h, {}), image), 1);
    h.bits = 16;
    EXPECT_EQ(load(file(h, {0x83, 1, 2}), image), 1);
}

TEST_F(TGATest, RefusesWithACode) {
    const struct {
        const char* what;
        void (*spoil)(Header&);
        std::size_t bytes;
        int code;
    } cases[] = {
        {"exactly long enough", [](Header&) {}, 12, 1},
        {"a byte short", [](Header&) {}, 11, 8},
        {"with an identification", [](Header& h) { h.idLength = 1; }, 12, 8},
        {"a map of 255",
         [](Header& h) {
             h = mappedHeader(1);
             h.mapLength = 255;
         },
         800, 64},
        {"mapped without a map", [](Header& h) { h.type = 9; }, 12, 8},
        {"origin as large as the width", [](Header& h) { h.x = 2; }, 12, 8},
        {"no height", [](Header& h) { h.height = 0; }, 12, 8},
        {"descriptor above 32", [](Header& h) { h.descriptor = 33; }, 12, 64},
        {"huge",
         [](Header& h) {
             h.width = h.height = 32767;
             h.bits = 255;
         },
         12, 4},
    };
    for (const auto& c : cases) {
        Header h;
        c.spoil(h);
        EXPECT_EQ(load(file(h, Bytes(c.bytes, 5)), image), c.code) << c.what;
    }
    EXPECT_EQ(load({}, image), 2) << "empty";
    std::string none = "none.tga";
    EXPECT_EQ(image.load(none), 2);
    EXPECT_EQ(image.getImg(), nullptr);
    EXPECT_EQ(image.getWidth(), 0);
}
