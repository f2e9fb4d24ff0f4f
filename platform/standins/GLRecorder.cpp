#include <GL/glew.h>

#include "platform/standins/GLRecorder.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

namespace quorva::standins {

namespace {

/// Those that the game sends. Of the small numbers GL uses again and again these are of glBegin.
const std::map<GLenum, const char*> symbol_names = {
    {GL_LINES, "LINES"},
    {GL_LINE_LOOP, "LINE_LOOP"},
    {GL_LINE_STRIP, "LINE_STRIP"},
    {GL_TRIANGLES, "TRIANGLES"},
    {GL_TRIANGLE_STRIP, "TRIANGLE_STRIP"},
    {GL_TRIANGLE_FAN, "TRIANGLE_FAN"},
    {GL_QUADS, "QUADS"},
    {GL_POLYGON, "POLYGON"},
    {GL_POINT, "POINT"},
    {GL_LINE, "LINE"},
    {GL_FILL, "FILL"},
    {GL_BACK, "BACK"},
    {GL_FRONT_AND_BACK, "FRONT_AND_BACK"},
    {GL_DEPTH_TEST, "DEPTH_TEST"},
    {GL_ALPHA_TEST, "ALPHA_TEST"},
    {GL_BLEND, "BLEND"},
    {GL_CULL_FACE, "CULL_FACE"},
    {GL_LINE_SMOOTH, "LINE_SMOOTH"},
    {GL_POLYGON_SMOOTH, "POLYGON_SMOOTH"},
    {GL_FLAT, "FLAT"},
    {GL_SMOOTH, "SMOOTH"},
    {GL_SRC_ALPHA, "SRC_ALPHA"},
    {GL_ONE_MINUS_SRC_ALPHA, "ONE_MINUS_SRC_ALPHA"},
    {GL_MODELVIEW, "MODELVIEW"},
    {GL_PROJECTION, "PROJECTION"},
    {GL_PROJECTION_MATRIX, "PROJECTION_MATRIX"},
    {GL_AMBIENT, "AMBIENT"},
    {GL_DIFFUSE, "DIFFUSE"},
    {GL_SPECULAR, "SPECULAR"},
    {GL_EMISSION, "EMISSION"},
    {GL_ACCUM_BUFFER_BIT, "ACCUM"},
    {GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT, "COLOUR+DEPTH"},
    {GL_TEXTURE_2D, "TEXTURE_2D"},
    {GL_TEXTURE_MIN_FILTER, "MIN_FILTER"},
    {GL_TEXTURE_MAG_FILTER, "MAG_FILTER"},
    {GL_TEXTURE_WRAP_S, "WRAP_S"},
    {GL_TEXTURE_WRAP_T, "WRAP_T"},
    {GL_LINEAR, "LINEAR"},
    {GL_REPEAT, "REPEAT"},
    {GL_RGB, "RGB"},
    {GL_RGBA, "RGBA"},
    {GL_BGRA, "BGRA"},
    {GL_UNSIGNED_BYTE, "UNSIGNED_BYTE"},
    {GL_UNPACK_ALIGNMENT, "UNPACK_ALIGNMENT"},
};

void writeArgument(std::ostream& out, double value, bool isSymbol) {
    const auto symbol =
        isSymbol ? symbol_names.find(static_cast<GLenum>(value)) : symbol_names.end();
    if (symbol != symbol_names.end())
        out << ' ' << symbol->second;
    else
        out << ' ' << std::round(value * 1e4) / 1e4 + 0.0; // never -0
}

} // namespace

void GLRecorder::start() {
    calls.clear();
    recording = true;
}

void GLRecorder::note(const std::string& line) {
    if (!recording) return;
    calls.emplace_back();
    calls.back().name = line;
}

std::string GLRecorder::text() const {
    std::ostringstream out;
    out.precision(10);
    for (const GLCall& call : calls) {
        out << call.name;
        for (unsigned int i = 0; i < call.count; ++i)
            writeArgument(out, call.arguments[i], (call.symbols >> i & 1U) != 0);
        out << '\n';
    }
    return out.str();
}

std::vector<GLCall> GLRecorder::callsTo(const std::string& name) const {
    std::vector<GLCall> found;
    for (const GLCall& call : calls)
        if (call.name == name) found.push_back(call);
    return found;
}

GLRecorder& glRecorder() {
    static GLRecorder recorder; // calls come before main already
    return recorder;
}

} // namespace quorva::standins

