#include "keys/Questions.h"

#include <SDL_keysym.h>

#include <algorithm>
#include <utility>

namespace quorva::keys {

namespace {

/// When an action is listened to. Two of which one moment is enough for both share no key.
enum Moment : unsigned int { in_game = 1, in_menus = 2, always = in_game | in_menus };

/// In the order of asking.
const struct {
    const char* name;
    Moment byKey, byButton;
} actions[] = {
    {"Up", always, in_menus},         {"Down", always, in_menus},
    {"Left", always, in_menus},       {"Right", always, in_menus},
    {"Fire Up", in_game, in_game},    {"Fire Down", in_game, in_game},
    {"Fire Left", in_game, in_game},  {"Fire Right", in_game, in_game},
    {"Game Pause", in_game, in_game}, {"Menu Select", in_menus, in_menus},
    {"Menu Escape", always, always},
};
constexpr std::size_t direction_count = 4;

/// In menus, an action on this button (JOY2) answers to every key.
constexpr unsigned short button_of_all_keys = 1;

unsigned int momentsOf(std::size_t action, Device device) {
    return device == Device::keyboard ? actions[action].byKey : actions[action].byButton;
}

Bindings inOrderOfAsking(const std::vector<std::unique_ptr<input::InputKey>>& bindings) {
    Bindings ordered;
    for (const auto& action : actions)
        for (const auto& binding : bindings)
            if (binding->name == action.name && binding->player == 0) ordered.push_back(*binding);
    return ordered;
}

bool isNothing(unsigned short value, Device device) {
    return value == (device == Device::keyboard ? input::unknown_key : input::no_button);
}

const char* another(Device device) {
    return device == Device::keyboard ? " Another key, please." : " Another button, please.";
}

} // namespace

std::string wordOf(const input::InputKey& binding, Device device) {
    const std::string word = device == Device::keyboard ? input::wordFromKey(binding.key)
                                                        : input::wordFromJsbutton(binding.jsButton);
    return word.empty() ? "nothing" : word;
}

Questions::Questions(const std::vector<std::unique_ptr<input::InputKey>>& bindings, bool hasPad_,
                     Save save_)
    : before(inOrderOfAsking(bindings)), answers(before), hasPad(hasPad_), save(std::move(save_)),
      currentStep(hasPad ? Step::choose : Step::ask) {}

std::size_t Questions::first() const {
    return chosen == Device::keyboard ? 0 : direction_count;
}

const input::InputKey* Questions::asked() const {
    return currentStep == Step::ask ? &answers[current] : nullptr;
}

unsigned short Questions::valueOf(std::size_t action) const {
    return chosen == Device::keyboard ? answers[action].key : answers[action].jsButton;
}

unsigned short& Questions::valueOf(std::size_t action) {
    return chosen == Device::keyboard ? answers[action].key : answers[action].jsButton;
}

void Questions::pressKey(int symbol) {
    if (currentStep == Step::left) return; // of one pass there may be more
    ++changeCount;
    if (currentStep == Step::told)
        currentStep = Step::left;
    else if (isControl(symbol))
        control(symbol);
    else if (currentStep == Step::choose)
        begin(Device::keyboard);
    else if (currentStep == Step::ask)
        answerByKey(static_cast<input::QuorvaKey>(symbol));
}

void Questions::pressButton(int button) {
    if (currentStep == Step::left) return; // of one pass there may be more
    ++changeCount;
    if (currentStep == Step::told)
        currentStep = Step::left;
    else if (currentStep == Step::choose)
        begin(Device::pad);
    else if (currentStep == Step::ask)
        answerByButton(static_cast<input::QuorvaJKey>(button));
    else if (chosen == Device::pad && button == bindingOf("Menu Select").jsButton)
        control(SDLK_RETURN);
    else if (chosen == Device::pad && button == bindingOf("Menu Escape").jsButton)
        control(SDLK_ESCAPE);
}

void Questions::answerByKey(input::QuorvaKey key) {
    const std::string word = input::wordFromKey(key);
    if (chosen == Device::pad)
        noted = "This is about the pad: a button, please.";
    else if (word.empty())
        noted = "The game doesn't know this key. Another key, please.";
    else
        answer(key, word);
}

void Questions::answerByButton(input::QuorvaJKey button) {
    const std::string word = input::wordFromJsbutton(button);
    if (chosen == Device::keyboard)
        noted = "This is about the keyboard: a key, please.";
    else if (word.empty())
        noted = "The game knows the buttons 1 to 16. Another button, please.";
    else
        answer(button, word);
}

const input::InputKey& Questions::bindingOf(const std::string& action) const {
    return *std::find_if(answers.begin(), answers.end(),
                         [&](const input::InputKey& binding) { return binding.name == action; });
}

void Questions::pushStick() {
    if (currentStep != Step::ask || chosen != Device::pad) return;
    ++changeCount;
    noted = "The stick moves you without being bound: a button, please.";
}

/// Return and Escape can be given to the actions in the menus alone: everywhere else they lead
/// through the questions.
bool Questions::isControl(int symbol) const {
    const bool isKeyAsked = currentStep == Step::ask && chosen == Device::keyboard;
    switch (symbol) {
    case SDLK_RETURN:
        return currentStep != Step::choose && !(isKeyAsked && asked()->name == "Menu Select");
    case SDLK_BACKSPACE:
        return currentStep != Step::choose;
    case SDLK_ESCAPE:
        return !(isKeyAsked && asked()->name == "Menu Escape");
    default:
        return false;
    }
}

void Questions::control(int symbol) {
    noted.clear();
    if (symbol == SDLK_ESCAPE)
        currentStep = Step::left;
    else if (symbol == SDLK_BACKSPACE)
        goBack();
    else if (currentStep == Step::confirm)
        finish();
    else
        goOn();
}

void Questions::begin(Device device) {
    chosen = device;
    current = first();
    currentStep = Step::ask;
    noted.clear();
}

void Questions::goOn() {
    if (current + 1 < answers.size())
        ++current;
    else
        currentStep = Step::confirm;
}

void Questions::goBack() {
    if (currentStep == Step::confirm)
        currentStep = Step::ask;
    else if (current > first())
        --current;
    else if (hasPad)
        currentStep = Step::choose;
}

void Questions::finish() {
    outcome = save(before, answers);
    noted = outcome.text;
    currentStep = Step::told;
}

bool Questions::clash(std::size_t one, std::size_t other) const {
    return one != other && (momentsOf(one, chosen) & momentsOf(other, chosen)) != 0;
}

bool Questions::canHave(std::size_t action, unsigned short value) const {
    const bool isInMenus = (momentsOf(action, chosen) & in_menus) != 0;
    return chosen == Device::keyboard || value != button_of_all_keys || !isInMenus;
}

/// Whether an action may take over what the action asked for has now.
bool Questions::canTakeOver(std::size_t action) const {
    const unsigned short value = valueOf(current);
    if (isNothing(value, chosen) || !canHave(action, value)) return false;
    for (std::size_t i = 0; i < answers.size(); ++i)
        if (i != current && clash(i, action) && valueOf(i) == value) return false;
    return true;
}

void Questions::answer(unsigned short value, const std::string& word) {
    noted.clear();
    if (value == valueOf(current)) return goOn();
    if (!canHave(current, value)) {
        noted = word + " is for guns and the pause: in menus, every key would do the same.";
        return;
    }
    if (!trade(value, word)) return;
    valueOf(current) = value;
    goOn();
}

/// Those which have the key and are still to be asked for get the one that this action has now. One
/// that has been asked for, or never will be, keeps what it has.
/// @return whether the action may have it
bool Questions::trade(unsigned short value, const std::string& word) {
    std::vector<std::size_t> traders;
    for (std::size_t i = 0; i < answers.size(); ++i) {
        if (!clash(i, current) || valueOf(i) != value) continue;
        if (i < current || !canTakeOver(i)) {
            noted = word + " is " + answers[i].name + " already." + another(chosen);
            return false;
        }
        traders.push_back(i);
    }
    for (const std::size_t trader : traders) {
        valueOf(trader) = valueOf(current);
        noted = word + " was " + answers[trader].name + ", which has " +
                wordOf(answers[trader], chosen) + " now.";
    }
    return true;
}

} // namespace quorva::keys
