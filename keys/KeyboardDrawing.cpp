#include "keys/KeyboardDrawing.h"

#include "Framework/Graphics/Draw.h"

#include <SDL_keysym.h>

namespace quorva::keys {

namespace {

using namespace quorva::graphics;

constexpr double key_size = 1.6, gap = 0.1;              // world units; the gap on each side
constexpr double whole_width = 22.5, whole_height = 6.3; // keys

/// Keys of one character each, from the left; x and y of the first from the upper left, in keys.
const struct {
    double x, y;
    const char* characters;
} runs[] = {{0.0, 1.3, "`1234567890-="},
            {1.5, 2.3, "qwertyuiop[]"},
            {1.75, 3.3, "asdfghjkl;'"},
            {2.25, 4.3, "zxcvbnm,./"}};

const struct {
    int symbol;
    double x, y, width = 1.0, height = 1.0;
} others[] = {
    {SDLK_ESCAPE, 0.0, 0.0},
    {SDLK_F1, 2.0, 0.0},
    {0, 3.0, 0.0},
    {0, 4.0, 0.0},
    {0, 5.0, 0.0},
    {0, 6.5, 0.0},
    {0, 7.5, 0.0},
    {0, 8.5, 0.0},
    {0, 9.5, 0.0},
    {0, 11.0, 0.0},
    {0, 12.0, 0.0},
    {0, 13.0, 0.0},
    {0, 14.0, 0.0},
    {SDLK_BACKSPACE, 13.0, 1.3, 2.0},
    {SDLK_TAB, 0.0, 2.3, 1.5},
    {0, 13.5, 2.3, 1.5},
    {0, 0.0, 3.3, 1.75},
    {SDLK_RETURN, 12.75, 3.3, 2.25},
    {SDLK_LSHIFT, 0.0, 4.3, 2.25},
    {SDLK_RSHIFT, 12.25, 4.3, 2.75},
    {SDLK_LCTRL, 0.0, 5.3, 1.25},
    {SDLK_LSUPER, 1.25, 5.3, 1.25},
    {SDLK_LALT, 2.5, 5.3, 1.25},
    {SDLK_SPACE, 3.75, 5.3, 6.25},
    {SDLK_RALT, 10.0, 5.3, 1.25},
    {SDLK_RSUPER, 11.25, 5.3, 1.25},
    {0, 12.5, 5.3, 1.25},
    {SDLK_RCTRL, 13.75, 5.3, 1.25},
    {SDLK_INSERT, 15.25, 1.3},
    {SDLK_HOME, 16.25, 1.3},
    {SDLK_PAGEUP, 17.25, 1.3},
    {0, 15.25, 2.3},
    {SDLK_END, 16.25, 2.3},
    {SDLK_PAGEDOWN, 17.25, 2.3},
    {SDLK_UP, 16.25, 4.3},
    {SDLK_LEFT, 15.25, 5.3},
    {SDLK_DOWN, 16.25, 5.3},
    {SDLK_RIGHT, 17.25, 5.3},
    {0, 18.5, 1.3},
    {SDLK_KP_DIVIDE, 19.5, 1.3},
    {SDLK_KP_MULTIPLY, 20.5, 1.3},
    {SDLK_KP_MINUS, 21.5, 1.3},
    {SDLK_KP7, 18.5, 2.3},
    {SDLK_KP8, 19.5, 2.3},
    {SDLK_KP9, 20.5, 2.3},
    {SDLK_KP_PLUS, 21.5, 2.3, 1.0, 2.0},
    {SDLK_KP4, 18.5, 3.3},
    {SDLK_KP5, 19.5, 3.3},
    {SDLK_KP6, 20.5, 3.3},
    {SDLK_KP1, 18.5, 4.3},
    {SDLK_KP2, 19.5, 4.3},
    {SDLK_KP3, 20.5, 4.3},
    {SDLK_KP_ENTER, 21.5, 4.3, 1.0, 2.0},
    {SDLK_KP0, 18.5, 5.3, 2.0},
    {SDLK_KP_PERIOD, 20.5, 5.3},
};

/// Which way the arrow on a key points.
const struct {
    int symbol;
    double x, y;
} arrows[] = {
    {SDLK_UP, 0.0, 1.0}, {SDLK_DOWN, 0.0, -1.0}, {SDLK_LEFT, -1.0, 0.0}, {SDLK_RIGHT, 1.0, 0.0}};
constexpr double arrow_length = 0.25, arrow_half_width = 0.35; // world units

KeyboardDrawing::Key keyAt(int symbol, double x, double y, double width = 1.0,
                           double height = 1.0) {
    const double left = (x - whole_width / 2.0) * key_size;
    const double top = (whole_height / 2.0 - y) * key_size;
    return {symbol, primitives::Box(top - gap, top - height * key_size + gap, left + gap,
                                    left + width * key_size - gap)};
}

void drawArrow(const KeyboardDrawing::Key& key) {
    const double x = (key.box.left + key.box.right) / 2.0, y = (key.box.top + key.box.bottom) / 2.0;
    for (const auto& arrow : arrows) {
        if (arrow.symbol != key.symbol) continue;
        const double dx = arrow.x * arrow_length / 2.0, dy = arrow.y * arrow_length / 2.0;
        const double acrossX = arrow.y * arrow_half_width, acrossY = arrow.x * arrow_half_width;
        draw::begin(SHAPE_LINE_STRIP);
        draw::vertex2D(x - dx - acrossX, y - dy - acrossY);
        draw::vertex2D(x + dx, y + dy);
        draw::vertex2D(x - dx + acrossX, y - dy + acrossY);
        draw::end();
    }
}

void drawCorners(ShapeEnum shape, const primitives::Box& box) {
    draw::begin(shape);
    draw::vertex2D(box.left, box.bottom);
    draw::vertex2D(box.right, box.bottom);
    draw::vertex2D(box.right, box.top);
    draw::vertex2D(box.left, box.top);
    draw::end();
}

} // namespace

const std::vector<KeyboardDrawing::Key>& KeyboardDrawing::keys() {
    static const std::vector<Key> all = [] {
        std::vector<Key> keys;
        for (const auto& run : runs)
            for (std::size_t i = 0; run.characters[i] != '\0'; ++i)
                keys.push_back(keyAt(run.characters[i], run.x + static_cast<double>(i), run.y));
        for (const auto& key : others)
            keys.push_back(keyAt(key.symbol, key.x, key.y, key.width, key.height));
        return keys;
    }();
    return all;
}

Part KeyboardDrawing::partOf(const Key& key) const {
    const input::InputKey* const asked = questions->asked();
    if (asked != nullptr && asked->key == key.symbol) return Part::asked;
    for (const input::InputKey& binding : questions->bindings())
        if (binding.key == key.symbol) return Part::bound;
    return Part::plain;
}

void KeyboardDrawing::drawParts(Part kind) const {
    for (const Key& key : keys()) {
        if (partOf(key) != kind) continue;
        drawCorners(SHAPE_LINE_LOOP, key.box);
        drawArrow(key);
    }
}

void KeyboardDrawing::fillAsked() const {
    for (const Key& key : keys())
        if (partOf(key) == Part::asked) drawCorners(SHAPE_QUADS, key.box);
}

} // namespace quorva::keys
