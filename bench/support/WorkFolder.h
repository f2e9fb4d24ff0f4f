#pragma once

#include <boost/filesystem.hpp>

namespace bench {

/// While it lives, the program works in a folder of its own, with the game's data linked in.
class WorkFolder {
public:
    WorkFolder();
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

private:
    const boost::filesystem::path folder;
};

} // namespace bench
