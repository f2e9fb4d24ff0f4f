#include <GL/glew.h>

#include "Framework/Graphics/Material.h"

namespace quorva::graphics {

namespace {

void send(GLenum parameter, const Colour* colour, bool counts, const Colour& fallback) {
    const Colour& used = counts && colour != nullptr ? *colour : fallback;
    glMaterialfv(GL_FRONT_AND_BACK, parameter, used.data());
}

} // namespace

void useMaterialAmbient(const Material& m) {
    send(GL_AMBIENT, m.ambient, m.hasAmbient, default_material_ambient);
}

void useMaterialDiffuse(const Material& m) {
    send(GL_DIFFUSE, m.diffuse, m.hasDiffuse, default_material_diffuse);
}

void useMaterialSpecular(const Material& m) {
    send(GL_SPECULAR, m.specular, m.hasSpecular, default_material_specular);
}

void useMaterialEmissive(const Material& m) {
    send(GL_EMISSION, m.emissive, m.hasEmissive, default_material_emission);
}

void useMaterial(const Material& m) {
    useMaterialAmbient(m);
    useMaterialSpecular(m);
    useMaterialDiffuse(m);
    useMaterialEmissive(m);
}

void useMaterial(const Material* m) {
    useMaterial(*m);
}

} // namespace quorva::graphics
