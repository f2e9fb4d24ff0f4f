#pragma once

#include "Framework/Singleton.h"
#include "Framework/config/ConfigFile.h"
#include "Framework/config/ConfigValues.h"

#include <boost/noncopyable.hpp>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorva::config {

/// All settings, twice: file, command line and menu write the pending table, the game reads the
/// activated one, and activateConfig copies the first over the second. AntiAlias, Rate, Channels,
/// ActiveJoystick, InvertJoystickAxis and IgnoreTime are kept and saved, but nothing follows them.
class ConfigClass : private boost::noncopyable {
public:
    ConfigClass(); ///< reads the configuration file, if there is one; readFile makes use of it
    virtual ~ConfigClass() = default;

    virtual void readFile(); ///< takes the file's values into the pending table, and activates it
    virtual void activateConfig();
    virtual void saveConfig();            ///< writes the activated settings; a failure is ignored
    virtual bool configActivated() const; ///< no pending change awaits activation

    /// Applies one argument to the pending table. A bad one brings the usage message.
    /// @return whether the game is to start
    virtual bool parseCmdLineArgs(const char* programName, const char* argument);
    virtual void printCmdLineFlags(const char* programName); ///< the help, on standard output

    // From the activated table; should it have lost the setting, the default.
    virtual unsigned short getScreenWidth() const { return number('w'); }  ///< pixels
    virtual unsigned short getScreenHeight() const { return number('l'); } ///< pixels
    /// Bits. Deliberate: it falls back on its neighbour's 600.
    virtual unsigned short getColourDepth() const { return number('c', 600); }
    virtual bool getFullScreen() const { return flag('f'); }
    virtual bool getAntiAlias() const { return flag('a'); }
    virtual bool getCompatibility() const { return flag('o'); }
    virtual unsigned short getRate() const { return number('r'); }
    virtual unsigned short getSoftwareChannels() const { return number('n'); }
    virtual bool getJoyStickSupport() const { return flag('j'); }
    virtual unsigned short getActiveJoystick() const { return number('k'); }
    virtual unsigned short getJoystickSensitivity() const { return number('y'); } ///< axis units
    virtual bool getInvertJoystick() const { return flag('e'); }
    virtual bool getIgnoreTime() const { return flag('x'); }
    virtual bool getPlayMusic() const { return flag('m'); }
    virtual bool getPlaySound() const { return flag('s'); }

    // To the pending table. A refused value is reported on standard error and replaced by the
    // default.
    virtual void setScreenWidth(unsigned short v) { store('w', v); }
    virtual void setScreenHeight(unsigned short v) { store('l', v); }
    virtual void setColourDepth(unsigned short v) { store('c', v); }
    virtual void setFullScreen(bool v) { store('f', v); }
    virtual void setAntiAlias(bool v) { store('a', v); }
    virtual void setCompatibility(bool v) { store('o', v); }
    virtual void setRate(unsigned short v) { store('r', v); }
    virtual void setSoftwareChannels(unsigned short v) { store('n', v); }
    /// Deliberate: stores true for either argument. Only NoUseJoystick turns the joystick off.
    virtual void setJoystickSupport(bool v) { store('j', v); }
    virtual void setActiveJoystick(unsigned short v) { store('k', v); }
    virtual void setJoystickSensitivity(unsigned short v) { store('y', v); }
    virtual void setInvertJoystick(bool v) { store('e', v); }
    virtual void setIgnoreTime(bool v) { store('x', v); }
    virtual void setPlayMusic(bool v) { store('m', v); }
    virtual void setPlaySound(bool v) { store('s', v); }

    unsigned short getMusicVolume() const { return number('h'); }       ///< 0 to 100
    unsigned short getFXVolume() const { return number('g'); }          ///< 0 to 100
    unsigned short getCollisionAccuracy() const { return number('z'); } ///< sub-steps a tick
    bool getSaveCPU() const { return flag('u'); }
    void setMusicVolume(unsigned short v) { store('h', v); }
    void setFXVolume(unsigned short v) { store('g', v); }
    void setCollisionAccuracy(unsigned short v) { store('z', v); }
    void setSaveCPU(bool v) { store('u', v); }

    void setDefaults(); ///< in the pending table

    ConfigValuesT& getConfigValues() { return *configValues; } ///< the pending table
    const std::vector<ConfigValueAnon*>& getAllConfigValueInfos() const;
    const ConfigValueAnon& getConfigValueInfo(char key);
    const ConfigValueAnon& getConfigValueInfo(const char* key);
    const ConfigValueAnon& getConfigValueInfo(const std::string& key);

    /// Stores a value given as text: a decimal number, or "low", "medium", "high". Throws
    /// ConfigValueException for an unknown key or a refused value.
    void setSomeValue(char key, const char* text);
    void setSomeValue(char key, const std::string& text) { setSomeValue(key, text.c_str()); }
    void setSomeValue(const char* key, const char* text);
    void setSomeValue(const char* key, const std::string& text) { setSomeValue(key, text.c_str()); }
    void setSomeValue(const std::string& key, const char* text) { setSomeValue(key.c_str(), text); }
    void setSomeValue(const std::string& key, const std::string& text) {
        setSomeValue(key.c_str(), text.c_str());
    }

    std::unique_ptr<ConfigFile> file;               ///< null if it could not be read
    std::unique_ptr<ConfigValuesT> configValues;    ///< pending
    std::unique_ptr<ConfigValuesT> activatedValues; ///< what the game reads
    bool configured = false; ///< set by setDefaults and activateConfig; nothing reads it

private:
    unsigned short number(char letter, std::optional<unsigned short> fallback = {}) const;
    bool flag(char letter) const;
    void store(char letter, int v);
};

using Config = DefaultSingleton<ConfigClass>;

void writeSetValueError(const std::string& name); ///< on standard error
void writeUsageMessage(const char* programName);  ///< on standard error

/// The number at the head of `text`, clamped to the range of an int; 0 if there is none.
int numberFromText(const char* text);

} // namespace quorva::config
