#include "keys/BindFile.h"

#include "tests/support/Errors.h"
#include "tests/support/Files.h"

#include <SDL_keysym.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

using namespace quorva;
using namespace quorva::input;
using namespace quorva::keys;

namespace {

constexpr uid_t nobody = 65534;

InputKey binding(const char* action, int key, int button = no_button) {
    return {action, static_cast<QuorvaKey>(key), static_cast<QuorvaJKey>(button), 0};
}

class BindFileTest : public testing::Test {
protected:
    void SetUp() override { TearDown(); }
    void TearDown() override {
        KeyMapper::Instance().keys.clear();
        for (const char* path : {"bind1.conf", "bind1.conf.bak", "shared.conf"})
            std::filesystem::remove_all(path);
    }
    /// What the game makes of the file: "key button".
    static std::string inForce(const char* action) {
        KeyMapperClass& mapper = KeyMapper::Instance();
        mapper.keys.clear();
        mapper.addMappableKey(action, SDLK_z, 15, 0);
        mapper.readBindFiles();
        const InputKey* const key = mapper.getButton(action, 0);
        return std::to_string(key->key) + ' ' + std::to_string(key->jsButton);
    }
    const Bindings before = {binding("Up", SDLK_UP), binding("Fire Up", SDLK_w, 3)};
    const Bindings after = {binding("Up", SDLK_UP), binding("Fire Up", SDLK_KP8, 3)};
    const std::string asItWas = ". Your keys are as they were.";
};

} // namespace

TEST_F(BindFileTest, WritesTheLineThatCountsAndKeepsAllElse) {
    const InputKey fire = binding("Fire Up", SDLK_KP8, 4);
    const struct {
        const char* what;
        InputKey binding;
        const char *before, *after;
    } cases[] = {
        {"columns and remarks", fire, "# Keys\n\n  Fire Up,     W, JOY4\n#Fire Up, A\nDown, S\n",
         "# Keys\n\n  Fire Up,     NUM8, JOY5\n#Fire Up, A\nDown, S\n"},
        {"the last line counts", fire, "Fire Up, A, B\nFire Up, W\nup, up\nFire Up\n",
         "Fire Up, A, B\nFire Up, NUM8, JOY5\nup, up\nFire Up\n"},
        {"other line ends, none at the end", fire, "Up, UP\r\nFire Up,\tW , JOY4\r\nLeft, A",
         "Up, UP\r\nFire Up,\tNUM8, JOY5\r\nLeft, A\n"},
        {"no end of its own", fire, "Fire Up,W,,", "Fire Up,NUM8, JOY5\n"},
        {"empty fields in front", fire, " ,Fire Up,, W\n", " ,Fire Up,, NUM8, JOY5\n"},
        {"no line", fire, "one, two, three, four\nUp, UP",
         "one, two, three, four\nUp, UP\nFire Up, NUM8, JOY5\n"},
        {"no text", fire, "", "Fire Up, NUM8, JOY5\n"},
        {"a longer name is another", fire, "Fire Up Up, W\n",
         "Fire Up Up, W\nFire Up, NUM8, JOY5\n"},
        {"a key alone", binding("Up", SDLK_SEMICOLON), "Up, UP, JOY3\n", "Up, ;\n"},
        {"a button alone", binding("Up", unknown_key, 0), "Up, F2\n", "Up, JOY1\n"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(rebind(c.before, {c.binding}), c.after) << c.what;
        fill("bind1.conf", c.after);
        std::string bound;
        errorsOf([&] { bound = inForce(c.binding.name.c_str()); });
        const int key = c.binding.key == unknown_key ? int{SDLK_z} : c.binding.key;
        const int button = c.binding.jsButton == no_button ? 15 : c.binding.jsButton;
        EXPECT_EQ(bound, std::to_string(key) + ' ' + std::to_string(button)) << c.what;
    }
}

TEST_F(BindFileTest, SetsTheOldFileAside) {
    const std::string old = "# mine\nFire Up, W, JOY4\nnot a binding";
    fill("bind1.conf", old);
    fill("bind1.conf.bak", "older");
    EXPECT_EQ(save(before, before).text, "All is as it was: no key has changed.");
    EXPECT_EQ(contentsOf("bind1.conf.bak"), "older");
    const Outcome saved = save(before, after);
    EXPECT_TRUE(saved.good);
    EXPECT_EQ(saved.text,
              "bind1.conf is written, for the next start. The old file is bind1.conf.bak.");
    EXPECT_EQ(contentsOf("bind1.conf"), "# mine\nFire Up, NUM8, JOY4\nnot a binding\n");
    EXPECT_EQ(contentsOf("bind1.conf.bak"), old);

    std::filesystem::rename("bind1.conf", "shared.conf");
    std::filesystem::create_symlink("shared.conf", "bind1.conf");
    save(after, before);
    EXPECT_TRUE(std::filesystem::is_symlink("bind1.conf"));
    EXPECT_EQ(contentsOf("shared.conf"), "# mine\nFire Up, W, JOY4\nnot a binding\n");

    std::filesystem::remove("bind1.conf");
    EXPECT_EQ(save(before, after).text, "bind1.conf is written, for the next start.");
    EXPECT_EQ(inForce("Up"), "273 15");
    EXPECT_EQ(inForce("Fire Up"), "264 3");
}

TEST_F(BindFileTest, WhatCannotBeWrittenStaysAsItWas) {
    const auto expectFailure = [&](const std::string& what) {
        const Outcome outcome = save(before, after);
        EXPECT_FALSE(outcome.good) << what;
        EXPECT_EQ(outcome.text, what + asItWas);
    };
    std::filesystem::create_directory("bind1.conf");
    expectFailure("Can't read bind1.conf");
    std::filesystem::remove("bind1.conf");
    fill("bind1.conf", "Fire Up, W\n");
    std::filesystem::create_directory("bind1.conf.bak");
    expectFailure("Can't write bind1.conf.bak");
    std::filesystem::remove("bind1.conf.bak");

    const std::filesystem::perms usual = std::filesystem::status(".").permissions();
    std::filesystem::permissions(".", std::filesystem::perms(0555)); // read-only
    const bool isRoot = geteuid() == 0;                              // whom permissions don't bind
    EXPECT_EQ(seteuid(isRoot ? nobody : geteuid()), 0);
    expectFailure("Can't write bind1.conf.bak");
    fill("bind1.conf.bak", ""); // can't be made either
    EXPECT_EQ(seteuid(isRoot ? 0 : geteuid()), 0);
    std::filesystem::permissions(".", usual);
    EXPECT_EQ(contentsOf("bind1.conf"), "Fire Up, W\n");
    EXPECT_EQ(contentsOf("bind1.conf.bak"), no_file);
}
