#include "game/HelpMenu.h"

#include "game/PageWords.h"

#include <iterator>

namespace {

const PageLine lines[] = {
    {10.0, "Help!"},
    {9.0, "The goal of this game is simple: Trap the triangles!"},
    {8.0, "Using the arrow keys to move and wasd to shoot you try to draw lines around triangles."},
    {7.0, "Once you surround a triangle on all 4 sides to make a rectangle they will explode in "},
    {6.0, "a most glorious fashion."},
    {5.0, "For more information please see the manual.html file in the game directory."},
};

} // namespace

HelpMenu::HelpMenu() {
    addPageLines(*this, std::begin(lines), std::end(lines));
}
