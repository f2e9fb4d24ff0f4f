#include "Framework/Graphics/TGA.h"

#include "Framework/Managers/TextureResources.h"
#include "tests/pictures/Pictures.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

using namespace quorva;
using graphics::TGA;
using standins::glRecorder;

namespace {

constexpr const char* path = "textures/image.tga";
using Bytes = std::vector<int>;

/// Bytes of a file by their offset.
using Changes = std::vector<std::pair<std::size_t, int>>;

/// Two by two pixels, the top row first, and no map, unless the header is changed.
Bytes file(int type, int bits, const Bytes& data, const Changes& changes = {}) {
    Bytes bytes = {0, 0, type, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 2, 0, bits, 0x20};
    for (const auto& [offset, byte] : changes)
        bytes[offset] = byte;
    bytes.insert(bytes.end(), data.begin(), data.end());
    return bytes;
}

void write(const Bytes& bytes) {
    std::ofstream out(path, std::ios::binary);
    for (const int byte : bytes)
        out.put(static_cast<char>(byte));
}

int load(const Bytes& bytes, TGA& image) {
    write(bytes);
    std::string name = path;
    return image.load(name);
}

Bytes pixelsOf(const TGA& image, int count) {
    return image.getImg() == nullptr ? Bytes() : Bytes(image.getImg(), image.getImg() + count);
}

/// Three by two pixels, the first row of one colour. Rows of nine bytes are no multiple of four.
struct Sample {
    Bytes data;    ///< as a file has them, blue first
    Bytes rows[2]; ///< as GL takes them, red first

