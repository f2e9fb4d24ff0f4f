#pragma once

#include "Framework/Graphics/Colour.h"

namespace quorva::graphics {

// OpenGL's own defaults.
constexpr Colour default_material_ambient(0.2F, 0.2F, 0.2F, 1.0F);
constexpr Colour default_material_diffuse(0.8F, 0.8F, 0.8F, 1.0F);
constexpr Colour default_material_specular(0.0F, 0.0F, 0.0F, 1.0F);
constexpr Colour default_material_emission(0.0F, 0.0F, 0.0F, 1.0F);

/// How a lit surface would look. It completes the drawing layer: the game has no lighting, and
/// fills a material from resource lines only.
class Material {
public:
    // Resources, not owned. Each counts only while its flag is set.
    const Colour* ambient = nullptr;
    const Colour* diffuse = nullptr;
    const Colour* specular = nullptr;
    const Colour* emissive = nullptr;
    float shininess = 0.0F; ///< not sent to GL
    bool hasAmbient = false;
    bool hasDiffuse = false;
    bool hasSpecular = false;
    bool hasEmissive = false;
};

// Each sends the material's colour, or the default where it has none.
void useMaterialAmbient(const Material& material);
void useMaterialDiffuse(const Material& material);
void useMaterialSpecular(const Material& material);
void useMaterialEmissive(const Material& material);
void useMaterial(const Material& material); ///< ambient, specular, diffuse, emissive
void useMaterial(const Material* material); ///< the same; not null

} // namespace quorva::graphics
