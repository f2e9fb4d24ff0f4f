// Writes the glyphs of fonts as FTGL draws them, as C++ for a build without FTGL.
//   bake_fonts FILE... > OUTPUT.cpp
// It is linked with FTGL, but draws nothing: the functions of GL that FTGL calls are here.

#include "platform/web/Faces.h"

#include <FTGL/ftgl.h>
#include <GL/gl.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

using namespace quorva::web;

namespace {

struct Vertex {
    float x, y;
};

GLenum shape;
std::vector<Vertex> run;       ///< of the shape that is being drawn
std::vector<Vertex> triangles; ///< of the glyph

void add(std::size_t a, std::size_t b, std::size_t c) {
    triangles.insert(triangles.end(), {run[a], run[b], run[c]});
}

std::string inCode(float number) {
    char text[32];
    std::snprintf(text, sizeof text, "%.9g", static_cast<double>(number));
    if (std::strpbrk(text, ".e") == nullptr) std::strcat(text, ".0");
    return std::string(text) + "F,";
}

std::string textOf(int index) {
    return {static_cast<char>(first_glyph + index)};
}

std::string glyphInCode(FTFont& font, const std::string& text, std::vector<Vertex>& vertices) {
    triangles.clear();
    font.Render(text.c_str());
    const FTBBox box = font.BBox(text.c_str());
    std::string code = "{" + inCode(font.Advance(text.c_str()));
    for (const float edge :
         {box.Lower().Xf(), box.Lower().Yf(), box.Upper().Xf(), box.Upper().Yf()})
        code += inCode(edge);
    code += std::to_string(vertices.size()) + "," + std::to_string(triangles.size()) + "},\n";
    vertices.insert(vertices.end(), triangles.begin(), triangles.end());
    return code;
}

/// Both glyphs' own advances are multiples of a 64th, so the difference is exact.
float kerning(FTFont& font, const std::string& left, const std::string& right) {
    return font.Advance((left + right).c_str()) - font.Advance(left.c_str()) -
           font.Advance(right.c_str());
}

int writePairs(FTFont& font, int number) {
    int count = 0;
    std::printf("const KerningPair pairs_%d[] = {", number);
    for (int left = 0; left < glyph_count; ++left)
        for (int right = 0; right < glyph_count; ++right) {
            const float advance = kerning(font, textOf(left), textOf(right));
            if (advance == 0.0F) continue;
            std::printf("{%d,%d,%s},\n", first_glyph + left, first_glyph + right,
                        inCode(advance).c_str());
            ++count;
        }
    std::puts("{0,0,0.0F}};"); // an array has at least one element
    return count;
}

bool writeFace(const char* path, int number) {
    FTGLPolygonFont font(path);
    if (font.Error() != 0) return false;
    font.FaceSize(1, 72); // as the game asks for
    font.CharMap(FT_ENCODING_UNICODE);
    std::vector<Vertex> vertices;
    std::printf("const Glyph glyphs_%d[] = {\n", number);
    for (int i = 0; i < glyph_count; ++i)
        std::fputs(glyphInCode(font, textOf(i), vertices).c_str(), stdout);
    std::printf("};\nconst float vertices_%d[] = {\n", number);
    for (const Vertex& v : vertices)
        std::printf("%s%s\n", inCode(v.x).c_str(), inCode(v.y).c_str());
    std::puts("};");
    const int pairCount = writePairs(font, number);
    const char* const slash = std::strrchr(path, '/');
    std::printf("const Face face_%d = {\"%s\", glyphs_%d, vertices_%d, pairs_%d, %d};\n", number,
                slash == nullptr ? path : slash + 1, number, number, number, pairCount);
    return true;
}

} // namespace

extern "C" {
void glBegin(GLenum mode) {
    shape = mode;
    run.clear();
}
void glEnd() {
    for (std::size_t i = 2; i < run.size(); ++i) {
        if (shape == GL_TRIANGLES && i % 3 == 2) add(i - 2, i - 1, i);
        if (shape == GL_TRIANGLE_FAN) add(0, i - 1, i);
        if (shape == GL_TRIANGLE_STRIP) add(i - 2 + i % 2, i - 1 - i % 2, i);
    }
}
void glVertex3d(GLdouble x, GLdouble y, GLdouble) {
    run.push_back({static_cast<float>(x), static_cast<float>(y)});
}
void glVertex3f(GLfloat x, GLfloat y, GLfloat) {
    run.push_back({x, y});
}
GLuint glGenLists(GLsizei) {
    return 0; // there are none: it draws each glyph anew
}
void glNewList(GLuint, GLenum) {}
void glEndList() {}
void glCallList(GLuint) {}
void glDeleteLists(GLuint, GLsizei) {}
void glTranslatef(GLfloat, GLfloat, GLfloat) {}
void glNormal3d(GLdouble, GLdouble, GLdouble) {}
void glTexCoord2f(GLfloat, GLfloat) {}
}

int main(int argc, char* argv[]) {
    std::puts("#include \"platform/web/Faces.h\"\n\nnamespace quorva::web {\nnamespace {");
    for (int i = 1; i < argc; ++i)
        if (!writeFace(argv[i], i)) {
            std::fprintf(stderr, "bake_fonts: no font: %s\n", argv[i]);
            return 1;
        }
    std::puts("} // namespace\nconst Face* const faces[] = {");
    for (int i = 1; i < argc; ++i)
        std::printf("&face_%d,\n", i);
    std::printf("};\nconst int face_count = %d;\n} // namespace quorva::web\n", argc - 1);
    return 0;
}
