// The functions of OpenGL that the game calls, over one canvas of a page. What is drawn is
// transformed here and collected into one array, which the page draws in as few calls as the
// changes of state allow, mostly one a frame.

#include "platform/web/gl/Batch.h"
#include "platform/web/gl/Canvas.h"
#include "platform/web/gl/Frame.h"
#include "platform/web/gl/Matrices.h"
#include "platform/web/gl/Shape.h"

#include <GL/glew.h>

#include <algorithm>
#include <cmath>

namespace quorva::web {

namespace {

struct Context {
    Matrices matrices;
    Batch batch;
    Shape shape{batch};
    Style style;
    Colour colour = {1, 1, 1, 1}, background{};
    bool depthTest = false, blending = false;
    GLuint textures = 0; ///< names given out
};

Context& context() {
    static auto* const only = new Context; // for calls at the very end
    return *only;
}

void flush() {
    context().batch.flush(context().depthTest, context().blending);
}

void change(bool& state, bool value) {
    if (state != value) flush();
    state = value;
}

void setCapability(GLenum capability, bool on) {
    if (capability == GL_DEPTH_TEST) change(context().depthTest, on);
    if (capability == GL_BLEND) change(context().blending, on);
    if (capability == GL_CULL_FACE) context().style.culling = on;
    // Lines are always smooth, as the game wants them; polygons never are, as with most drivers.
}

float narrow(double value) {
    return static_cast<float>(value);
}

} // namespace

void showFrame() {
    flush();
}

} // namespace quorva::web

using namespace quorva::web;

extern "C" {

GLenum GLAPIENTRY glewInit() {
    return GLEW_OK; // there are no extensions to find
}

void GLAPIENTRY glBegin(GLenum mode) {
    context().shape.begin(mode);
}
void GLAPIENTRY glEnd() {
    context().shape.end(context().style);
}
void GLAPIENTRY glVertex3f(GLfloat x, GLfloat y, GLfloat z) {
    context().shape.add(context().matrices.transform(x, y, z), context().colour);
}
void GLAPIENTRY glVertex2f(GLfloat x, GLfloat y) {
    glVertex3f(x, y, 0.0F);
}
void GLAPIENTRY glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a) {
    context().colour = {r, g, b, a};
}
void GLAPIENTRY glColor4fv(const GLfloat* parts) {
    std::copy_n(parts, 4, context().colour.begin());
}
void GLAPIENTRY glMaterialfv(GLenum, GLenum, const GLfloat*) {
    // There is no light that it could count for.
}

