#include "Framework/Graphics/TGA.h"

#include "Framework/Managers/TextureResources.h"
#include "platform/standins/GLRecorder.h"

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
            for (const int descriptor : {0, 0x20}) {
                const auto add = [bits](Bytes& to, int i, bool redFirst) {
                    const int red = 10 * i, blue = 10 * i + 2;
                    to.insert(to.end(), {redFirst ? red : blue, 10 * i + 1, redFirst ? blue : red});
                    if (bits == 32) to.push_back(200 + i);
                };
                Bytes data, rows[2]; // the first row of the file is of one colour
                for (int i = 0; i < 6; ++i) {
                    const int colour = i < 3 ? 0 : i;
                    if (type == 10 && i % 3 == 0) data.push_back(i == 0 ? 0x82 : 0x02);
                    if (type == 2 || i == 0 || i > 2) add(data, colour, false);
                    add(rows[i / 3], colour, true);
                }
                if (descriptor == 0) std::swap(rows[0], rows[1]);
                rows[0].insert(rows[0].end(), rows[1].begin(), rows[1].end());
                Header h;
                h.type = type;
                h.bits = bits;
                h.width = 3; // rows of nine bytes: no multiple of four
                h.descriptor = descriptor;
                write(file(h, data));
                std::string line = "Name, image.tga ", name;
                resources::TextureObject texture;
                glRecorder().start();
                EXPECT_TRUE(resources::parseLineAndCreateTexture(line, name, texture));
                glRecorder().stop();
                EXPECT_EQ(name + " " + texture.file, "Name image.tga");
                EXPECT_EQ(texture.name, glRecorder().callsTo("glBindTexture")[0].arguments[1]);
                EXPECT_EQ(Bytes(glRecorder().image.begin(), glRecorder().image.end()), rows[0])
                    << "type " << type << ", bits " << bits << ", descriptor " << descriptor;
                EXPECT_NE(glRecorder().text().find(bits == 24
                                                       ? "glTexImage2D 3553 0 3 3 2 0 6407 5121\n"
                                                       : "glTexImage2D 3553 0 4 3 2 0 6408 5121\n"),
                          std::string::npos);
            }
}

TEST_F(TGATest, KeepsAPaletteRedFirstButMakesNoTextureOfIt) {
    Bytes map;
    for (int i = 0; i < 256; ++i)
        map.insert(map.end(), {i, 7, 255 - i}); // blue, green, red
    for (const int type : {1, 9}) {
        Bytes data = map;
        data.insert(data.end(), type == 1 ? std::initializer_list<int>{5, 5, 5, 6}
                                          : std::initializer_list<int>{0x82, 5, 0x00, 6});
        EXPECT_EQ(load(file(mappedHeader(type), data), image), 1);
        EXPECT_EQ(pixelsOf(image, 4), (Bytes{5, 5, 5, 6}));
        for (int i = 0; i < 256; ++i)
            EXPECT_EQ(Bytes(image.getPalette() + 3 * i, image.getPalette() + 3 * i + 3),
                      (Bytes{255 - i, 7, i}));
        EXPECT_EQ(resources::loadTGA(path), 0U);
    }
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
    std::string name = path;
    ASSERT_EQ(truncate(path, (512L << 20) + 1), 0);
    EXPECT_EQ(image.load(name), 4) << "larger than any texture";
    name = "none.tga";
    EXPECT_EQ(image.load(name), 2);
    EXPECT_EQ(image.getImg(), nullptr);
    EXPECT_EQ(image.getWidth(), 0);
}
