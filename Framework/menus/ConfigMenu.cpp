#include "Framework/menus/ConfigMenu.h"

#include "Framework/Config.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/config/Settings.h"
#include "Framework/menus/Resolutions.h"

#include <algorithm>

namespace quorva::menus {

namespace {

constexpr double name_x = -8.0, value_x = 3.0, heading_x = -10.0, help_x = -18.0;
constexpr double title_scale = 1.5, heading_scale = 1.25;
constexpr std::uint16_t repeat_delay = 5; // ticks without a step after the first

const char* fullScreenText(bool on) {
    return on ? "Fullscreen" : "Windowed";
}

const char* saveCPUText(bool on) {
    return on ? "Yes" : "No";
}

std::string sizeText(unsigned short width, unsigned short height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

} // namespace

ConfigMenu::ConfigMenu(Menu* parent_) : Menu(parent_) {
    for (const Resolution& size : resolution_table)
        resolutions.emplace_back(size.height, size.width);
    const auto& config = config::Config::Instance();
    width = config.getScreenWidth();
    height = config.getScreenHeight();
    fullScreen = config.getFullScreen();
    fxVolume = config.getFXVolume();
    musicVolume = config.getMusicVolume();
    collisionAccuracy = config.getCollisionAccuracy();
    saveCPU = config.getSaveCPU();
    selectingColour = &ColourManager::Instance().getV("Menu Selecting");
    subscribe<messages::MenuMove>(this);
    loadMode = menu_load_normal;
    addBackground(&ColourManager::Instance().getV("Config Menu Colour"));
    buildWords();
}

void ConfigMenu::buildWords() {
    const auto heading = [this](const char* text, double y) {
        return addWord(text, titleColour, heading_x, y, heading_scale);
    };
    titleWord =
        addWord("Configuration", titleColour, 0.0, 13.0, title_scale, graphics::ALIGN_CENTRE);
    videoWord = heading("Video Options", 10.0);
    addSetting("Resolution", 9.0, sizeText(width, height));
    addSetting("Fullscreen", 8.25, fullScreenText(fullScreen));
    soundWord = heading("Sound Options", 7.25);
    addSetting("Music Volume", 6.5, std::to_string(musicVolume));
    addSetting("FX Volume", 5.75, std::to_string(fxVolume));
    miscWord = heading("MISC Options", 4.25);
    addSetting("Collision     Accuracy", 3.5, std::to_string(collisionAccuracy));
    addSetting("Save     CPU", 2.75, saveCPUText(saveCPU));
    saveWord = addWord("Save", wordOffColour, heading_x, 0.0, heading_scale);
    cancelWord = addWord("Cancel", wordOffColour, heading_x, -1.0, heading_scale);
    helpLine1 = addWord("", wordOffColour, help_x, -4.0);
    helpLine2 = addWord("", wordOffColour, help_x, -4.75);
}

void ConfigMenu::addSetting(const char* name, double y, const std::string& value) {
    names.push_back(addWord(name, wordOffColour, name_x, y));
    values.push_back(addWord(value.c_str(), wordOffColour, value_x, y));
}

void ConfigMenu::show(menu_load_mode_e mode) {
    shown = true;
    loadMode = mode;
}

void ConfigMenu::update() {
    for (graphics::GWord* word : names)
        word->setColour1(wordOffColour);
    for (graphics::GWord* word : values)
        word->setColour1(wordOffColour);
    saveWord->setColour1(wordOffColour);
    cancelWord->setColour1(wordOffColour);
    if (selection < setting_count) {
        names[selection]->setColour1(wordOnColour);
        values[selection]->setColour1(wordOnColour);
    } else {
        (selection == row_save ? saveWord : cancelWord)->setColour1(wordOnColour);
    }
}

void ConfigMenu::moveSelectorUp() {
    selection = neighbour(selection, row_count, false);
}

void ConfigMenu::moveSelectorDown() {
    selection = neighbour(selection, row_count, true);
}

void ConfigMenu::receiveMessage(const messages::MenuMove* m) {
    if (!visible) return;
    if (m->up) moveSelectorUp();
    if (m->down) moveSelectorDown();
    hold(m->left, leftHeld, rightHeld, &ConfigMenu::moveLeft);
    hold(m->right, rightHeld, leftHeld, &ConfigMenu::moveRight);
    if (m->escape && !changing) close();
    if (m->select) checkMenuSelection();
}

void ConfigMenu::hold(bool pressed, bool& held, bool& otherHeld, void (ConfigMenu::*move)()) {
    held = pressed;
    if (!pressed) return;
    (this->*move)();
    otherHeld = false;
    leftHeldTicks = rightHeldTicks = 0; // a new press waits anew
}

void ConfigMenu::checkMenuSelection() {
    if (selection == row_save) save();
    if (selection == row_save || selection == row_cancel) close();
}

void ConfigMenu::close() {
    hide();
    parent->killSubMenu();
}

void ConfigMenu::save() {
    auto& config = config::Config::Instance();
    config.setScreenWidth(width);
    config.setScreenHeight(height);
    config.setFullScreen(fullScreen);
    config.setMusicVolume(musicVolume);
    config.setFXVolume(fxVolume);
    config.setCollisionAccuracy(collisionAccuracy);
    config.setSaveCPU(saveCPU);
    config.activateConfig();
    config.saveConfig(); // before the video restarts, where a failure may end the program
    publish(messages::ResetVideo());
    publish(messages::ResetAudio());
    fitBackground();
}

unsigned short ConfigMenu::getResIndex() const {
    const auto found =
        std::find(resolutions.begin(), resolutions.end(), std::make_pair(height, width));
    return static_cast<unsigned short>(found == resolutions.end() ? 0
                                                                  : found - resolutions.begin());
}

void ConfigMenu::setNewResolutionStuff(unsigned short index) {
    height = resolutions[index].first;
    width = resolutions[index].second;
    values[row_resolution]->setWord(sizeText(width, height).c_str());
}

void ConfigMenu::stepResolution(bool forward) {
    // A size that is not in the table steps as if it were the first of it.
    const auto count = static_cast<std::uint16_t>(resolutions.size());
    setNewResolutionStuff(neighbour(getResIndex(), count, forward));
}

void ConfigMenu::change(bool forward) {
    if (selection == row_resolution) stepResolution(forward);
    if (selection == row_fullscreen) toggle(fullScreen, fullScreenText);
    if (selection == row_save_cpu) toggle(saveCPU, saveCPUText);
}

void ConfigMenu::toggle(bool& setting, const char* (*text)(bool)) {
    setting = !setting;
    values[selection]->setWord(text(setting));
}

void ConfigMenu::process() {
    setHelp("", "");
    switch (selection) {
    case row_music_volume:
        step(musicVolume, 'h');
        break;
    case row_fx_volume:
        step(fxVolume, 'g');
        break;
    case row_accuracy:
        step(collisionAccuracy, 'z');
        setHelp("Sets   how   many   times   the   collision   detector   steps   between   frames",
                "CPU   intensive!   Default   is   10");
        break;
    case row_save_cpu:
        setHelp("Makes   the   game   sleep   while   its   not   processing",
                "Saves   battery   life                     EXPERIMENTAL!!!");
        break;
    default:
        break;
    }
    if (leftHeld) ++leftHeldTicks;
    if (rightHeld) ++rightHeldTicks;
}

void ConfigMenu::step(std::uint16_t& value, char letter) {
    const auto& range = config::settingWith(letter).range;
    const auto isDue = [](std::uint16_t ticks) { return ticks == 0 || ticks > repeat_delay; };
    if (rightHeld && value < range.max && isDue(rightHeldTicks)) ++value;
    if (leftHeld && value > range.min && isDue(leftHeldTicks)) --value;
    values[selection]->setWord(std::to_string(value).c_str());
}

void ConfigMenu::setHelp(const char* line1, const char* line2) {
    helpLine1->setWord(line1);
    helpLine2->setWord(line2);
}

} // namespace quorva::menus
