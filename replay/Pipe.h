#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <vector>

namespace quorva::replay {

/// Another program that reads what is written here.
class Pipe {
public:
    /// Starts it, found along PATH. Throws std::runtime_error if it can't be.
    /// @param words its name and arguments
    explicit Pipe(const std::vector<std::string>& words);
    ~Pipe(); ///< waits for its end
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    /// @return false if it reads no more, now or since an earlier call
    bool write(const void* bytes, std::size_t size);

    /// Nothing more comes. Waits for its end.
    /// @return whether it has succeeded
    bool finish();

private:
    pid_t process; ///< -1: has ended
    int end;       ///< of the pipe
    bool good = true;
};

/// How a program has ended.
struct ProgramEnd {
    int code;         ///< -1 if a signal ended it or there is none
    bool interrupted; ///< by SIGINT, SIGTERM or SIGHUP to this one, which it has got, too
};

/// Runs a program to its end, without anything to read.
ProgramEnd runProgram(const std::vector<std::string>& words);

} // namespace quorva::replay
