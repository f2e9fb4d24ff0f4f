#include "replay/Pipe.h"

#include "replay/Interruption.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <iterator>
#include <stdexcept>

extern char** environ;

namespace quorva::replay {

namespace {

constexpr int pipe_size = 1 << 20; // bytes; the system may give less

/// By this thread.
sigset_t heldSignals() {
    sigset_t held;
    pthread_sigmask(SIG_BLOCK, nullptr, &held);
    return held;
}

/// @param input becomes its standard input
/// @param held the signals that it holds back at first
/// @return -1 if it can't be started; errno has the reason
pid_t start(const std::vector<std::string>& words, int input, const sigset_t& held) {
    std::vector<char*> arguments;
    std::transform(words.begin(), words.end(), std::back_inserter(arguments),
                   [](const std::string& word) { // posix_spawn leaves it alone
                       return const_cast<char*>(word.c_str());
                   });
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigmask(&attributes, &held);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t process;
    const int error =
        posix_spawnp(&process, arguments[0], &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    errno = error;
    return error == 0 ? process : -1;
}

/// @return -1 if a signal has ended it
int codeOf(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

Pipe::Pipe(const std::vector<std::string>& words) {
    std::signal(SIGPIPE, SIG_IGN); // `write` says it instead
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error(std::strerror(errno));
    fcntl(ends[1], F_SETPIPE_SZ, pipe_size);
    end = ends[1];
    process = start(words, ends[0], heldSignals());
    const int error = errno;
    close(ends[0]);
    if (process != -1) return;
    close(end);
    throw std::runtime_error(std::strerror(error));
}

Pipe::~Pipe() {
    finish();
}

bool Pipe::write(const void* bytes, std::size_t size) {
    const auto* at = static_cast<const char*>(bytes);
    while (good && size > 0) {
        const ssize_t written = ::write(end, at, size);
        good = written != -1; // no signal cuts it short: see catchSignals
        at += written;
        size -= static_cast<std::size_t>(written);
    }
    return good;
}

bool Pipe::finish() {
    if (process == -1) return good;
    close(end);
    int status = 0; // where nobody may wait: SIGCHLD is ignored
    waitpid(process, &status, 0);
    good = codeOf(status) == 0 && good;
    process = -1;
    return good;
}

ProgramEnd runProgram(const std::vector<std::string>& words) {
    const sigset_t before = heldSignals(); // what is held from here on is to reach the program
    const sigset_t held = holdInterruptions({SIGCHLD});
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    const pid_t process = start(words, nothing, before);
    close(nothing);
    ProgramEnd end = {-1, false};
    int status = 0;
    while (process != -1 && waitpid(process, &status, WNOHANG) == 0) {
        const int signal = sigwaitinfo(&held, nullptr);
        if (signal == -1 || signal == SIGCHLD) continue; // -1: stopped and continued
        end.interrupted = true;
        kill(process, SIGTERM);
    }
    if (process != -1) end.code = codeOf(status);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return end;
}

} // namespace quorva::replay
