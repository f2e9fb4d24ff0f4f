#include "Framework/Config.h"
#include "game/GameIdentity.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"

#include <boost/algorithm/string/replace.hpp>

#include <functional>

using namespace quorva;
using namespace quorva::config;

namespace {

class ConfigTest : public testing::Test {
protected:
    void SetUp() override { introduceGame(); }
    static int reasonOf(const std::function<void()>& act) {
        try {
            act();
        } catch (const ConfigValueException& e) {
            return e.reason;
        }
        return -1;
    }
};

const std::string usage = "Usage: kov [OPTION]...\nTry `kov --help` for more information.\n";

} // namespace

TEST_F(ConfigTest, TellsUnknownKeysFromBadValues) {
    ConfigValuesT table;
    constexpr int good = -1, unknown = ConfigValueException::no_such_setting,
                  bad = ConfigValueException::invalid_value;
    const struct {
        char letter;
        int value, reason;
    } cases[] = {{'w', 479, bad},    {'w', 480, good}, {'w', 1920, good}, {'w', 1921, bad},
                 {'c', 24, bad},     {'c', 16, good},  {'r', 20000, bad}, {'z', 1000, good},
                 {'y', 32768, good}, {'q', 1, unknown}};
    for (const auto& c : cases) {
        const auto set = [&] {
            table.setValue(c.letter, c.value);
            EXPECT_EQ(table.getIntVal(c.letter), c.value);
        };
        EXPECT_EQ(reasonOf(set), c.reason) << c.letter << ' ' << c.value;
    }
    EXPECT_EQ(reasonOf([&] { table.setValue("q", 1); }), bad) << "shorter than the prefix";
    for (const char* name : {"Quite", "No"})
        EXPECT_EQ(reasonOf([&] { table.setValue(name, 1); }), unknown) << name;
    EXPECT_EQ(reasonOf([&] { table.setValue('w', quality_low); }), bad);
    EXPECT_EQ(reasonOf([&] { table.getIntVal("Quite"); }), bad);
    EXPECT_EQ(reasonOf([&] { table.setDefault("Quite"); }), unknown);
    EXPECT_EQ(reasonOf([&] { ConfigClass().getConfigValueInfo('q'); }), unknown);
}

TEST_F(ConfigTest, StepsWrapAtTheEndsOfRangesAndLists) {
    ConfigValuesT table;
    EXPECT_EQ(table.getNextIntVal('c'), 16);
    EXPECT_EQ(table.getNextIntVal('g'), 0);
    EXPECT_EQ(table.getPrevIntVal("EffectsVolume"), 99);
    table.setValue('r', 10250);
    EXPECT_EQ(table.getPrevIntVal('r'), 41000);
    EXPECT_EQ(table.getNextIntVal('r'), 20500);
    EXPECT_TRUE(table.getNextBoolVal("FullScreen"));
}

TEST_F(ConfigTest, ReadsTheFileLoosely) {
    const std::string huge = "ScreenWidth=1024\n" + std::string(16 << 20, ' ');
    const struct {
        const char* what;
        const char* text;
        int width;
        const char* errors;
    } cases[] = {
        {"blanks everywhere", "   ScreenWidth   =   1024  \r", 1024, ""},
        {"a run of separators", "ScreenWidth == 1024", 1024, ""},
        {"comment", "#ScreenWidth=1024", 800, ""},
        {"no value", "ScreenWidth =", 800, ""},
        {"three fields", "ScreenWidth = 1024 = 5", 800, ""},
        {"other case", "screenwidth = 1024", 800, ""},
        {"the first counts", "ScreenWidth = 1024\nScreenWidth = 640", 1024, ""},
        {"cut to sixteen bits", "ScreenWidth = 66336", 800, ""},
        {"too large", "ScreenWidth = 4000", 800, "Invalid ScreenWidth , using default: 800\n"},
        {"refused with another comma", "JoystickSensitivity = 32769", 800,
         "Invalid JoystickSensitivity, using default: 3200\n"},
        {"unknown", "Depth = 3", 800, ""},
        {"no text", huge.c_str(), 800, ""},
    };
    for (const auto& c : cases) {
        fill("game.conf", c.text);
        ConfigClass config;
        EXPECT_EQ(errorsOf([&] { config.readFile(); }), c.errors) << c.what;
        EXPECT_EQ(config.getScreenWidth(), c.width) << c.what;
    }
    fill("game.conf", "FullScreen = yes\nPlayMusic = 0\nInvertJoystickAxis = 1\nUseJoystick = 0");
    ConfigClass config;
    config.readFile();
    EXPECT_FALSE(config.getFullScreen()) << "a word counts as 0";
    EXPECT_FALSE(config.getPlayMusic());
    EXPECT_FALSE(config.getInvertJoystick()) << "never restored";
    EXPECT_TRUE(config.getJoyStickSupport()) << "always restored as true";
}

