#include "Framework/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace quorva::utility {

namespace {

namespace fs = std::filesystem;

constexpr mode_t new_file_mode = 0666; // less the user's umask
constexpr mode_t permission_bits = 07777;

bool isRegularFile(const std::string& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

mode_t newFileMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return new_file_mode & ~mask;
}

bool writeAll(int file, const std::string& contents) {
    std::size_t done = 0;
    while (done < contents.size()) {
        const ssize_t written =
            pwrite(file, contents.data() + done, contents.size() - done, static_cast<off_t>(done));
        if (written <= 0) return false;
        done += static_cast<std::size_t>(written);
    }
    return true;
}

/// Gives a new file the owner and the permissions of the file that it is to replace, if any.
bool copyOwnerAndMode(int file, const struct stat* replaced) {
    if (replaced == nullptr) return fchmod(file, newFileMode()) == 0;
    struct stat own = {};
    if (fstat(file, &own) != 0) return false;
    const bool isSameOwner = own.st_uid == replaced->st_uid && own.st_gid == replaced->st_gid;
    if (!isSameOwner && fchown(file, replaced->st_uid, replaced->st_gid) != 0) return false;
    return fchmod(file, replaced->st_mode & permission_bits) == 0;
}

/// Puts a new file, complete, in the place of the old one: at no moment is there half of one.
bool exchange(const std::string& path, const std::string& contents, const struct stat* replaced) {
    std::string name = path + ".XXXXXX";
    const int file = mkostemp(name.data(), O_CLOEXEC);
    if (file < 0) return false;
    // On the disk before its name is: a crash must not leave the name with nothing behind it.
    bool done = writeAll(file, contents) && copyOwnerAndMode(file, replaced) && fsync(file) == 0;
    done = close(file) == 0 && done;
    done = done && std::rename(name.c_str(), path.c_str()) == 0;
    if (!done) unlink(name.c_str());
    return done;
}

/// Takes no new room for what the file has room for, so that it works on a full disk. A file whose
/// bytes it can't read, and so could not bring back, it leaves alone.
bool overwriteOrRestore(int file, const std::string& contents) {
    struct stat before = {};
    if (fstat(file, &before) != 0 || !S_ISREG(before.st_mode)) return false;
    std::string head(std::min(contents.size(), static_cast<std::size_t>(before.st_size)), '\0');
    if (pread(file, head.data(), head.size(), 0) != static_cast<ssize_t>(head.size())) return false;
    const bool written = writeAll(file, contents);
    if (!written) writeAll(file, head);
    const off_t size = written ? static_cast<off_t>(contents.size()) : before.st_size;
    return ftruncate(file, size) == 0 && written;
}

bool overwrite(const std::string& path, const std::string& contents) {
    const int flags = O_RDWR | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int file = open(path.c_str(), flags, new_file_mode);
    if (file < 0) return false;
    const bool done = overwriteOrRestore(file, contents);
    return close(file) == 0 && done;
}

} // namespace

std::string regularOrNone(const std::string& path) {
    return isRegularFile(path) ? path : "";
}

std::ifstream openForReading(const std::string& path, std::uintmax_t largest) {
    std::ifstream file;
    std::error_code error;
    if (isRegularFile(path) && fs::file_size(path, error) <= largest)
        file.open(path, std::ios::binary);
    else
        file.setstate(std::ios::failbit);
    file.peek(); // a file that opens may still not be readable
    if (!file.bad()) file.clear(file.rdstate() & ~std::ios::eofbit); // an empty file is a file
    return file;
}

bool replaceContents(const std::string& path, const std::string& contents) {
    std::error_code ignored;
    const fs::file_type type = fs::status(path, ignored).type();
    if (type != fs::file_type::regular && type != fs::file_type::not_found) return false;
    struct stat old = {};
    if (lstat(path.c_str(), &old) != 0) return exchange(path, contents, nullptr);
    const bool hasOneName = S_ISREG(old.st_mode) && old.st_nlink == 1;
    if (hasOneName && access(path.c_str(), W_OK) == 0 && exchange(path, contents, &old))
        return true;
    return overwrite(path, contents);
}

} // namespace quorva::utility
