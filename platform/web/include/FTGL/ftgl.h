#pragma once

// Stands in for FTGL, with triangles, boxes and advances that FTGL itself has made while this was
// built.

namespace quorva::web {
struct Face;
}

enum FT_Encoding { FT_ENCODING_UNICODE };

class FTFont {
public:
    /// @param path of a font file, known by its name; Error() tells of an unknown one
    explicit FTFont(const char* path);
    virtual ~FTFont() = default;

    int Error() const { return face == nullptr ? 1 : 0; }
    // There is one size, and one character map.
    bool FaceSize(unsigned int, unsigned int) { return true; }
    bool CharMap(FT_Encoding) { return true; }

    /// Extents of `text`, that of an empty one being all zero.
    void BBox(const char* text, float& left, float& bottom, float& near, float& right, float& top,
              float& far) const;
    void Render(const char* text) const; ///< at the origin of GL's current matrix

private:
    const quorva::web::Face* face; ///< not owned; null if the font is unknown
};

// Only polygons were made: all draw them.
struct FTGLPolygonFont : FTFont {
    using FTFont::FTFont;
};
struct FTGLBitmapFont : FTFont {
    using FTFont::FTFont;
};
struct FTGLPixmapFont : FTFont {
    using FTFont::FTFont;
};
struct FTGLOutlineFont : FTFont {
    using FTFont::FTFont;
};
struct FTGLTextureFont : FTFont {
    using FTFont::FTFont;
};