TEST_F(ConfigTest, WritesWhatItReadsAndAnEmptyBackup) {
    {
        ConfigClass config;
        config.setScreenWidth(1280);
        config.setSaveCPU(true);
        config.activateConfig();
        EXPECT_TRUE(config.configActivated());
        config.setScreenHeight(720); // pending only
        EXPECT_FALSE(config.configActivated());
        config.saveConfig();
    }
    EXPECT_EQ(contentsOf("game.conf"), contentsOf(KOV_SOURCE_DIR "/tests/config/saved.conf"));
    EXPECT_EQ(contentsOf("game.conf.bak"), no_file) << "there was nothing to keep";
    ConfigClass config;
    config.readFile();
    EXPECT_EQ(config.getScreenWidth(), 1280);
    EXPECT_TRUE(config.getSaveCPU());
    config.saveConfig();
    EXPECT_EQ(contentsOf("game.conf.bak"), "");
}

TEST_F(ConfigTest, TakesArgumentsAndTellsWhetherToStart) {
    const struct {
        const char* argument;
        bool starts, explains;
        std::function<int(const ConfigClass&)> setting;
        int value;
    } cases[] = {
        {"foo", false, true, {}, 0},
        {"foo=bar", true, false, {}, 0},
        {"", false, true, {}, 0},
        {"--=5", false, true, {}, 0},
        {"--ScreenWidth=", true, true, &ConfigClass::getScreenWidth, 800},
        {"--ScreenWidth=640=5", true, true, &ConfigClass::getScreenWidth, 800},
        {"--ScreenWidth=640", true, false, &ConfigClass::getScreenWidth, 640},
        {" -w==1024 ", true, false, &ConfigClass::getScreenWidth, 1024},
        {"-w=99999999999999999999", false, true, &ConfigClass::getScreenWidth, 800},
        {"-w", false, true, {}, 0},
        {"-fx", false, true, {}, 0},
        {"-r=20000", false, true, &ConfigClass::getRate, 41000},
        {"-f=0", true, false, &ConfigClass::getFullScreen, 1},
        {"-x", true, false, &ConfigClass::getIgnoreTime, 1},
        {"-S", true, false, &ConfigClass::getPlaySound, 0},
        {"--NoPlaySound", true, false, &ConfigClass::getPlaySound, 0},
        {"--Fullscreen", false, true, &ConfigClass::getFullScreen, 0},
        {"-\xe4", false, true, {}, 0},
    };
    for (const auto& c : cases) {
        ConfigClass config;
        bool starts = false;
        const std::string errors =
            errorsOf([&] { starts = config.parseCmdLineArgs("kov", c.argument); });
        EXPECT_EQ(starts, c.starts) << c.argument;
        EXPECT_EQ(errors, c.explains ? usage : "") << c.argument;
        config.activateConfig();
        if (c.setting) {
            EXPECT_EQ(c.setting(config), c.value) << c.argument;
        }
    }
}

TEST_F(ConfigTest, HelpListsEverySettingInItsSection) {
    EXPECT_EQ(errorsOf([] { writeUsageMessage("k\x1bov"); }),
              boost::replace_all_copy(usage, "kov", "k\\x1bov"));
    for (const char* argument : {"-h", "--help"}) {
        ConfigClass config;
        testing::internal::CaptureStdout();
        EXPECT_FALSE(config.parseCmdLineArgs("./game", argument));
        EXPECT_EQ(testing::internal::GetCapturedStdout(),
                  contentsOf(KOV_SOURCE_DIR "/tests/config/help.txt"))
            << argument;
    }
}
