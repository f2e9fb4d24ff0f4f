#pragma once

#include "Framework/menus/Menu.h"
#include "keys/KeyboardDrawing.h"
#include "keys/PadDrawing.h"

namespace quorva::keys {

/// Shows the questions: what is asked for, the device, the answers, and what the player can do.
class Page : public menus::Menu {
public:
    explicit Page(const Questions& questions);

    void process() override {}
    void update() override; ///< follows the questions
    void hide() override {}
    void show(menus::menu_load_mode_e) override {}

    // The graphics own the shapes.
    graphics::GWord *titleWord, *actionWord, *promptWord, *noteWord, *hintWord;
    struct Row {
        graphics::GWord *action, *word;
    };
    std::vector<Row> rows; ///< in the order of asking
    KeyboardDrawing* keyboard;
    PadDrawing* pad;

private:
    graphics::GWord* addCentredWord(const char* fontName, const graphics::Colour* colour, double y,
                                    double scale);
    template <class T>
    T* addDrawing();
    void addLabels();
    void place(Drawing& drawing, bool active, double x, double size);
    void showDrawings();
    void showLabels(bool active);
    void showRows();
    void showWords();

    const Questions& questions; ///< not owned
    unsigned int shownChanges;
    const graphics::Colour* noteColour;
    graphics::Colour dimColour;
    double fit;                           ///< what a narrow view shrinks everything by
    std::vector<graphics::GWord*> labels; ///< on the keys of the keyboard that have a character
};

} // namespace quorva::keys