namespace {

constexpr GLint largest_texture = 2048; // pixels; the library of the fonts asks

/// An argument that is one of GL's constants.
struct Symbol {
    explicit Symbol(GLenum value_) : value(value_) {}
    explicit operator double() const { return value; }
    GLenum value;
};

template <class... Arguments>
void record(const char* name, Arguments... arguments) {
    auto& recorder = quorva::standins::glRecorder();
    ++recorder.total;
    if (!recorder.recording) return;
    std::uint32_t symbols = 0;
    [[maybe_unused]] unsigned int i = 0;
    ((symbols |= std::uint32_t{std::is_same_v<Arguments, Symbol>} << i++), ...);
    recorder.calls.push_back(
        {name, {static_cast<double>(arguments)...}, sizeof...(arguments), symbols});
}

/// The pixels without the padding that GL takes to be behind each row.
std::vector<unsigned char> unpack(const GLvoid* pixels, GLsizei w, GLsizei h, GLenum format) {
    const std::size_t row = static_cast<std::size_t>(w) * (format == GL_RGB ? 3 : 4);
    const std::size_t alignment = quorva::standins::glRecorder().unpackAlignment;
    const std::size_t stride = (row + alignment - 1) / alignment * alignment;
    std::vector<unsigned char> image;
    const auto* const first = static_cast<const unsigned char*>(pixels);
    for (GLsizei y = 0; y < h; ++y)
        image.insert(image.end(), first + y * stride, first + y * stride + row);
    return image;
}

/// Names of lists and textures, never given twice.
GLuint nextNames(GLsizei count) {
    static GLuint next = 1;
    const GLuint first = next;
    next += static_cast<GLuint>(count);
    return first;
}

} // namespace

extern "C" {

GLenum GLAPIENTRY glewInit() {
    return GLEW_OK;
}

void GLAPIENTRY glBegin(GLenum mode) {
    record("glBegin", Symbol(mode));
}
void GLAPIENTRY glEnd() {
    record("glEnd");
}
void GLAPIENTRY glVertex2f(GLfloat x, GLfloat y) {
    record("glVertex2f", x, y);
}
void GLAPIENTRY glVertex3f(GLfloat x, GLfloat y, GLfloat z) {
    record("glVertex3f", x, y, z);
}
void GLAPIENTRY glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a) {
    record("glColor4f", r, g, b, a);
}
void GLAPIENTRY glColor4fv(const GLfloat* c) {
    record("glColor4fv", c[0], c[1], c[2], c[3]);
}
void GLAPIENTRY glPushMatrix() {
    record("glPushMatrix");
}
void GLAPIENTRY glPopMatrix() {
    record("glPopMatrix");
}
void GLAPIENTRY glTranslatef(GLfloat x, GLfloat y, GLfloat z) {
    record("glTranslatef", x, y, z);
}
void GLAPIENTRY glScalef(GLfloat x, GLfloat y, GLfloat z) {
    record("glScalef", x, y, z);
}
void GLAPIENTRY glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z) {
    record("glRotatef", angle, x, y, z);
}
void GLAPIENTRY glMultMatrixf(const GLfloat* m) {
    record("glMultMatrixf", m[0], m[1], m[2], m[3], m[4], m[5], m[6], m[7], m[8], m[9], m[10],
           m[11], m[12], m[13], m[14], m[15]);
}
void GLAPIENTRY glMaterialfv(GLenum face, GLenum parameter, const GLfloat* c) {
    record("glMaterialfv", Symbol(face), Symbol(parameter), c[0], c[1], c[2], c[3]);
}
void GLAPIENTRY glMatrixMode(GLenum mode) {
    record("glMatrixMode", Symbol(mode));
}
void GLAPIENTRY glLoadIdentity() {
    record("glLoadIdentity");
}
void GLAPIENTRY glOrtho(GLdouble l, GLdouble r, GLdouble b, GLdouble t, GLdouble n, GLdouble f) {
    record("glOrtho", l, r, b, t, n, f);
}
void GLAPIENTRY glFrustum(GLdouble l, GLdouble r, GLdouble b, GLdouble t, GLdouble n, GLdouble f) {
    record("glFrustum", l, r, b, t, n, f);
}
void GLAPIENTRY glViewport(GLint x, GLint y, GLsizei w, GLsizei h) {
    record("glViewport", x, y, w, h);
}
void GLAPIENTRY glDepthRange(GLclampd near, GLclampd far) {
    record("glDepthRange", near, far);
}
void GLAPIENTRY glGetFloatv(GLenum name, GLfloat* values) {
    record("glGetFloatv", Symbol(name));
    for (int i = 0; i < 16; ++i)
        values[i] = i % 5 == 0 ? 1.0F : 0.0F;
}
void GLAPIENTRY glEnable(GLenum what) {
    record("glEnable", Symbol(what));
}
void GLAPIENTRY glDisable(GLenum what) {
    record("glDisable", Symbol(what));
}
void GLAPIENTRY glShadeModel(GLenum mode) {
    record("glShadeModel", Symbol(mode));
}
void GLAPIENTRY glPolygonMode(GLenum face, GLenum mode) {
    record("glPolygonMode", Symbol(face), Symbol(mode));
}
void GLAPIENTRY glLineWidth(GLfloat width) {
    record("glLineWidth", width);
}
void GLAPIENTRY glBlendFunc(GLenum source, GLenum target) {
    record("glBlendFunc", Symbol(source), Symbol(target));
}
void GLAPIENTRY glCullFace(GLenum mode) {
    record("glCullFace", Symbol(mode));
}
void GLAPIENTRY glClear(GLbitfield mask) {
    record("glClear", Symbol(mask));
    if ((mask & GL_COLOR_BUFFER_BIT) != 0) ++quorva::standins::glRecorder().frames;
}
/// Each pixel, of four bytes, is the number of the frame.
void GLAPIENTRY glReadPixels(GLint x, GLint y, GLsizei w, GLsizei h, GLenum format, GLenum type,
                             GLvoid* pixels) {
    record("glReadPixels", x, y, w, h, Symbol(format), Symbol(type));
    std::fill_n(static_cast<std::uint32_t*>(pixels), w * h, quorva::standins::glRecorder().frames);
}
void GLAPIENTRY glClearColor(GLclampf r, GLclampf g, GLclampf b, GLclampf a) {
    record("glClearColor", r, g, b, a);
}
void GLAPIENTRY glClearAccum(GLfloat r, GLfloat g, GLfloat b, GLfloat a) {
    record("glClearAccum", r, g, b, a);
}

