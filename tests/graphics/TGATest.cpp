#include "Framework/Graphics/TGA.h"

#include "Framework/Managers/TextureResources.h"
#include "tests/pictures/Pictures.h"
#include "tests/support/Files.h"

#include <gtest/gtest.h>

using namespace quorva;
using graphics::TGA;

namespace {

/// Bytes of the header by their offset.
using Changes = std::vector<std::pair<std::size_t, int>>;

/// Three by two pixels, the top row first, and no map, unless the header is changed.
std::string file(int type, int bits, const std::string& data, const Changes& changes = {}) {
    std::string header(18, '\0');
    for (const auto& [offset, byte] : Changes{{2, type}, {12, 3}, {14, 2}, {16, bits}, {17, 0x20}})
        header[offset] = static_cast<char>(byte);
    for (const auto& [offset, byte] : changes)
        header[offset] = static_cast<char>(byte);
    return header + data;
}

int load(const std::string& bytes, TGA& image) {
    std::string name = "image.tga";
    fill(name, bytes);
    return image.load(name);
}

std::string textOf(const unsigned char* bytes, std::size_t count) {
    return bytes == nullptr ? "" : std::string(bytes, bytes + count);
}

// As files have them, blue first, and as GL takes them.
const std::string plain = "ghijklmnopqrstuvwx", red_first = "ihglkjonmrqputsxwv",
                  with_alpha = "abcdefghijklmnopqrstuvwx",
                  red_first_with_alpha = "cbadgfehkjilonmpsrqtwvux";

} // namespace

TEST(TGATest, ReadsPixelsRedFirstOrRefusesWithACode) {
    TGA image("none.tga");
    const struct {
        const char* what;
        std::string file;
        int code;
        std::string pixels = "";
    } cases[] = {
        {"24 bits", file(2, 24, plain), 1, red_first},
        {"the bottom row first", file(2, 24, plain, {{17, 0}}), 1, "rqputsxwvihglkjonm"},
        {"packed", file(10, 24, "\x82ghi\x02pqrstuvwx"), 1, "ihgihgihgrqputsxwv"},
        {"overruns the image", file(10, 24, "\xffghi"), 1, "ihgihgihgihgihgihg"},
        {"ends early: black", file(10, 24, "\x01ghi"), 1, "ihg" + std::string(15, '\0')},
        {"a byte short", file(2, 24, plain.substr(1)), 8},
        {"with an identification", file(2, 24, plain, {{0, 1}}), 8},
        {"mapped without a map", file(9, 24, plain), 8},
        {"origin as large as the width", file(2, 24, plain, {{8, 3}}), 8},
        {"huge", file(2, 255, plain, {{12, 255}, {13, 127}, {14, 255}, {15, 127}}), 4},
        {"empty", "", 2},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(load(c.file, image), c.code) << c.what;
        EXPECT_EQ(textOf(image.getImg(), c.pixels.size()), c.pixels) << c.what;
    }
}

TEST(TGATest, KeepsAPaletteRedFirstButMakesNoTextureOfIt) {
    std::string map = "an identification", palette;
    for (int i = 0; i < 256; ++i) {
        const char blue = static_cast<char>(i), red = static_cast<char>(255 - i);
        map += {blue, 7, red};
        palette += {red, 7, blue};
    }
    TGA image("none.tga");
    const Changes header = {{0, 17}, {1, 1}, {6, 1}, {7, 24}};
    EXPECT_EQ(load(file(9, 8, map + "\x82g\x02hij", header), image), 1);
    EXPECT_EQ(textOf(image.getImg(), 6), "ggghij");
    EXPECT_EQ(textOf(image.getPalette(), 768), palette);
    EXPECT_EQ(resources::loadTGA("image.tga"), 0U);
}

TEST(TGATest, ALineOfAResourceFileUploadsItsImage) {
    std::string line = "Name, default.tga ", name;
    resources::TextureObject texture;
    fill("image.tga", file(2, 32, with_alpha));
    const std::string calls = callsOf([&] {
        EXPECT_TRUE(resources::parseLineAndCreateTexture(line, name, texture));
        resources::loadTGA("image.tga");
    });
    EXPECT_EQ(name + texture.file + std::to_string(texture.kind), "Namedefault.tga1");
    for (const char* upload : {"3 16 16 0 RGB ", "4 3 2 0 RGBA "})
        EXPECT_NE(calls.find(std::string("TEXTURE_2D 0 ") + upload), std::string::npos) << calls;
    const auto& uploaded = standins::glRecorder().image;
    EXPECT_EQ(textOf(uploaded.data(), uploaded.size()), red_first_with_alpha);
    line = "Name";
    EXPECT_FALSE(resources::parseLineAndCreateTexture(line, name, texture));
}
