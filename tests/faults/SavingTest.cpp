// What a file holds when saving it fails, or ends in the middle.

#include "Framework/Files.h"
#include "tests/support/Files.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <functional>

namespace fs = boost::filesystem;
using quorva::utility::replaceContents;

namespace {

int soundReads = INT_MAX; ///< before the disk gives its first error

ssize_t failOr(long call, int file, void* buffer, std::size_t size, off_t offset) {
    if (soundReads > 0) return --soundReads, syscall(call, file, buffer, size, offset);
    errno = EIO;
    return -1;
}

} // namespace

// These stand before the C library's own, also for std::ifstream.
extern "C" ssize_t read(int file, void* buffer, std::size_t size) {
    return failOr(SYS_read, file, buffer, size, 0);
}
extern "C" ssize_t pread(int file, void* buffer, std::size_t size, off_t offset) {
    return failOr(SYS_pread64, file, buffer, size, offset);
}

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
    /// What its end was, as waitpid has it, and how much memory it took, in KiB.
    struct End {
        int status = 0;
        long memory = 0;
    };
    /// Saves in a child process. @return its exit code is 0 if the file was saved
    static End save(const std::function<void()>& prepare = {}) {
        const pid_t child = fork();
        if (child == 0) {
            if (prepare) prepare();
            _exit(replaceContents("s.dat", new_contents) ? 0 : 1);
        }
        End end;
        rusage usage = {};
        wait4(child, &end.status, 0, &usage);
        end.memory = usage.ru_maxrss;
        return end;
    }
    /// Kills the child as it enters or leaves a system call, the `moment`th of these.
    /// @return false if it had ended before
    static bool killAt(int moment) {
        const pid_t child = fork();
        if (child == 0) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            raise(SIGSTOP);
            _exit(replaceContents("s.dat", new_contents) ? 0 : 1);
        }
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

TEST_F(Saving, WithErrorsOfTheDiskLosesNothing) {
    const auto fullDisk = [] { leaveRoom(5); };
    const struct {
        const char* what;
        bool isLink;
        std::function<void()> prepare;
        bool saved;
    } cases[] = {
        {"full", false, fullDisk, false},
        {"full, a link", true, fullDisk, false},
        {"can't be read", false, [] { soundReads = 0; }, true},
        {"can't be read on", false, [] { soundReads = 1; }, true},
        {"can't be read, a link", true, [] { soundReads = 0; }, false},
        {"neither", true, [&] { soundReads = 0, fullDisk(); }, false},
    };
    const std::string contents(30000, 'o'); // more than a stream reads at once
    for (const auto& c : cases) {
        TearDown();
        SetUp();
        fill("s.dat", contents);
        if (c.isLink) makeLink();
        EXPECT_EQ(save(c.prepare).status, c.saved ? 0 : 256) << c.what;
        EXPECT_TRUE(contentsOf("s.dat") == (c.saved ? new_contents : contents)) << c.what;
        EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), c.isLink ? 2 : 1) << c.what;
    }
}

TEST_F(Saving, KeepsWhatIsToKnowOfAFileAndReadsNoneOfALargeOne) {
    fs::permissions("s.dat", fs::owner_read | fs::owner_write | fs::others_read);
    fs::create_hard_link("s.dat", "twin");
    EXPECT_EQ(save().status, 0);
    EXPECT_EQ(contentsOf("twin"), new_contents);
    fs::remove("twin");
    makeLink();
    EXPECT_EQ(save().status, 0);
    EXPECT_EQ(contentsOf("elsewhere"), new_contents);
    fs::rename("elsewhere", "s.dat");
    fs::resize_file("s.dat", 1U << 30U);
    EXPECT_LT(save().memory, 300 << 10);
    EXPECT_EQ(contentsOf("s.dat"), new_contents);
    EXPECT_EQ(fs::status("s.dat").permissions(),
              fs::owner_read | fs::owner_write | fs::others_read);
    fs::remove("s.dat");
    fs::create_symlink("elsewhere", "s.dat");
    EXPECT_EQ(save().status, 0);
    EXPECT_EQ(contentsOf("elsewhere"), new_contents) << "a link to nothing";
}
