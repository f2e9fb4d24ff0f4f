#include "replay/Pipe.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <stdexcept>

extern char** environ;

namespace quorva::replay {

namespace {

constexpr int pipe_size = 1 << 20; // bytes; the system may give less

/// @param input becomes its standard input
/// @return an error number, 0 for success
int start(const std::vector<std::string>& words, int input, pid_t& process) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str())); // posix_spawn leaves them alone
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    const int error =
        posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error;
}

int codeOf(pid_t process) {
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

Pipe::Pipe(const std::vector<std::string>& words) {
    std::signal(SIGPIPE, SIG_IGN); // `write` says it instead
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error(std::strerror(errno));
    fcntl(ends[1], F_SETPIPE_SZ, pipe_size);
    const int error = start(words, ends[0], process);
    close(ends[0]);
    end = ends[1];
    if (error == 0) return;
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
        if (written < 0 && errno == EINTR) continue;
        good = written > 0;
        at += written;
        size -= static_cast<std::size_t>(written);
    }
    return good;
}

bool Pipe::finish() {
    if (process == -1) return good;
    close(end);
    good = codeOf(process) == 0 && good;
    process = -1;
    return good;
}

int runProgram(const std::vector<std::string>& words) {
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    pid_t process = -1;
    const int error = start(words, nothing, process);
    close(nothing);
    return error == 0 ? codeOf(process) : -1;
}

} // namespace quorva::replay
