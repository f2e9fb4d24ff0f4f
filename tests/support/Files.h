#pragma once

#include <sys/resource.h>

#include <csignal>
#include <fstream>
#include <iterator>
#include <string>

const std::string no_file = "no such file"; ///< what contentsOf gives in its place

inline std::string contentsOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : no_file;
}

inline void fill(const std::string& path, const std::string& contents) {
    std::ofstream(path, std::ios::binary) << contents;
}

/// From here on no file of this process may grow beyond that many bytes, as on a full disk.
inline void leaveRoom(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}
