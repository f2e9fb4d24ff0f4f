#pragma once

#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/menus/Menu.h"

#include <string>
#include <utility>
#include <vector>

namespace quorva::menus {

/// The page on which the player changes settings. It works on copies: nothing reaches the
/// settings before "Save", and leaving by "Cancel" or escape drops all changes.
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

    void process() override; ///< a held key steps: at once, then from the sixth tick on
    void update() override;
    void hide() override {}
    void show(menu_load_mode_e mode) override;
    void receiveMessage(const messages::MenuMove* m) override;

    void moveSelectorUp();   ///< wraps
    void moveSelectorDown(); ///< wraps
    void moveLeft();         ///< on the rows that change by one step a key press
    void moveRight();
    void checkMenuSelection();

    unsigned short getResIndex() const; ///< of the present size in the table; 0 if not there
    void setNewResolutionStuff(unsigned short index);

    // Hooks that nothing needs yet.
    void updatePage() {}
    void cancelChangingValue() {}
    void startChangingValue() {}
    void changeValueSettingUp() {}
    void changeValueSettingDown() {}

    std::vector<std::pair<unsigned short, unsigned short>> resolutions; ///< height, width
    const graphics::Colour* selectingColour;                            ///< resource, not used
    std::uint16_t selection = row_resolution;
    // The graphics own the words.
    graphics::GWord *titleWord, *videoWord, *soundWord, *miscWord, *saveWord, *cancelWord;
    bool changing = false;                ///< never set; escape works only while it is false
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
    std::uint16_t rightHeldTicks = 0, leftHeldTicks = 0; ///< since the press

private:
    void buildWords();
    void addSetting(const char* name, double y, const std::string& value);
    void stepResolution(bool forward);
    void toggle(bool& setting, Row row, const char* on, const char* off);
    void toggleFullScreen();
    void toggleSaveCPU();
    void hold(bool pressed, bool& held, bool& otherHeld, void (ConfigMenu::*move)());
    void step(std::uint16_t& value, std::uint16_t low, std::uint16_t high);
    void setHelp(const char* line1, const char* line2);
    void save();
    void close();
};

} // namespace quorva::menus
