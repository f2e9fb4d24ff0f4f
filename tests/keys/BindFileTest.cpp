#include "keys/BindFile.h"

#include "tests/support/Files.h"

#include <SDL_keysym.h>
#include <gtest/gtest.h>

#include <filesystem>

using namespace quorva;
using namespace quorva::input;
using namespace quorva::keys;

namespace {

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
    const Bindings before = {binding("Up", SDLK_UP), binding("Fire Up", SDLK_w, 3)};
    const Bindings after = {binding("Up", SDLK_UP), binding("Fire Up", SDLK_KP8, 3)};
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
        {"no line", fire, "one, two, three, four\nUp, UP",
         "one, two, three, four\nUp, UP\nFire Up, NUM8, JOY5\n"},
        {"no text", fire, "", "Fire Up, NUM8, JOY5\n"},
        {"a longer name is another", fire, "Fire Up Up, W\n",
         "Fire Up Up, W\nFire Up, NUM8, JOY5\n"},
        {"a key alone", binding("Up", SDLK_SEMICOLON), "Up, UP, JOY3\n", "Up, ;\n"},
        {"a button alone", binding("Up", unknown_key, 0), "Up, F2\n", "Up, JOY1\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(rebind(c.before, {c.binding}), c.after) << c.what;
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
    EXPECT_EQ(contentsOf("bind1.conf"),
              "# The keys and buttons of KOV, as kov-keys has written them. The manual says how to "
              "edit them.\nUp, UP\nFire Up, NUM8, JOY4\n");
}

TEST_F(BindFileTest, WhatCannotBeWrittenStaysAsItWas) {
    const auto expectFailure = [&](const std::string& what) {
        const Outcome outcome = save(before, after);
        EXPECT_FALSE(outcome.good) << what;
        EXPECT_EQ(outcome.text, what + ". Your keys are as they were.");
    };
    std::filesystem::create_directory("bind1.conf");
    expectFailure("Can't read bind1.conf");
    std::filesystem::remove("bind1.conf");
    fill("bind1.conf", "Fire Up, W\n");
    std::filesystem::create_directory("bind1.conf.bak");
    expectFailure("Can't write bind1.conf.bak");
    EXPECT_EQ(contentsOf("bind1.conf"), "Fire Up, W\n");
}