void GLAPIENTRY glGenTextures(GLsizei count, GLuint* names) {
    record("glGenTextures", count);
    for (GLsizei i = 0; i < count; ++i)
        names[i] = nextNames(1);
}
void GLAPIENTRY glBindTexture(GLenum target, GLuint name) {
    record("glBindTexture", Symbol(target), name);
}
void GLAPIENTRY glTexImage2D(GLenum target, GLint level, GLint internal, GLsizei w, GLsizei h,
                             GLint border, GLenum format, GLenum type, const GLvoid* pixels) {
    record("glTexImage2D", Symbol(target), level, internal, w, h, border, Symbol(format),
           Symbol(type));
    if (format == GL_RGB || format == GL_RGBA)
        quorva::standins::glRecorder().image = unpack(pixels, w, h, format);
}
void GLAPIENTRY glPixelStorei(GLenum name, GLint value) {
    record("glPixelStorei", Symbol(name), value);
    if (name == GL_UNPACK_ALIGNMENT) quorva::standins::glRecorder().unpackAlignment = value;
}
void GLAPIENTRY glTexParameteri(GLenum target, GLenum name, GLint value) {
    record("glTexParameteri", Symbol(target), Symbol(name), Symbol(static_cast<GLenum>(value)));
}

// What the font library draws with.
GLuint GLAPIENTRY glGenLists(GLsizei range) {
    record("glGenLists", range);
    return nextNames(range);
}
void GLAPIENTRY glNewList(GLuint list, GLenum mode) {
    record("glNewList", list, mode);
}
void GLAPIENTRY glEndList() {
    record("glEndList");
}
void GLAPIENTRY glCallList(GLuint list) {
    record("glCallList", list);
}
void GLAPIENTRY glDeleteLists(GLuint list, GLsizei range) {
    record("glDeleteLists", list, range);
}
void GLAPIENTRY glNormal3d(GLdouble x, GLdouble y, GLdouble z) {
    record("glNormal3d", x, y, z);
}
void GLAPIENTRY glNormal3f(GLfloat x, GLfloat y, GLfloat z) {
    record("glNormal3f", x, y, z);
}
void GLAPIENTRY glTexCoord2f(GLfloat s, GLfloat t) {
    record("glTexCoord2f", s, t);
}
void GLAPIENTRY glVertex2fv(const GLfloat* v) {
    record("glVertex2f", v[0], v[1]);
}
void GLAPIENTRY glVertex3d(GLdouble x, GLdouble y, GLdouble z) {
    record("glVertex3d", x, y, z);
}
void GLAPIENTRY glTexEnvi(GLenum t, GLenum p, GLint v) {
    record("glTexEnvi", t, p, v);
}
void GLAPIENTRY glPushAttrib(GLbitfield mask) {
    record("glPushAttrib", mask);
}
void GLAPIENTRY glPopAttrib() {
    record("glPopAttrib");
}
void GLAPIENTRY glPushClientAttrib(GLbitfield mask) {
    record("glPushClientAttrib", mask);
}
void GLAPIENTRY glPopClientAttrib() {
    record("glPopClientAttrib");
}
void GLAPIENTRY glGetIntegerv(GLenum name, GLint* value) {
    record("glGetIntegerv", name);
    *value = name == GL_MAX_TEXTURE_SIZE ? largest_texture : 0;
}
GLenum GLAPIENTRY glGetError() {
    return GL_NO_ERROR;
}

} // extern "C"
