#include "platform/web/GameKeeper.h"

#include <boost/filesystem.hpp>

namespace quorva::web {

namespace {

namespace fs = boost::filesystem;

const std::string folder = "Replays";

/// Where games of this name would go, with room for one more.
std::string makeRoom(const std::string& file) {
    fs::create_directories(folder);
    replay::KeepLimits limits;
    --limits.latest;
    replay::tidy(folder, limits); // now, as few players end the program before they leave the page
    return folder + '/' + file;
}

} // namespace

GameKeeper::GameKeeper()
    : name(replay::KeptName::now(true)), path(makeRoom(name.unfinished())), recorder(path) {
    replay::insert(&recorder);
}

GameKeeper::~GameKeeper() {
    replay::insert(nullptr);
}

void GameKeeper::finish() {
    recorder.finish();
    name.score = recorder.bestScore;
    boost::system::error_code ignored; // it keeps the name that it has
    if (recorder.games == 0)
        fs::remove(path, ignored);
    else
        fs::rename(path, folder + '/' + name.finished(), ignored);
}

} // namespace quorva::web
