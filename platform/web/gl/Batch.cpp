#include "platform/web/gl/Batch.h"

#include "platform/web/gl/Canvas.h"

#include <algorithm>
#include <cmath>

namespace quorva::web {

namespace {

constexpr float everywhere = 4.0F; ///< half a width or length that fades nowhere
constexpr float fading = 0.5F;     ///< pixels, on both sides of an edge

std::array<std::uint8_t, 4> toBytes(const Colour& colour) {
    std::array<std::uint8_t, 4> bytes{};
    std::transform(colour.begin(), colour.end(), bytes.begin(), [](float part) {
        return static_cast<std::uint8_t>(std::lround(std::clamp(part, 0.0F, 1.0F) * 255.0F));
    });
    return bytes;
}

} // namespace

void Batch::setViewport(int width_, int height_) {
    width = static_cast<float>(width_);
    height = static_cast<float>(height_);
}

void Batch::addTriangle(const Vertex (&triangle)[3], const Colour (&colours)[3]) {
    for (int i = 0; i < 3; ++i)
        corners.push_back({triangle[i], toBytes(colours[i]), 0, everywhere, 0, everywhere});
}

void Batch::addLine(const Vertex& from, const Vertex& to, const Colour& fromColour,
                    const Colour& toColour, float lineWidth) {
    if (from.w <= 0.0F || to.w <= 0.0F) return; // behind the eye, where the game has nothing
    const Vertex a = {from.x / from.w, from.y / from.w, from.z / from.w, 1.0F};
    const Vertex b = {to.x / to.w, to.y / to.w, to.z / to.w, 1.0F};
    // From here on in pixels.
    const float dx = (b.x - a.x) * width / 2, dy = (b.y - a.y) * height / 2;
    const float length = std::hypot(dx, dy);
    const float halfWidth = std::max(lineWidth, 1.0F) / 2 + fading;
    const float halfLength = length / 2 + fading;
    const float ux = length > 0 ? dx / length : 1.0F, uy = length > 0 ? dy / length : 0.0F;
    const auto colourA = toBytes(fromColour), colourB = toBytes(toColour);
    const auto corner = [&](bool atEnd, float side) {
        const float along = atEnd ? fading : -fading, across = side * halfWidth;
        Vertex position = atEnd ? b : a;
        position.x += (ux * along - uy * across) * 2 / width;
        position.y += (uy * along + ux * across) * 2 / height;
        return Corner{position,  atEnd ? colourB : colourA,        across,
                      halfWidth, atEnd ? halfLength : -halfLength, halfLength};
    };
    const Corner quad[] = {corner(false, -1), corner(true, -1), corner(true, 1), corner(false, 1)};
    for (const int i : {0, 1, 2, 0, 2, 3})
        corners.push_back(quad[i]);
}

void Batch::clear(const Colour& background_) {
    corners.clear();
    clears = true;
    background = background_;
}

void Batch::flush(bool depthTest, bool blending) {
    if (clears) kovClear(background[0], background[1], background[2]);
    clears = false;
    if (!corners.empty())
        kovDraw(corners.data(), static_cast<int>(corners.size()), depthTest, blending);
    corners.clear();
}

} // namespace quorva::web