    Sample(int type, int bits) {
        for (int i = 0; i < 6; ++i) {
            const int first = i < 3 ? 0 : 10 * i;
            Bytes pixel = {first, first + 1, first + 2};
            if (bits == 32) pixel.push_back(200 + i / 3);
            rows[i / 3].insert(rows[i / 3].end(), pixel.begin(), pixel.end());
            if (type == 10 && i % 3 == 0) data.push_back(i == 0 ? 0x82 : 0x02); // run, literals
            if (type == 10 && (i == 1 || i == 2)) continue;
            std::swap(pixel[0], pixel[2]);
            data.insert(data.end(), pixel.begin(), pixel.end());
        }
    }
};

/// Uploads the sample by a line of a resource file.
void expectUpload(int type, int bits, bool topDown) {
    Sample sample(type, bits);
    if (!topDown) std::swap(sample.rows[0], sample.rows[1]);
    write(file(type, bits, sample.data, {{12, 3}, {17, topDown ? 0x20 : 0}}));
    std::string line = "Name, image.tga ", name;
    resources::TextureObject texture;
    const std::string calls =
        callsOf([&] { EXPECT_TRUE(resources::parseLineAndCreateTexture(line, name, texture)); });
    EXPECT_EQ(name + texture.file + std::to_string(texture.kind), "Nameimage.tga1");
    Bytes& pixels = sample.rows[0];
    pixels.insert(pixels.end(), sample.rows[1].begin(), sample.rows[1].end());
    EXPECT_EQ(Bytes(glRecorder().image.begin(), glRecorder().image.end()), pixels)
        << "type " << type << ", " << bits << " bits, top row first: " << topDown;
    const std::string number = std::to_string(texture.name);
    const std::string format = bits == 24 ? "3 3 2 0 RGB" : "4 3 2 0 RGBA";
    EXPECT_EQ(calls, "glGenTextures 1\nglBindTexture TEXTURE_2D " + number +
                         "\nglPixelStorei UNPACK_ALIGNMENT 1\nglTexImage2D TEXTURE_2D 0 " + format +
                         " UNSIGNED_BYTE\nglTexParameteri TEXTURE_2D MIN_FILTER LINEAR\n"
                         "glTexParameteri TEXTURE_2D MAG_FILTER LINEAR\n"
                         "glTexParameteri TEXTURE_2D WRAP_S REPEAT\n"
                         "glTexParameteri TEXTURE_2D WRAP_T REPEAT\n");
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

} // namespace

TEST_F(TGATest, ReachesGLRedFirstAndTurnedUnlessFlagged) {
    for (const int type : {2, 10})
        for (const int bits : {24, 32})
            for (const bool topDown : {false, true})
                expectUpload(type, bits, topDown);
    for (const auto& [line, taken] : {std::pair{"Name", false},
                                      {"Name,a,b", true},
                                      {"Name,a,b,c", true},
                                      {"Name,a,b,c,d", false}}) {
        std::string text = line, name;
        resources::TextureObject texture;
        EXPECT_EQ(resources::parseLineAndCreateTexture(text, name, texture), taken) << line;
        EXPECT_EQ(name, taken ? "Name" : "") << line;
        EXPECT_EQ(texture.name, 0U) << "the folder is no image";
    }
}

TEST_F(TGATest, KeepsAPaletteRedFirstButMakesNoTextureOfIt) {
    Bytes map = {1, 2, 3}; // an identification
    for (int i = 0; i < 256; ++i)
        map.insert(map.end(), {i, 7, 255 - i}); // blue, green, red
    for (const int type : {1, 9}) {
        Bytes data = map;
        data.insert(data.end(), type == 1 ? std::initializer_list<int>{5, 5, 5, 6}
                                          : std::initializer_list<int>{0x82, 5, 0x00, 6});
        EXPECT_EQ(load(file(type, 8, data, {{0, 3}, {1, 1}, {6, 1}, {7, 24}}), image), 1);
        EXPECT_EQ(pixelsOf(image, 4), (Bytes{5, 5, 5, 6}));
        for (int i = 0; i < 256; ++i)
            EXPECT_EQ(Bytes(image.getPalette() + 3 * i, image.getPalette() + 3 * i + 3),
                      (Bytes{255 - i, 7, i}));
        EXPECT_EQ(resources::loadTGA(path), 0U);
    }
}

TEST_F(TGATest, SurvivesPacketsThatLie) {
    EXPECT_EQ(load(file(10, 24, {0xff, 3, 2, 1}), image), 1) << "overruns the image";
    EXPECT_EQ(pixelsOf(image, 12), (Bytes{1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3}));
    EXPECT_EQ(load(file(10, 24, {0x01, 3, 2, 1}), image), 1) << "ends early: black";
    EXPECT_EQ(pixelsOf(image, 12), (Bytes{1, 2, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(load(file(10, 4, {}), image), 1) << "pixels of no bytes";
    EXPECT_EQ(load(file(10, 16, {0x83, 1, 2}), image), 1);
}

TEST_F(TGATest, RefusesWithACode) {
    const Bytes pixels(12, 5);
    const struct {
        const char* what;
        Bytes file;
        int code;
    } cases[] = {
        {"exactly long enough", file(2, 24, pixels), 1},
        {"a byte short", file(2, 24, Bytes(11, 5)), 8},
        {"with an identification", file(2, 24, pixels, {{0, 1}}), 8},
        {"a map of 255", file(1, 8, Bytes(800, 5), {{1, 1}, {5, 255}, {7, 24}}), 64},
        {"mapped without a map", file(9, 24, pixels), 8},
        {"origin as large as the width", file(2, 24, pixels, {{8, 2}}), 8},
        {"no height", file(2, 24, pixels, {{14, 0}}), 8},
        {"descriptor above 32", file(2, 24, pixels, {{17, 33}}), 64},
        {"huge", file(2, 255, pixels, {{12, 255}, {13, 127}, {14, 255}, {15, 127}}), 4},
        {"empty", {}, 2},
    };
    for (const auto& c : cases)
        EXPECT_EQ(load(c.file, image), c.code) << c.what;
    std::string name = path;
    ASSERT_EQ(truncate(path, (512L << 20) + 1), 0);
    EXPECT_EQ(image.load(name), 4) << "larger than any texture";
    name = "none.tga";
    EXPECT_EQ(image.load(name), 2);
    EXPECT_EQ(image.getImg(), nullptr);
    EXPECT_EQ(image.getWidth(), 0);
}
