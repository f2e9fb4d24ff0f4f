#include <FTGL/ftgl.h>

#include "platform/web/Faces.h"

#include <GL/glew.h>

#include <algorithm>
#include <cstring>
#include <tuple>

using quorva::web::Face;
using quorva::web::Glyph;
using quorva::web::KerningPair;

namespace {

const Face* faceOf(const char* path) {
    const char* const slash = std::strrchr(path, '/');
    const char* const name = slash == nullptr ? path : slash + 1;
    const auto* const end = quorva::web::faces + quorva::web::face_count;
    const auto* const found = std::find_if(quorva::web::faces, end, [name](const Face* face) {
        return std::strcmp(face->file, name) == 0;
    });
    return found == end ? nullptr : *found;
}

/// @return null for what no text of the game's has
const Glyph* glyphOf(const Face& face, unsigned char c) {
    const unsigned int index = c - quorva::web::first_glyph;
    return index < quorva::web::glyph_count ? face.glyphs + index : nullptr;
}

float kerning(const Face& face, unsigned char left, unsigned char right) {
    const auto* const end = face.pairs + face.pairCount;
    const auto* const pair = std::lower_bound(
        face.pairs, end, std::tie(left, right),
        [](const KerningPair& a, const auto& b) { return std::tie(a.left, a.right) < b; });
    const bool found = pair != end && pair->left == left && pair->right == right;
    return found ? pair->advance : 0.0F;
}

/// Calls `use` with each glyph and where it stands.
template <class Use>
void layOut(const Face& face, const char* text, Use use) {
    float x = 0.0F;
    for (; *text != '\0'; ++text) {
        const Glyph* const glyph = glyphOf(face, static_cast<unsigned char>(text[0]));
        if (glyph == nullptr) continue;
        use(*glyph, x);
        x += glyph->advance + kerning(face, static_cast<unsigned char>(text[0]),
                                      static_cast<unsigned char>(text[1]));
    }
}

} // namespace

FTFont::FTFont(const char* path) : face(faceOf(path)) {}

void FTFont::BBox(const char* text, float& left, float& bottom, float& near, float& right,
                  float& top, float& far) const {
    left = bottom = near = right = top = far = 0.0F;
    bool isFirst = true;
    layOut(*face, text, [&](const Glyph& glyph, float x) {
        left = isFirst ? x + glyph.left : std::min(left, x + glyph.left);
        right = isFirst ? x + glyph.right : std::max(right, x + glyph.right);
        bottom = isFirst ? glyph.bottom : std::min(bottom, glyph.bottom);
        top = isFirst ? glyph.top : std::max(top, glyph.top);
        isFirst = false;
    });
}

void FTFont::Render(const char* text) const {
    glBegin(GL_TRIANGLES);
    layOut(*face, text, [this](const Glyph& glyph, float x) {
        const float* vertex = face->vertices + 2 * glyph.first;
        for (int i = 0; i < glyph.count; ++i, vertex += 2)
            glVertex2f(x + vertex[0], vertex[1]);
    });
    glEnd();
}
