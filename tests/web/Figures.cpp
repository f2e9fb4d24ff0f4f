// Makes a picture of what OpenGL can be asked for and play seldom or never shows: outlines of
// filled shapes, one colour to a shape, hidden backs, depth, wide lines, blending, a texture bound.
//   kov_figures FOLDER WIDTH HEIGHT
// The picture is FOLDER/figures.ppm.

#include "tools/gallery/Picture.h"

#include <GL/glew.h>
#include <SDL.h>

#include <array>
#include <iostream>
#include <string>
#include <vector>

namespace {

using Vertices = std::vector<std::array<float, 2>>;

constexpr int columns = 4, rows = 3; ///< of figures, each from -1 to 1

const Vertices square = {{-0.7F, -0.7F}, {0.7F, -0.7F}, {0.7F, 0.7F}, {-0.7F, 0.7F}};
const Vertices from_behind = {{-0.7F, -0.7F}, {-0.7F, 0.7F}, {0.7F, 0.7F}, {0.7F, -0.7F}};
const Vertices triangle = {{-0.7F, -0.6F}, {0.7F, -0.6F}, {0.0F, 0.7F}};
const Vertices band = {{-0.8F, 0.3F},  {-0.8F, -0.3F}, {-0.2F, 0.3F},
                       {-0.2F, -0.3F}, {0.6F, 0.6F},   {0.6F, -0.6F}};
const Vertices house = {{-0.6F, -0.7F}, {0.6F, -0.7F}, {0.6F, 0.2F}, {0.0F, 0.8F}, {-0.6F, 0.2F}};

const struct {
    int place; ///< from the lower left
    GLenum mode;
    const Vertices& vertices;
    GLenum shading = GL_SMOOTH, filling = GL_FILL;
    float lineWidth = 5.0F, z = 0.0F, alpha = 1.0F;
} figures[] = {
    {0, GL_POLYGON, house, GL_FLAT}, // in its first corner's colour, all others in the last one's
    {1, GL_TRIANGLE_STRIP, band, GL_FLAT},
    {2, GL_LINE_LOOP, square, GL_FLAT, GL_FILL, 1.0F},
    {3, GL_TRIANGLES, triangle, GL_FLAT},
    {4, GL_QUADS, square, GL_SMOOTH, GL_LINE},
    {5, GL_POLYGON, house, GL_SMOOTH, GL_LINE}, // without lines across
    {6, GL_TRIANGLES, triangle, GL_SMOOTH, GL_LINE, 1.0F},
    {7, GL_TRIANGLE_FAN, house},
    {8, GL_QUADS, from_behind}, // unseen
    {8, GL_QUADS, triangle},    // a corner short
    {9, GL_TRIANGLES, triangle, GL_SMOOTH, GL_FILL, 1.0F, 0.5F},
    {9, GL_QUADS, square}, // behind it
    {10, GL_POLYGON, house, GL_SMOOTH, GL_FILL, 1.0F, 0.0F},
    {10, GL_QUADS, square, GL_SMOOTH, GL_FILL, 1.0F, 0.1F, 0.4F},
    {11, GL_LINE_STRIP, house, GL_SMOOTH, GL_FILL, 12.0F, 0.0F, 0.5F},
    {11, GL_POINT, square}, // a mode of polygons, and none of shapes: nothing
};

/// Each corner in another colour.
void draw(GLenum mode, const Vertices& vertices, float z, float alpha) {
    glBegin(mode);
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        glColor4f(i % 2 == 0 ? 1.0F : 0.2F, i % 3 == 0 ? 1.0F : 0.3F, i == 1 ? 1.0F : 0.4F, alpha);
        glVertex3f(vertices[i][0], vertices[i][1], z);
    }
    glEnd();
}

/// None of what is drawn has coordinates in it.
void bindTexture() {
    const std::array<unsigned char, 3> pixel = {255, 0, 0};
    GLuint name = 0;
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_2D, name);
    glTexImage2D(GL_TEXTURE_2D, 0, 3, 1, 1, 0, GL_RGB, GL_UNSIGNED_BYTE, pixel.data());
}

void drawAll() {
    bindTexture();
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, 2.0 * columns, 0, 2.0 * rows, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    for (const GLenum capability : {GL_BLEND, GL_LINE_SMOOTH, GL_CULL_FACE, GL_DEPTH_TEST})
        glEnable(capability);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glClearColor(0.1F, 0.1F, 0.1F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    for (const auto& figure : figures) {
        glLoadIdentity();
        glTranslatef(static_cast<float>(figure.place % columns * 2 + 1),
                     static_cast<float>(figure.place / columns * 2 + 1), 0);
        glShadeModel(figure.shading);
        glPolygonMode(GL_FRONT_AND_BACK, figure.filling);
        glLineWidth(figure.lineWidth);
        draw(figure.mode, figure.vertices, figure.z, figure.alpha);
    }
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 4) return 2;
    const int width = std::stoi(argv[2]), height = std::stoi(argv[3]);
    SDL_Init(SDL_INIT_VIDEO);
    if (SDL_SetVideoMode(width, height, 0, SDL_OPENGL) == nullptr) {
        std::cerr << "kov_figures: no display: " << SDL_GetError() << '\n';
        return 1;
    }
    glewInit();
    glViewport(0, 0, width, height);
    drawAll();
    gallery::Picture::ofScreen(width, height).save(std::string(argv[1]) + "/figures.ppm");
    return 0;
}
