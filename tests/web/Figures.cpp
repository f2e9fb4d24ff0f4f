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

constexpr float columns = 4, rows = 3; ///< of figures, each from -1 to 1

const Vertices square = {{-0.7F, -0.7F}, {0.7F, -0.7F}, {0.7F, 0.7F}, {-0.7F, 0.7F}};
const Vertices square_from_behind = {{-0.7F, -0.7F}, {-0.7F, 0.7F}, {0.7F, 0.7F}, {0.7F, -0.7F}};
const Vertices triangle = {{-0.7F, -0.6F}, {0.7F, -0.6F}, {0.0F, 0.7F}};
const Vertices band = {{-0.8F, -0.3F}, {-0.8F, 0.3F}, {-0.2F, -0.3F},
                       {-0.2F, 0.3F},  {0.6F, -0.6F}, {0.6F, 0.6F}};
const Vertices house = {{-0.6F, -0.7F}, {0.6F, -0.7F}, {0.6F, 0.2F}, {0.0F, 0.8F}, {-0.6F, 0.2F}};

/// Each corner in another colour.
void draw(GLenum mode, const Vertices& vertices, float z = 0.0F, float alpha = 1.0F) {
    glBegin(mode);
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        glColor4f(i % 2 == 0 ? 1.0F : 0.2F, i % 3 == 0 ? 1.0F : 0.3F, i == 1 ? 1.0F : 0.4F, alpha);
        glVertex3f(vertices[i][0], vertices[i][1], z);
    }
    glEnd();
}

void flat() {
    glShadeModel(
        GL_FLAT); // a polygon has its first corner's colour, all others have the last one's
    draw(GL_POLYGON, house);
    glTranslatef(2, 0, 0);
    draw(GL_TRIANGLE_STRIP, band);
    glTranslatef(2, 0, 0);
    draw(GL_LINE_LOOP, square);
    glTranslatef(2, 0, 0);
    draw(GL_TRIANGLES, triangle);
    glShadeModel(GL_SMOOTH);
}

void outlines() {
    glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    glLineWidth(5);
    draw(GL_QUADS, square);
    glTranslatef(2, 0, 0);
    draw(GL_POLYGON, house); // without lines across
    glTranslatef(2, 0, 0);
    glLineWidth(1);
    draw(GL_TRIANGLES, triangle);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glTranslatef(2, 0, 0);
    draw(GL_TRIANGLE_FAN, house);
}

void order() {
    glEnable(GL_CULL_FACE);
    glCullFace(GL_BACK);
    draw(GL_QUADS, square_from_behind); // unseen
    draw(GL_QUADS, triangle);           // a corner short
    glDisable(GL_CULL_FACE);
    glTranslatef(2, 0, 0);
    glEnable(GL_DEPTH_TEST);
    draw(GL_TRIANGLES, triangle, 0.5F);
    draw(GL_QUADS, square, 0.0F); // behind it
    glDisable(GL_DEPTH_TEST);
    glTranslatef(2, 0, 0);
    draw(GL_POLYGON, house);
    draw(GL_QUADS, square, 0.0F, 0.4F);
    glTranslatef(2, 0, 0);
    glLineWidth(12);
    draw(GL_LINE_STRIP, house, 0.0F, 0.5F);
    draw(GL_POINT, square); // a mode of polygons, and none of shapes: nothing
}

void bindTexture() {
    const std::array<unsigned char, 3> pixel = {255, 0, 0};
    GLuint name = 0;
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_2D, name);
    glTexImage2D(GL_TEXTURE_2D, 0, 3, 1, 1, 0, GL_RGB, GL_UNSIGNED_BYTE, pixel.data());
}

void drawAll() {
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, 2.0 * columns, 0, 2.0 * rows, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glEnable(GL_LINE_SMOOTH);
    bindTexture();
    glClearColor(0.1F, 0.1F, 0.1F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glTranslatef(1, 1, 0);
    for (const auto row : {flat, outlines, order}) {
        glPushMatrix();
        row();
        glPopMatrix();
        glTranslatef(0, 2, 0);
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
