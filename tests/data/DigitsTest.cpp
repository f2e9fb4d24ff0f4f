// The digits of the display, as a screen of 800 by 600 shows them.

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace {

constexpr unsigned int em = 20; // pixels
// In 64ths of a pixel. Digits stand seven and a half pixels apart, so each falls on them in two
// ways.
constexpr FT_Pos shifts[] = {0, 32};
constexpr std::size_t told_apart = 12; // pixels in which two digits differ, of about 40 each

using Pixels = std::set<std::pair<int, int>>;

Pixels draw(FT_Face face, char digit, FT_Pos shift) {
    EXPECT_EQ(FT_Load_Char(face, static_cast<FT_ULong>(digit), FT_LOAD_NO_HINTING), 0);
    FT_GlyphSlot glyph = face->glyph;
    FT_Outline_Translate(&glyph->outline, shift, 0);
    EXPECT_EQ(FT_Render_Glyph(glyph, FT_RENDER_MODE_MONO), 0);
    const FT_Bitmap& bitmap = glyph->bitmap;
    Pixels pixels;
    for (int y = 0; y < static_cast<int>(bitmap.rows); ++y)
        for (int x = 0; x < static_cast<int>(bitmap.width); ++x)
            if ((bitmap.buffer[y * bitmap.pitch + x / 8] >> (7 - x % 8) & 1) != 0)
                pixels.emplace(x + glyph->bitmap_left, glyph->bitmap_top - y);
    return pixels;
}

std::size_t difference(const Pixels& a, const Pixels& b) {
    std::size_t shared = 0;
    for (const auto& pixel : a)
        shared += b.count(pixel);
    return a.size() + b.size() - 2 * shared;
}

int width(const Pixels& pixels) {
    return pixels.rbegin()->first - pixels.begin()->first + 1;
}

} // namespace

TEST(Digits, AreToldApartAtAGlanceAndZerosAreEquallyWide) {
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    ASSERT_EQ(FT_Init_FreeType(&library), 0);
    ASSERT_EQ(FT_New_Face(library, KOV_SOURCE_DIR "/fonts/KovMenu.ttf", 0, &face), 0);
    ASSERT_EQ(FT_Set_Pixel_Sizes(face, 0, em), 0);
    for (const FT_Pos shift : shifts)
        for (char a = '0'; a <= '9'; ++a)
            for (char b = '0'; b < a; ++b)
                EXPECT_GE(difference(draw(face, a, shift), draw(face, b, shift)), told_apart)
                    << a << " and " << b;
    EXPECT_EQ(width(draw(face, '0', shifts[0])), width(draw(face, '0', shifts[1])));
    FT_Done_Face(face);
    FT_Done_FreeType(library);
}
