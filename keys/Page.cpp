#include "keys/Page.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/Words.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/FontManager.h"

#include <SDL_keysym.h>

#include <algorithm>

namespace quorva::keys {

namespace {

constexpr unsigned short word_layer = 1, drawing_layer = 2;
constexpr double usual_half_width = 20.0; // of the view, world units
constexpr double title_y = 12.6, action_y = 10.0, prompt_y = 8.3, drawing_y = 1.6, note_y = -11.4,
                 hint_y = -13.4;
constexpr double action_scale = 1.75, prompt_scale = 0.75, row_scale = 0.75, hint_scale = 0.62;
constexpr double label_scale = 0.8, label_drop = 0.22;
constexpr float dimness = 0.4F; // alpha

/// The answers stand in columns: directions, guns, the rest.
constexpr std::size_t rows_in_column = 4;
constexpr double row_top = -5.6, row_height = 1.35, column_width = 12.6, word_shift = 5.6,
                 row_width = 9.4;

/// Of the two drawings side by side.
constexpr double pair_y = -1.0, keyboard_x = -9.4, keyboard_size = 0.52, pad_x = 10.9,
                 pad_size = 0.7;

std::string titleOf(const Questions& questions) {
    if (questions.step() == Questions::Step::choose) return "Keys and buttons";
    std::string device = questions.device() == Device::keyboard ? "Keyboard" : "Pad";
    if (questions.asked() == nullptr) return device;
    return device + "   " + std::to_string(questions.number()) + " of " +
           std::to_string(questions.count());
}

std::string actionOf(const Questions& questions) {
    switch (questions.step()) {
    case Questions::Step::choose:
        return "Keyboard or pad?";
    case Questions::Step::ask:
        return questions.asked()->name;
    case Questions::Step::confirm:
        return "Save?";
    default:
        return questions.failed() ? "Sorry" : "Done";
    }
}

std::string buttonsAtTheEnd(const Questions& questions) {
    if (questions.device() == Device::keyboard) return "";
    return wordOf(questions.bindingOf("Menu Select"), Device::pad) + " saves it, " +
           wordOf(questions.bindingOf("Menu Escape"), Device::pad) + " leaves all as it was.";
}

std::string promptOf(const Questions& questions) {
    switch (questions.step()) {
    case Questions::Step::choose:
        return "Press any key, or any button of the pad.";
    case Questions::Step::ask:
        return std::string("Press the ") +
               (questions.device() == Device::keyboard ? "key" : "button") + ".  It is " +
               wordOf(*questions.asked(), questions.device()) + " now.";
    case Questions::Step::confirm:
        return buttonsAtTheEnd(questions);
    default:
        return "";
    }
}

/// What the keys do that lead through the questions just now.
std::string hintOf(const Questions& questions) {
    if (questions.step() == Questions::Step::told) return "Any key leaves";
    const bool isEnd = questions.step() == Questions::Step::confirm;
    const struct {
        int symbol;
        const char* text;
    } ways[] = {{SDLK_RETURN, isEnd ? "Return saves it" : "Return keeps it"},
                {SDLK_BACKSPACE, "Backspace goes back"},
                {SDLK_ESCAPE, "Escape leaves all as it was"}};
    std::string hint;
    for (const auto& way : ways)
        if (questions.isControl(way.symbol))
            hint += (hint.empty() ? "" : "      ") + std::string(way.text);
    return hint;
}

/// The character of a key, if it has one, also on the number pad: "NUM7" is a word of the files.
std::string labelOf(input::QuorvaKey key) {
    const std::string word = input::wordFromKey(key);
    const bool isOnNumberPad = word.size() == 4 && word.rfind("NUM", 0) == 0;
    return isOnNumberPad ? word.substr(3) : word.size() == 1 ? word : "";
}

} // namespace

Page::Page(const Questions& questions_)
    : Menu(nullptr), questions(questions_), shownChanges(questions.changes() - 1),
      noteColour(&ColourManager::Instance().getV("Menu Selecting")), dimColour(*wordOffColour),
      fit(std::min(1.0, bounds.right / usual_half_width)) {
    dimColour.setAlpha(dimness);
    addBackground(&ColourManager::Instance().getV("Config Menu Colour"));
    titleWord = addCentredWord("Menu Font", titleColour, title_y, 1.0);
    actionWord = addCentredWord("Menu Font", wordOnColour, action_y, action_scale);
    promptWord = addCentredWord("Message Font", wordOffColour, prompt_y, prompt_scale);
    noteWord = addCentredWord("Message Font", noteColour, note_y, prompt_scale);
    hintWord = addCentredWord("Message Font", wordOffColour, hint_y, hint_scale);
    for (const input::InputKey& binding : questions.bindings())
        rows.push_back({addWord(binding.name.c_str(), wordOffColour, 0.0, 0.0, fit * row_scale),
                        addWord("", titleColour, 0.0, 0.0, fit * row_scale)});
    keyboard = addDrawing<KeyboardDrawing>();
    pad = addDrawing<PadDrawing>();
    graphics->things[drawing_layer]->layer = graphics::layer_menu_middle;
    addLabels();
}

graphics::GWord* Page::addCentredWord(const char* fontName, const graphics::Colour* colour,
                                      double y, double scale) {
    const graphics::WordStyle style = {&FontManager::Instance().getV(fontName), colour, fit * scale,
                                       graphics::ALIGN_CENTRE};
    return graphics::addWord(*getGraphics(), word_layer, style, 0.0, y, "");
}

template <class T>
T* Page::addDrawing() {
    auto* const drawing = getGraphics()->createGraphic<T>(drawing_layer);
    drawing->questions = &questions;
    drawing->plainColour = &dimColour;
    drawing->boundColour = titleColour;
    drawing->askedColour = wordOnColour;
    return drawing;
}

void Page::addLabels() {
    for (const KeyboardDrawing::Key& key : KeyboardDrawing::keys()) {
        const auto symbol = static_cast<input::QuorvaKey>(key.symbol);
        labels.push_back(
            addWord(labelOf(symbol).c_str(), &dimColour, 0.0, 0.0, 1.0, graphics::ALIGN_CENTRE));
    }
}

void Page::update() {
    if (shownChanges == questions.changes()) return;
    shownChanges = questions.changes();
    showWords();
    showDrawings();
    showRows();
}

void Page::showWords() {
    titleWord->setWord(titleOf(questions).c_str());
    actionWord->setWord(actionOf(questions).c_str());
    promptWord->setWord(promptOf(questions).c_str());
    noteWord->setWord(questions.note().c_str());
    hintWord->setWord(hintOf(questions).c_str());
}

void Page::place(Drawing& drawing, bool active, double x, double size) {
    drawing.active = active;
    const bool isPair = questions.step() == Questions::Step::choose;
    drawing.position = math::Point(fit * x, isPair ? pair_y : drawing_y, 0.0);
    drawing.setScale(fit * size);
}

void Page::showDrawings() {
    const bool both = questions.step() == Questions::Step::choose;
    const bool isPad = questions.device() == Device::pad;
    place(*keyboard, both || !isPad, both ? keyboard_x : 0.0, both ? keyboard_size : 1.0);
    place(*pad, both || isPad, both ? pad_x : 0.0, both ? pad_size : 1.0);
    showLabels(!both && !isPad);
}

void Page::showLabels(bool active) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const KeyboardDrawing::Key& key = KeyboardDrawing::keys()[i];
        const double x = (key.box.left + key.box.right) / 2.0;
        const double y = (key.box.top + key.box.bottom) / 2.0 - label_drop;
        const Part part = keyboard->partOf(key);
        labels[i]->active = active;
        labels[i]->position = math::Point(fit * x, drawing_y + fit * y, graphics::word_depth);
        labels[i]->setScale(fit * label_scale);
        labels[i]->setColour1(part == Part::asked   ? wordOnColour
                              : part == Part::bound ? titleColour
                                                    : &dimColour);
    }
}

void Page::showRows() {
    const std::size_t skipped = questions.bindings().size() - questions.count();
    const std::size_t columns = (questions.count() + rows_in_column - 1) / rows_in_column;
    const double left = -((static_cast<double>(columns) - 1.0) * column_width + row_width) / 2.0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const input::InputKey& binding = questions.bindings()[i];
        const bool isShown = questions.step() != Questions::Step::choose && i >= skipped;
        rows[i].action->active = rows[i].word->active = isShown;
        if (!isShown) continue;
        const std::size_t column = (i - skipped) / rows_in_column;
        const std::size_t line = (i - skipped) % rows_in_column;
        const double x = left + static_cast<double>(column) * column_width;
        const double y = row_top - static_cast<double>(line) * row_height;
        const bool isAsked = questions.asked() == &binding;
        rows[i].action->position = math::Point(fit * x, y, graphics::word_depth);
        rows[i].action->setColour1(isAsked ? wordOnColour : wordOffColour);
        rows[i].word->position = math::Point(fit * (x + word_shift), y, graphics::word_depth);
        rows[i].word->setColour1(isAsked ? wordOnColour : titleColour);
        rows[i].word->setWord(wordOf(binding, questions.device()).c_str());
    }
}

} // namespace quorva::keys
