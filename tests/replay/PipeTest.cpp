// Other programs: what they are given, how they end, and what they get of a signal.

#include "replay/Pipe.h"
#include "tests/support/Files.h"

#include <boost/filesystem.hpp>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

using namespace quorva::replay;
namespace fs = boost::filesystem;

namespace {

/// The number that the next file gets, if none is left open meanwhile.
int freeFile() {
    const int file = open("/", O_RDONLY);
    close(file);
    return file;
}

} // namespace

TEST(PipeTest, GivesAllToTheProgramAndKnowsHowItEnded) {
    const fs::path file = fs::temp_directory_path() / fs::unique_path();
    std::string much(3U << 20U, ' '); // more than a pipe holds
    for (std::size_t i = 0; i < much.size(); ++i)
        much[i] = static_cast<char>('a' + i % 23);
    Pipe pipe({"sh", "-c", "sleep 0.1; cat >" + file.string()});
    EXPECT_TRUE(pipe.write(much.data(), much.size()));
    EXPECT_TRUE(pipe.write("!", 1));
    EXPECT_TRUE(pipe.finish());
    const int others[] = {open("/", O_RDONLY), open("/", O_RDONLY)}; // in the place of its ends
    EXPECT_TRUE(pipe.finish());
    for (const int each : others)
        EXPECT_EQ(close(each), 0) << "only the first time";
    EXPECT_TRUE(contentsOf(file.string()) == much + '!');
    fs::remove(file);
    const std::string slow = "sleep 0.1; : >" + file.string();
    Pipe({"sh", "-c", slow}); // waits
    EXPECT_TRUE(fs::remove(file));

    Pipe deaf({"sh", "-c", "exec <&-; sleep 0.1; exit 3"});
    EXPECT_FALSE(deaf.write(much.data(), much.size()));
    EXPECT_FALSE(deaf.write(much.data(), 1)) << "nor later";
    EXPECT_FALSE(deaf.finish());
    EXPECT_FALSE(Pipe({"sh", "-c", "kill -KILL $$"}).finish());
    const int nextFile = freeFile();
    EXPECT_THROW(Pipe({"no-such-program"}), std::runtime_error);
    EXPECT_EQ(freeFile(), nextFile);
}

TEST(PipeTest, RunsProgramsToTheirEnd) {
    sigset_t ours, held;
    sigemptyset(&ours);
    sigaddset(&ours, SIGUSR1);
    pthread_sigmask(SIG_BLOCK, &ours, nullptr);
    EXPECT_EQ(runProgram({"sh", "-c", "read line; exit 7"}).code, 7) << "there is nothing to read";
    EXPECT_EQ(runProgram({"true"}).code, 0);
    EXPECT_EQ(runProgram({"no-such-program"}).code, -1);
    EXPECT_EQ(runProgram({"sh", "-c", "kill -TERM $$; exit 1"}).code, -1) << "it gets its signals";
    const int nextFile = freeFile();
    EXPECT_FALSE(runProgram({"true"}).interrupted);
    EXPECT_EQ(freeFile(), nextFile);
    pthread_sigmask(SIG_UNBLOCK, &ours, &held);
    EXPECT_FALSE(sigismember(&held, SIGTERM)) << "only meanwhile";
    EXPECT_TRUE(sigismember(&held, SIGUSR1)) << "as before";
}

TEST(PipeTest, PassesASignalOn) {
    const auto pass = [] {
        std::signal(SIGHUP, SIG_DFL); // nohup has it ignored
        const ProgramEnd end = runProgram(
            {"sh", "-c", "trap 'exit 5' TERM; kill -HUP $PPID; while :; do sleep 0.01; done"});
        std::_Exit(end.interrupted ? end.code : 1);
    };
    EXPECT_EXIT(pass(), testing::ExitedWithCode(5), "");
}
