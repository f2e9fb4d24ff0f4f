#pragma once

#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/menus/Menu.h"

#include <string>
#include <utility>
#include <vector>

namespace quorva::menus {

/// The page on which the player changes settings. It works on copies: nothing reaches the
/// settings before "Save"; "Cancel" and the escape key drop all changes.
class ConfigMenu : public Menu, public MessageInterface<messages::MenuMove> {
public:
    enum Row : std::uint16_t {
        row_resolution,
        row_fullscreen,
        row_music_volume,
        row_fx_volume,
        row_accuracy,
        row_save_cpu,
        row_save,
        row_cancel,
        row_count,
    };
    static constexpr std::uint16_t setting_count = row_save;

    explicit ConfigMenu(Menu* parent);

    /// A held key steps at the first tick, not at the next five, and at every tick from the
    /// seventh on.
    void process() override;
    void update() override;
    void hide() override {}
    void show(menu_load_mode_e mode) override;
    void receiveMessage(const messages::MenuMove* m) override;

    void moveSelectorUp();   ///< wraps
    void moveSelectorDown(); ///< wraps
    // These act on the rows that change by one step a key press; process steps the others.
    void moveLeft() { change(false); }
    void moveRight() { change(true); }
    void checkMenuSelection();

    unsigned short getResIndex() const; ///< of the chosen size in the table; 0 if it isn't there
    void setNewResolutionStuff(unsigned short index); ///< chooses that size of the table

    // Hooks that nothing calls.
    void updatePage() {}
    void cancelChangingValue() {}
    void startChangingValue() {}
    void changeValueSettingUp() {}
    void changeValueSettingDown() {}

    std::vector<std::pair<unsigned short, unsigned short>> resolutions; ///< height, width; pixels
    const graphics::Colour* selectingColour; ///< a resource that nothing uses
    std::uint16_t selection = row_resolution;
    // The graphics own the words.
    graphics::GWord *titleWord, *videoWord, *soundWord, *miscWord, *saveWord, *cancelWord;
    bool changing = false;                ///< nothing sets it; escape works while it is false
    std::vector<graphics::GWord*> names;  ///< by row
    std::vector<graphics::GWord*> values; ///< by row
    graphics::GWord *helpLine1, *helpLine2;
    // Working copies of the settings.
    std::uint16_t width, height; ///< pixels
    bool fullScreen;
    std::uint16_t fxVolume, musicVolume;
    std::uint16_t collisionAccuracy;
    bool saveCPU;
    bool rightHeld = false, leftHeld = false;
    std::uint16_t rightHeldTicks = 0, leftHeldTicks = 0; ///< ticks since the press

private:
    void buildWords();
    void addSetting(const char* name, double y, const std::string& value);
    void stepResolution(bool forward);
    void change(bool forward);
    void toggle(bool& setting, const char* (*text)(bool));
    void hold(bool pressed, bool& held, bool& otherHeld, void (ConfigMenu::*move)());
    void step(std::uint16_t& value, char letter); ///< within the range of that setting
    void setHelp(const char* line1, const char* line2);
    void save();
    void close();
};

} // namespace quorva::menus
