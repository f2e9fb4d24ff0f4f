#include "game/AboutMenu.h"

#include "game/PageWords.h"

#include <iterator>

namespace {

// At most 85 characters a line: about so many fit the narrowest screen.
const PageLine lines[] = {
    {10.0, "KOV 1.0, a game of lines and traps for one player."},
    {9.0, "Arrow keys move you, W A S D fire up, left, down and right. P pauses and resumes."},
    {8.0, "One press is one shot. The arrowheads around you show when a gun is ready."},
    {7.0, "Each shot draws a line that stops triangles and stands for about six seconds."},
    {6.0, "Close a rectangle from two opposite corners: two shots from each."},
    {5.0, "The triangles in it burst and score. Two corners of a triangle inside are enough."},
    {4.0, "Small rectangles pay far more than large ones, and two triangles pay double."},
    {3.0, "A triangle that touches you costs a life. The edge glows where one will come in."},
    {2.0, "Green rays make your lines last longer, violet rays make your guns recover faster."},
    {1.0, "Bombs pulse, then go: pale orange bursts every triangle, but for no points;"},
    {0.0, "blue keeps you safe for three seconds."},
    {-2.0, "Escape ends a game at once, and its score isn't kept. Lose your last life instead,"},
    {-3.0, "and a new high score is saved."},
    {-5.0, "Configuration sets seven of the nineteen settings. The others are in game.conf,"},
    {-6.0, "and all of them are options: kov --help lists them."},
    {-7.0, "Keys and pad buttons are in bind1.conf, colours in data/Colour.kov. Your own songs,"},
    {-8.0, ".mp3 or .ogg, go into the folder Songs. The manual tells more: manual.html."},
    {-9.0, "Program: MIT licence. Music and sounds: CC0 1.0. Fonts: free licences of their own."},
    {-10.0, "Made by the KOV team, for everyone who likes a clean line."},
    {-11.0, "Thank you for playing. Mind the corners!"},
    {-12.0, "Return leaves this page."},
};

} // namespace

AboutMenu::AboutMenu() {
    addPageLines(*this, std::begin(lines), std::end(lines));
}