void GLAPIENTRY glMatrixMode(GLenum mode) {
    context().matrices.choose(mode == GL_PROJECTION);
}
void GLAPIENTRY glLoadIdentity() {
    context().matrices.load(Matrices::identity);
}
void GLAPIENTRY glPushMatrix() {
    context().matrices.push();
}
void GLAPIENTRY glPopMatrix() {
    context().matrices.pop();
}
void GLAPIENTRY glMultMatrixf(const GLfloat* elements) {
    Matrix matrix;
    std::copy_n(elements, matrix.size(), matrix.begin());
    context().matrices.multiply(matrix);
}
void GLAPIENTRY glTranslatef(GLfloat x, GLfloat y, GLfloat z) {
    context().matrices.multiply({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, z, 1});
}
void GLAPIENTRY glScalef(GLfloat x, GLfloat y, GLfloat z) {
    context().matrices.multiply({x, 0, 0, 0, 0, y, 0, 0, 0, 0, z, 0, 0, 0, 0, 1});
}
void GLAPIENTRY glRotatef(GLfloat degrees, GLfloat x, GLfloat y, GLfloat z) {
    const float length = std::sqrt(x * x + y * y + z * z);
    if (!(length > 0.0F)) return;
    x /= length;
    y /= length;
    z /= length;
    const float angle = degrees * narrow(3.14159265358979323846) / 180.0F;
    const float c = std::cos(angle), s = std::sin(angle), t = 1 - c;
    context().matrices.multiply({x * x * t + c, x * y * t + z * s, x * z * t - y * s, 0,
                                 x * y * t - z * s, y * y * t + c, y * z * t + x * s, 0,
                                 x * z * t + y * s, y * z * t - x * s, z * z * t + c, 0, //
                                 0, 0, 0, 1});
}
void GLAPIENTRY glOrtho(GLdouble l, GLdouble r, GLdouble b, GLdouble t, GLdouble n, GLdouble f) {
    context().matrices.multiply({narrow(2 / (r - l)), 0, 0, 0,  //
                                 0, narrow(2 / (t - b)), 0, 0,  //
                                 0, 0, narrow(-2 / (f - n)), 0, //
                                 narrow(-(r + l) / (r - l)), narrow(-(t + b) / (t - b)),
                                 narrow(-(f + n) / (f - n)), 1});
}
void GLAPIENTRY glFrustum(GLdouble l, GLdouble r, GLdouble b, GLdouble t, GLdouble n, GLdouble f) {
    context().matrices.multiply({narrow(2 * n / (r - l)), 0, 0, 0, //
                                 0, narrow(2 * n / (t - b)), 0, 0, //
                                 narrow((r + l) / (r - l)), narrow((t + b) / (t - b)),
                                 narrow(-(f + n) / (f - n)), -1, //
                                 0, 0, narrow(-2 * f * n / (f - n)), 0});
}
void GLAPIENTRY glViewport(GLint x, GLint y, GLsizei width, GLsizei height) {
    flush();
    context().batch.setViewport(width, height);
    kovViewport(x, y, width, height);
}
void GLAPIENTRY glDepthRange(GLclampd, GLclampd) {
    // The game asks for 0 to 5000, which GL cuts to the range that it has anyway.
}
void GLAPIENTRY glGetFloatv(GLenum name, GLfloat* values) {
    if (name != GL_PROJECTION_MATRIX) return;
    const Matrix& matrix = context().matrices.ofProjection();
    std::copy(matrix.begin(), matrix.end(), values);
}

void GLAPIENTRY glEnable(GLenum capability) {
    setCapability(capability, true);
}
void GLAPIENTRY glDisable(GLenum capability) {
    setCapability(capability, false);
}
void GLAPIENTRY glShadeModel(GLenum model) {
    context().style.smoothShading = model == GL_SMOOTH;
}
void GLAPIENTRY glPolygonMode(GLenum, GLenum mode) {
    context().style.filled = mode == GL_FILL;
}
void GLAPIENTRY glLineWidth(GLfloat width) {
    context().style.lineWidth = width;
}
void GLAPIENTRY glBlendFunc(GLenum, GLenum) {
    // By alpha, the only one that the game has.
}
void GLAPIENTRY glCullFace(GLenum) {
    // The back, likewise.
}
void GLAPIENTRY glClear(GLbitfield mask) {
    if ((mask & GL_COLOR_BUFFER_BIT) != 0) context().batch.clear(context().background);
}
void GLAPIENTRY glClearColor(GLclampf r, GLclampf g, GLclampf b, GLclampf a) {
    context().background = {r, g, b, a};
}
void GLAPIENTRY glClearAccum(GLfloat, GLfloat, GLfloat, GLfloat) {
    // Nothing is accumulated.
}

// The game loads textures and binds them, but draws nothing with them.
void GLAPIENTRY glGenTextures(GLsizei count, GLuint* names) {
    for (GLsizei i = 0; i < count; ++i)
        names[i] = ++context().textures;
}
void GLAPIENTRY glBindTexture(GLenum, GLuint) {}
void GLAPIENTRY glTexImage2D(GLenum, GLint, GLint, GLsizei, GLsizei, GLint, GLenum, GLenum,
                             const GLvoid*) {}
void GLAPIENTRY glTexParameteri(GLenum, GLenum, GLint) {}
void GLAPIENTRY glPixelStorei(GLenum, GLint) {}

void GLAPIENTRY glReadBuffer(GLenum) {}
void GLAPIENTRY glReadPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum, GLenum,
                             GLvoid* pixels) {
    flush();
    kovReadPixels(x, y, width, height, pixels);
}

} // extern "C"
