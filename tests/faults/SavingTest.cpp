// What a file holds when saving it fails, or ends in the middle.

#include "Framework/Files.h"
#include "tests/support/Files.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace fs = boost::filesystem;
using quorva::utility::replaceContents;

namespace {

const std::string old_contents = "old contents, the longer ones", new_contents = "new contents";

class Saving : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directory(folder);
        fs::current_path(folder);
        fill("s.dat", old_contents);
    }
    void TearDown() override {
        fs::current_path("/");
        fs::remove_all(folder);
    }
    static void makeLink() {
        fs::rename("s.dat", "elsewhere");
        fs::create_symlink("elsewhere", "s.dat");
    }
    /// Saves in a child process, which `prepare` may restrict. @return its id
    static pid_t start(const std::function<void()>& prepare) {
        const pid_t child = fork();
        if (child != 0) return child;
        prepare();
        _exit(replaceContents("s.dat", new_contents) ? 0 : 1);
    }
    static bool save(const std::function<void()>& prepare = [] {}) {
        int status = 0;
        waitpid(start(prepare), &status, 0);
        return status == 0;
    }
    /// Kills the child as it enters or leaves a system call, the `moment`th of these.
    /// @return false if it had ended before
    static bool killAt(int moment) {
        const pid_t child = start([] {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            raise(SIGSTOP);
        });
        int status = 0;
        waitpid(child, &status, 0);
        for (int i = 0; i < moment && WIFSTOPPED(status); ++i) {
            ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
            waitpid(child, &status, 0);
        }
        if (!WIFSTOPPED(status)) return false;
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
        return true;
    }

    const fs::path folder = fs::temp_directory_path() / fs::unique_path("kov-saving-%%%%%%%%");
};

} // namespace

TEST_F(Saving, KilledAtAnySystemCallItLeavesTheOldFileOrTheNewOne) {
    const struct {
        const char* what;
        std::string before;
        std::function<void()> prepare;
    } cases[] = {
        {"a file", old_contents, [] {}},
        {"no file", no_file, [] { fs::remove("s.dat"); }},
        {"a link to a file of the same length", "old contents",
         [] { fill("s.dat", "old contents"), makeLink(); }},
    };
    for (const auto& c : cases) {
        std::string last;
        int moment = 0;
        for (bool killed = true; killed; ++moment) {
            TearDown();
            SetUp();
            c.prepare();
            killed = killAt(moment);
            last = contentsOf("s.dat");
            EXPECT_TRUE(last == c.before || last == new_contents)
                << c.what << ", killed at " << moment << ": " << last;
        }
        EXPECT_EQ(last, new_contents) << c.what;
        EXPECT_GT(moment, 10) << "each system call has two";
    }
}

TEST_F(Saving, OnAFullDiskLosesAndLeavesNothing) {
    EXPECT_FALSE(save([] { leaveRoom(5); }));
    EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), 1);
    makeLink();
    EXPECT_FALSE(save([] { leaveRoom(5); }));
    EXPECT_EQ(contentsOf("s.dat"), old_contents);
}

TEST_F(Saving, KeepsWhatIsToKnowOfAFile) {
    fs::permissions("s.dat", fs::owner_read | fs::owner_write | fs::others_read);
    EXPECT_TRUE(save());
    EXPECT_EQ(fs::status("s.dat").permissions(),
              fs::owner_read | fs::owner_write | fs::others_read);
    fill("s.dat", old_contents);
    fs::create_hard_link("s.dat", "twin");
    EXPECT_TRUE(save());
    EXPECT_EQ(contentsOf("twin"), new_contents);
    fs::remove("twin");
    makeLink();
    EXPECT_TRUE(save());
    EXPECT_EQ(contentsOf("elsewhere"), new_contents);
    fs::remove("elsewhere");
    EXPECT_TRUE(save());
    EXPECT_EQ(contentsOf("elsewhere"), new_contents) << "a link to nothing";
}
