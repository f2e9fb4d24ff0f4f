#pragma once

#include "Framework/Singleton.h"
#include "Framework/config/ConfigFile.h"
#include "Framework/config/ConfigValues.h"

#include <boost/noncopyable.hpp>

#include <memory>
#include <string>
#include <vector>

namespace quorva::config {

/// All settings, twice: file, command line and menu write the pending table, the game reads the
/// activated one, and activateConfig copies the first over the second.
class ConfigClass : private boost::noncopyable {
public:
    ConfigClass(); ///< reads the configuration file, if there is one, without taking it over yet
    virtual ~ConfigClass() = default;

    virtual void readFile(); ///< takes the file's values over, and activates
    virtual void activateConfig();
    virtual void saveConfig();            ///< writes the activated settings
    virtual bool configActivated() const; ///< no pending change awaits activation

    /// Takes one argument over. A bad one is answered with the usage message.
    /// @return whether the game is to start
    virtual bool parseCmdLineArgs(const char* programName, const char* argument);
    virtual void printCmdLineFlags(const char* programName); ///< the help, on standard output

    // Of the activated table, with a fallback should it have lost the setting.
    virtual unsigned short getScreenWidth() const;  ///< pixels
    virtual unsigned short getScreenHeight() const; ///< pixels
    virtual unsigned short getColourDepth() const;  ///< bits
    virtual bool getFullScreen() const;
    virtual bool getAntiAlias() const;
    virtual bool getCompatibility() const;
    virtual unsigned short getRate() const;
    virtual unsigned short getSoftwareChannels() const;
    virtual bool getJoyStickSupport() const;
    virtual unsigned short getActiveJoystick() const;
    virtual unsigned short getJoystickSensitivity() const; ///< axis units, up to 32768
    virtual bool getInvertJoystick() const;
    virtual bool getIgnoreTime() const;
    virtual bool getPlayMusic() const;
    virtual bool getPlaySound() const;

    // To the pending table. A refused value is reported on standard error and the default takes
    // its place.
    virtual void setScreenWidth(unsigned short v);
    virtual void setScreenHeight(unsigned short v);
    virtual void setColourDepth(unsigned short v);
    virtual void setFullScreen(bool v);
    virtual void setAntiAlias(bool v);
    virtual void setCompatibility(bool v);
    virtual void setRate(unsigned short v);
    virtual void setSoftwareChannels(unsigned short v);
    virtual void setJoystickSupport(bool v); ///< stores true for either argument
    virtual void setActiveJoystick(unsigned short v);
    virtual void setJoystickSensitivity(unsigned short v);
    virtual void setInvertJoystick(bool v);
    virtual void setIgnoreTime(bool v);
    virtual void setPlayMusic(bool v);
    virtual void setPlaySound(bool v);

    unsigned short getMusicVolume() const;       ///< 0 to 100
    unsigned short getFXVolume() const;          ///< 0 to 100
    unsigned short getCollisionAccuracy() const; ///< sub-steps of a tick
    bool getSaveCPU() const;
    void setMusicVolume(unsigned short v);
    void setFXVolume(unsigned short v);
    void setCollisionAccuracy(unsigned short v);
    void setSaveCPU(bool v);

    void setDefaults(); ///< of the pending table

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
    bool configured = false;
};

using Config = DefaultSingleton<ConfigClass>;

void writeSetValueError(const std::string& name); ///< on standard error
void writeUsageMessage(const char* programName);  ///< on standard error

/// Number at the head of `text`, 0 if there is none; one beyond the range of an int is cut to it.
int numberFromText(const char* text);

} // namespace quorva::config
