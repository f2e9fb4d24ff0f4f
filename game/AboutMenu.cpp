#include "game/AboutMenu.h"

#include "game/PageWords.h"

#include <iterator>

namespace {

// At most about 85 characters a line: that many fit the narrowest field.
const PageLine lines[] = {
    {10.0, "About KOV"},
    {9.0, "KOV is a game of lines and traps for one player and a free evening."},
    {8.0, "Every shot you fire draws a line, and every line is a wall for a while."},
    {7.0, "Four walls that cross make a rectangle, and what is caught in it is yours."},
    {6.0, "The field is as wide as your screen. The triangles know where you are."},
    {5.0, "A small rectangle pays far more than a large one, so let them come close:"},
    {4.0, "one fence in front of a triangle holds it there while you build the others."},
    {3.0, "Two triangles in one rectangle pay twice. Patience pays best of all."},
    {2.0, "The edge of the field glows where something is about to come in."},
    {1.0, "Rays of light lengthen your lines or cool your guns. Bombs pulse, then go:"},
    {0.0, "one kind clears the whole field, the other keeps you from harm for a while."},
    {-2.0, "Made with care by the KOV team, for everybody who likes a clean line."},
    {-3.0, "We hope that it is read with as much joy as it is played."},
    {-5.0, "The program is free software under the MIT licence: play it, read it, change it"},
    {-6.0, "and pass it on. The music and the sounds are our own, dedicated to everybody"},
    {-7.0, "under CC0 1.0. The fonts carry their own free licences, which lie beside them"},
    {-8.0, "in the folder fonts. Drop your own songs into the folder Songs, as .mp3 or .ogg,"},
    {-9.0, "and paint the game in your own colours: they are all in data/Colour.kov."},
    {-10.0, "The keys can be changed in bind1.conf, everything else in Configuration."},
    {-11.0, "Thank you for playing. Mind the corners!"},
    {-12.0, "Press Enter to go back."},
};

} // namespace

AboutMenu::AboutMenu() {
    addPageLines(*this, std::begin(lines), std::end(lines));
}
