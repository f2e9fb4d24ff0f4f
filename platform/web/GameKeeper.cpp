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
    replay::tidy(folder, limits); // now, as there may be no end
    return folder + '/' + file;
}

} // namespace

GameKeeper::GameKeeper()
    : name(replay::KeptName::now(true)), path(makeRoom(name.unfinished())), recorder(path) {}

void GameKeeper::look() {
    if (recorder.games != namedGames) nameByScore();
}

void GameKeeper::finish() {
    recorder.finish();
    look();
    boost::system::error_code ignored; // it stays, without a game
    if (recorder.games == 0) fs::remove(path, ignored);
}

void GameKeeper::nameByScore() {
    namedGames = recorder.games;
    const std::string named = folder + '/' + name.finished(recorder.bestScore);
    boost::system::error_code error; // it keeps the name that it has
    if (named != path) fs::rename(path, named, error);
    if (!error) path = named;
}

} // namespace quorva::web
