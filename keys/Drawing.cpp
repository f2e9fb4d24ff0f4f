#include "keys/Drawing.h"

#include "Framework/Graphics/Draw.h"
#include "Framework/Graphics/LineWidth.h"

namespace quorva::keys {

namespace {

constexpr float plain_width = 1.5F, bound_width = 2.5F, asked_width = 4.0F; // reference pixels
constexpr float glow = 0.3F;                                                // alpha

} // namespace

void Drawing::render() {
    begin();
    const struct {
        Part kind;
        const graphics::Colour* colour;
        float width;
    } rows[] = {{Part::plain, plainColour, plain_width},
                {Part::bound, boundColour, bound_width},
                {Part::asked, askedColour, asked_width}};
    for (const auto& row : rows) {
        graphics::draw::setColour(*row.colour);
        graphics::draw::setLineWidth(math::lineWidthScale(row.width));
        drawParts(row.kind);
    }
    graphics::Colour area = *askedColour;
    area.setAlpha(glow);
    graphics::draw::setColour(area);
    fillAsked();
}

} // namespace quorva::keys
