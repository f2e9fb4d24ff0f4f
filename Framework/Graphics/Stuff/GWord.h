#pragma once

#include "Framework/Graphics/Font.h"
#include "Framework/Graphics/Shape.h"
#include "Framework/Primitives/Box.h"

#include <string>

namespace quorva::graphics {

/// Which point of the text stands at `position`; any other number counts as left.
enum AlignmentE { ALIGN_LEFT, ALIGN_RIGHT, ALIGN_CENTRE };

/// A text in a font. Right and centred ones are shifted by `bounds`, which only setWord renews:
/// writing `word` directly keeps the text where its old one stood.
class GWord : public Shape {
public:
    void setWord(const char* text); ///< measures it, which walks the glyphs: not for every frame

    void render() override;

    std::string word;     ///< UTF-8
    Font* font = nullptr; ///< not owned; set before the first setWord
    int alignment = ALIGN_LEFT;
    primitives::Box bounds{0.0, 0.0, 0.0, 0.0, 0.0, -1.0}; ///< extents of the text last set
};

} // namespace quorva::graphics
