#pragma once

// The faces as bake_fonts has written them.

namespace quorva::web {

constexpr unsigned char first_glyph = 32, glyph_count = 95; // of ASCII

struct Glyph {
    float advance;                  ///< font units, as all here
    float left, bottom, right, top; ///< its box
    int first, count;               ///< vertices among its face's, three to a triangle
};

struct KerningPair {
    unsigned char left, right;
    float advance; ///< added to that of the left one
};

struct Face {
    const char* file;         ///< name, without the folder
    const Glyph* glyphs;      ///< glyph_count
    const float* vertices;    ///< x, y
    const KerningPair* pairs; ///< in rising order of left and right
    int pairCount;
};

extern const Face* const faces[];
extern const int face_count;

} // namespace quorva::web
