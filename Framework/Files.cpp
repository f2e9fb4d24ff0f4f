#include "Framework/Files.h"

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

#include <iterator>

namespace quorva::utility {

namespace {

constexpr mode_t new_file_mode = 0666; // less the user's umask

std::string contentsOf(const std::string& path) {
    std::ifstream file = openForReading(path);
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : std::string();
}

bool overwrite(int file, const std::string& contents) {
    std::size_t done = 0;
    while (done < contents.size()) {
        const ssize_t written =
            pwrite(file, contents.data() + done, contents.size() - done, static_cast<off_t>(done));
        if (written <= 0) return false;
        done += static_cast<std::size_t>(written);
    }
    return ftruncate(file, static_cast<off_t>(contents.size())) == 0;
}

} // namespace

std::ifstream openForReading(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    file.peek();
    if (!file.bad()) file.clear(file.rdstate() & ~std::ios::eofbit); // an empty file is a file
    return file;
}

bool replaceContents(const std::string& path, const std::string& contents) {
    const std::string before = contentsOf(path);
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, new_file_mode);
    if (file < 0) return false;
    // In place: a file that is emptied first, or written anew, needs room that may not be there.
    const bool replaced = overwrite(file, contents);
    if (!replaced) overwrite(file, before);
    return close(file) == 0 && replaced;
}

} // namespace quorva::utility
