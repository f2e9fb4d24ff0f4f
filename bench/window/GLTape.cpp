#include "bench/window/GLTape.h"

#include "bench/window/FewestCalls.h"

#include <GL/gl.h>

#include <dlfcn.h>

namespace bench {

void GLTape::record() {
    calls.clear();
    recording = true;
}

void GLTape::play() const {
    for (const Call& call : calls)
        call.play(call.bytes);
}

GLTape& glTape() {
    static GLTape tape;
    return tape;
}

} // namespace bench

using bench::fewestCalls;
using bench::glTape;

/// The real function of that name.
#define BEHIND(name)                                                                               \
    static auto* const behind = reinterpret_cast<decltype(&name)>(dlsym(RTLD_NEXT, #name))

#define PASS(name, parameters, ...)                                                                \
    void name parameters {                                                                         \
        BEHIND(name);                                                                              \
        glTape().pass(__VA_ARGS__);                                                                \
    }

extern "C" {

// The calls of a frame. Calls that only set the game up are not recorded.
void glBegin(GLenum mode) {
    BEHIND(glBegin);
    fewestCalls().begin(mode);
    glTape().pass(behind, mode);
}
void glVertex2f(GLfloat x, GLfloat y) {
    BEHIND(glVertex2f);
    fewestCalls().vertex(x, y, 0.0);
    glTape().pass(behind, x, y);
}
void glVertex3f(GLfloat x, GLfloat y, GLfloat z) {
    BEHIND(glVertex3f);
    fewestCalls().vertex(x, y, z);
    glTape().pass(behind, x, y, z);
}
void glEnd() {
    BEHIND(glEnd);
    glTape().pass(behind);
    fewestCalls().end();
}
void glNewList(GLuint list, GLenum mode) {
    BEHIND(glNewList);
    fewestCalls().newList(list);
    glTape().pass(behind, list, mode);
}
void glEndList() {
    BEHIND(glEndList);
    glTape().pass(behind);
    fewestCalls().endList();
}
void glCallList(GLuint list) {
    BEHIND(glCallList);
    fewestCalls().callList(list);
    glTape().pass(behind, list);
}
PASS(glNormal3f, (GLfloat x, GLfloat y, GLfloat z), behind, x, y, z)
PASS(glNormal3d, (GLdouble x, GLdouble y, GLdouble z), behind, x, y, z)
PASS(glTexCoord2f, (GLfloat s, GLfloat t), behind, s, t)
PASS(glColor4f, (GLfloat r, GLfloat g, GLfloat b, GLfloat a), behind, r, g, b, a)
PASS(glPushMatrix, (), behind)
PASS(glPopMatrix, (), behind)
PASS(glTranslatef, (GLfloat x, GLfloat y, GLfloat z), behind, x, y, z)
PASS(glScalef, (GLfloat x, GLfloat y, GLfloat z), behind, x, y, z)
PASS(glRotatef, (GLfloat angle, GLfloat x, GLfloat y, GLfloat z), behind, angle, x, y, z)
PASS(glMatrixMode, (GLenum mode), behind, mode)
PASS(glLoadIdentity, (), behind)
PASS(glOrtho, (GLdouble l, GLdouble r, GLdouble b, GLdouble t, GLdouble n, GLdouble f), behind, l,
     r, b, t, n, f)
PASS(glViewport, (GLint x, GLint y, GLsizei w, GLsizei h), behind, x, y, w, h)
PASS(glDepthRange, (GLclampd n, GLclampd f), behind, n, f)
PASS(glEnable, (GLenum what), behind, what)
PASS(glDisable, (GLenum what), behind, what)
PASS(glShadeModel, (GLenum mode), behind, mode)
PASS(glPolygonMode, (GLenum face, GLenum mode), behind, face, mode)
PASS(glLineWidth, (GLfloat width), behind, width)
PASS(glBlendFunc, (GLenum source, GLenum target), behind, source, target)
PASS(glHint, (GLenum what, GLenum mode), behind, what, mode)
PASS(glClear, (GLbitfield mask), behind, mask)
PASS(glPushAttrib, (GLbitfield mask), behind, mask)
PASS(glPopAttrib, (), behind)
PASS(glPushClientAttrib, (GLbitfield mask), behind, mask)
PASS(glPopClientAttrib, (), behind)
PASS(glBindTexture, (GLenum target, GLuint name), behind, target, name)
PASS(glTexEnvi, (GLenum target, GLenum name, GLint value), behind, target, name, value)

void glColor4fv(const GLfloat* colour) {
    BEHIND(glColor4fv);
    glTape().passFloats(behind, colour, 4);
}
void glMultMatrixf(const GLfloat* matrix) {
    BEHIND(glMultMatrixf);
    glTape().passFloats(behind, matrix, 16);
}

} // extern "C"
