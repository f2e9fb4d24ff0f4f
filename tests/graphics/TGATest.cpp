#include "Framework/Graphics/TGA.h"

#include "Framework/Managers/TextureResources.h"
#include "tests/pictures/Pictures.h"
#include "tests/support/Files.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

using namespace quorva;
using graphics::TGA;
using namespace std::string_literals;

namespace {

constexpr const char* path = "textures/image.tga";

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
    fill(path, bytes);
    std::string name = path;
    return image.load(name);
}

std::string textOf(const unsigned char* bytes, std::size_t count) {
    return bytes == nullptr ? "" : std::string(bytes, bytes + count);
}

class TGATest : public testing::Test {
protected:
    void SetUp() override {
        boost::filesystem::rename("textures", "shipped"); // a link, to what is read only
        boost::filesystem::create_directory("textures");
    }
    void TearDown() override {
        boost::filesystem::remove_all("textures");
        boost::filesystem::rename("shipped", "textures");
    }
    TGA image{"none.tga"};
};

// As files have them, blue first, and as GL takes them.
const std::string plain = "ghijklmnopqrstuvwx", red_first = "ihglkjonmrqputsxwv",
                  with_alpha = "abcdefghijklmnopqrstuvwx",
                  red_first_with_alpha = "cbadgfehkjilonmpsrqtwvux";

} // namespace

TEST_F(TGATest, ReadsPixelsRedFirstOrRefusesWithACode) {
    const struct {
        const char* what;
        std::string file;
        int code;
        std::string pixels = "";
    } cases[] = {
        {"24 bits", file(2, 24, plain), 1, red_first},
        {"32 bits", file(2, 32, with_alpha), 1, red_first_with_alpha},
        {"the bottom row first", file(2, 24, plain, {{17, 0}}), 1, "rqputsxwvihglkjonm"},
        {"packed", file(10, 24, "\x82ghi\x02pqrstuvwx"), 1, "ihgihgihgrqputsxwv"},
        {"packed, 32 bits", file(10, 32, "\x84ghij\x00klmn"s), 1, "ihgjihgjihgjihgjihgjmlkn"},
        {"overruns the image", file(10, 24, "\xffghi"), 1, "ihgihgihgihgihgihg"},
        {"ends early: black", file(10, 24, "\x01ghi"), 1, "ihg" + std::string(15, '\0')},
        {"a byte short", file(2, 24, plain.substr(1)), 8},
        {"with an identification", file(2, 24, plain, {{0, 1}}), 8},
        {"a map of 255", file(1, 8, std::string(800, 'x'), {{1, 1}, {5, 255}, {7, 24}}), 64},
        {"mapped without a map", file(9, 24, plain), 8},
        {"origin as large as the width", file(2, 24, plain, {{8, 3}}), 8},
        {"no height", file(2, 24, plain, {{14, 0}}), 8},
        {"descriptor above 32", file(2, 24, plain, {{17, 33}}), 64},
        {"huge", file(2, 255, plain, {{12, 255}, {13, 127}, {14, 255}, {15, 127}}), 4},
        {"empty", "", 2},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(load(c.file, image), c.code) << c.what;
        EXPECT_EQ(textOf(image.getImg(), c.pixels.size()), c.pixels) << c.what;
    }
}

TEST_F(TGATest, KeepsAPaletteRedFirstButMakesNoTextureOfIt) {
    std::string map = "an identification", palette;
    for (int i = 0; i < 256; ++i) {
        const char blue = static_cast<char>(i), red = static_cast<char>(255 - i);
        map += {blue, 7, red};
        palette += {red, 7, blue};
    }
    const Changes header = {{0, 17}, {1, 1}, {6, 1}, {7, 24}};
    for (const auto& [type, data] : {std::pair{1, "ggghij"}, {9, "\x82g\x02hij"}}) {
        EXPECT_EQ(load(file(type, 8, map + data, header), image), 1) << type;
        EXPECT_EQ(textOf(image.getImg(), 6), "ggghij") << type;
        EXPECT_EQ(textOf(image.getPalette(), 768), palette) << type;
        EXPECT_EQ(resources::loadTGA(path), 0U) << type;
    }
}

TEST_F(TGATest, ALineOfAResourceFileUploadsItsImage) {
    fill(path, file(2, 32, with_alpha));
    std::string line = "Name, image.tga ", name;
    resources::TextureObject texture;
    const std::string calls =
        callsOf([&] { EXPECT_TRUE(resources::parseLineAndCreateTexture(line, name, texture)); });
    EXPECT_EQ(name + texture.file + std::to_string(texture.kind), "Nameimage.tga1");
    const auto& uploaded = standins::glRecorder().image;
    EXPECT_EQ(std::string(uploaded.begin(), uploaded.end()), red_first_with_alpha);
    EXPECT_NE(calls.find("glTexImage2D TEXTURE_2D 0 4 3 2 0 RGBA UNSIGNED_BYTE\n"),
              std::string::npos)
        << calls;
    line = "Name";
    EXPECT_FALSE(resources::parseLineAndCreateTexture(line, name, texture));
}
