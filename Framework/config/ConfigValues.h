#pragma once

#include "Framework/config/ConfigValue.h"

#include <string>
#include <vector>

namespace quorva::config {

/// One complete table of settings. A key is a letter, compared with `shortName`, or a text,
/// compared with `longName`; the first match in definition order counts. An unknown key and a
/// refused value throw ConfigValueException.
///
/// Most boolean settings are followed by a negative entry: "No" and the long name, the letter in
/// upper case. It only exists to be listed and found: writing it writes the setting before it.
class ConfigValuesT {
public:
    ConfigValuesT();
    /// Deliberate: the `anonNames` of a copy still point into the table that it was copied from.
    ConfigValuesT(const ConfigValuesT&) = default;
    ConfigValuesT& operator=(const ConfigValuesT&) = default;
    virtual ~ConfigValuesT() = default;

    int getIntVal(char key) const;
    int getIntVal(const std::string& key) const;
    bool getBoolVal(char key) const;
    bool getBoolVal(const char* key) const;
    bool getBoolVal(const std::string& key) const;
    QualityE getQualityVal(char key) const;
    QualityE getQualityVal(const std::string& key) const;

    // The next or the previous value, wrapping at the ends of the range or list. Nothing in the
    // game asks for these.
    int getNextIntVal(char key) const;
    int getNextIntVal(const std::string& key) const;
    int getPrevIntVal(char key) const;
    int getPrevIntVal(const std::string& key) const;
    bool getNextBoolVal(char key) const { return !getBoolVal(key); }
    bool getNextBoolVal(const char* key) const { return !getBoolVal(key); }
    bool getNextBoolVal(const std::string& key) const { return !getBoolVal(key); }
    bool getPrevBoolVal(char key) const { return !getBoolVal(key); }
    bool getPrevBoolVal(const char* key) const { return !getBoolVal(key); }
    bool getPrevBoolVal(const std::string& key) const { return !getBoolVal(key); }
    QualityE getNextQualityVal(char key) const;
    QualityE getNextQualityVal(const std::string& key) const;
    QualityE getPrevQualityVal(char key) const;
    QualityE getPrevQualityVal(const std::string& key) const;

    /// Stores `v` in an integer setting. In a boolean setting `v` doesn't matter: a letter in lower
    /// case or a plain name stores true, a letter in upper case or a name behind "No" false.
    /// @return true; a failure throws
    bool setValue(char key, int v);
    bool setValue(const char* key, int v);
    bool setValue(const std::string& key, int v) { return setValue(key.c_str(), v); }
    bool setValue(char key, QualityE q);
    bool setValue(const char* key, QualityE q) { return setValue(std::string(key), q); }
    bool setValue(const std::string& key, QualityE q);

    void setDefault(char key);
    void setDefault(const char* key) { setDefault(std::string(key)); }
    void setDefault(const std::string& key);

    ConfigValueAnon& getTypelessValue(const char* key);
    ConfigValueAnon& getTypelessValue(char key);
    const std::vector<ConfigValueAnon*>& getAnonNames() const { return anonNames; }

    /// Whether every setting of `other` is here too, by name, with the same value.
    bool operator==(const ConfigValuesT& other) const;

    std::vector<ConfigValue<int>> intValues;
    std::vector<ConfigValue<bool>> boolValues;
    std::vector<ConfigValue<QualityE>> qualityValues; ///< the game defines none
    std::vector<ConfigValueAnon*> anonNames;          ///< integers, booleans, qualities; not owned
};

} // namespace quorva::config
