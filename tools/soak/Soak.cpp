#include "tools/soak/Soak.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Renderer.h"
#include "Framework/menus/MainMenu.h"
#include "Framework/physics/PhysicsProcessor.h"
#include "game/GameBase.h"
#include "game/Marvo.h"
#include "headless/StateHash.h"
#include "platform/standins/SoundRecorder.h"
#include "platform/standins/VirtualSDL.h"
#include "tools/soak/Memory.h"

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>
#include <typeinfo>

namespace soak {

using namespace quorva;

namespace {

constexpr std::uint64_t progress_interval = 25000; // ticks
/// Games in which lists may still find their size.
constexpr std::uint64_t settling_games = 20;
/// Bytes that lists may take on top of that, when a later game crowds the field more.
constexpr std::size_t heap_tolerance = 1 << 20;
/// Ticks after the end of a game within which its entities have to be gone, menus read.
constexpr unsigned int floor_patience = 5000;
constexpr double mebibyte = 1024.0 * 1024.0;

std::string population() {
    std::map<std::string, int> counts;
    for (const auto& [id, entity] : Engine::Instance().entities)
        ++counts[headless::className(typeid(*entity).name())];
    std::ostringstream out;
    for (const auto& [name, count] : counts)
        out << (out.tellp() > 0 ? ", " : "") << count << ' ' << name;
    return out.str();
}

} // namespace

Soak::Soak(std::uint32_t seed) : run(seed), bot(seed) {
    subscribe<PlayerDead>(this);
    subscribe<SoundSquare>(this);
    subscribe<SoundClearBomb>(this);
    subscribe<SoundPup>(this);
}

bool Soak::play(std::uint64_t ticks) {
    while (played < ticks && !run.isOver()) {
        tick();
        if (played % progress_interval == 0) printProgress();
    }
    if (played < ticks) fault("the game has ended by itself");
    if (ticksSinceEnd > floor_patience) fault("no way back to the menu");
    printSummary();
    return faults == 0;
}

void Soak::tick() {
    bot.play();
    run.tick();
    ++played;
    mostEntities = std::max(mostEntities, Engine::Instance().entities.size());
    const bool nowInLevel = run.game().level != nullptr;
    if (inLevel && !nowInLevel) noteEndOfGame();
    if (nowInLevel && checkIsDue) {
        fault("the next game has begun before the last had gone");
        checkIsDue = false;
    }
    inLevel = nowInLevel;
    if (!checkIsDue) return;
    ++ticksSinceEnd;
    if (!isBackAtFloor()) return;
    checkFloor();
    checkHeap();
    checkIsDue = false;
    ticksSinceEnd = 0;
    ++checkedGames;
}

void Soak::noteEndOfGame() {
    checkIsDue = true;
    ticksSinceEnd = 0;
    totalScore += Marvo::Instance().score;
    bestScore = std::max<std::uint64_t>(bestScore, Marvo::Instance().score);
    standins::sdl().modes.clear(); // the stand-in's own diary
}

/// In the main menu, and the engine has had the time to delete what is dead.
bool Soak::isBackAtFloor() const {
    if (!run.game().mainMenu->shown) return false;
    const auto& entities = Engine::Instance().entities;
    return std::none_of(entities.begin(), entities.end(),
                        [](const auto& node) { return node.second->dead; });
}

void Soak::checkFloor() {
    const GameBase& game = run.game();
    if (Engine::Instance().entities.size() != 1) fault("left over: " + population());
    if (!game.physicsProcessor->entities.empty() || !game.physicsProcessor->lines.empty())
        fault("the physics still knows something");
    if (Engine::Instance().components.size() != 3) fault("wrong components in the menu");
    if (standins::sound().openStreams != 0) fault("a song is still open");
}

void Soak::checkHeap() {
    const std::size_t heap = heapBytes();
    if (checkedGames < settling_games) {
        settledHeap = std::max(settledHeap, heap);
        return;
    }
    lowestHeap = lowestHeap == 0 ? heap : std::min(lowestHeap, heap);
    highestHeap = std::max(highestHeap, heap);
    if (heap > settledHeap + heap_tolerance)
        fault("the heap has grown to " + std::to_string(heap) + " bytes after a game");
}

void Soak::fault(const std::string& what) {
    ++faults;
    std::cout << "FAULT at tick " << played << ", game " << bot.games << ": " << what << std::endl;
}

double Soak::ticksPerSecond() const {
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    return static_cast<double>(played) / elapsed.count();
}

void Soak::printProgress() const {
    std::cout << std::fixed << std::setprecision(1) << "tick " << played << "  "
              << static_cast<std::uint64_t>(ticksPerSecond()) << "/s  games " << bot.games
              << "  score " << Marvo::Instance().score << " (best " << bestScore << ")  deaths "
              << deaths << "  alive " << Engine::Instance().entities.size() << "  heap "
              << static_cast<double>(heapBytes()) / mebibyte << " MiB  resident "
              << static_cast<double>(residentBytes()) / mebibyte << " MiB" << std::endl;
}

void Soak::printSummary() const {
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    std::cout << std::fixed << std::setprecision(1) << "\nplayed " << played << " ticks ("
              << static_cast<double>(played) * 0.03 / 3600.0 << " hours of play) in "
              << elapsed.count() << " s, " << static_cast<std::uint64_t>(ticksPerSecond())
              << " ticks/s\ngames " << bot.games << ", back at the floor after " << checkedGames
              << "\ndeaths " << deaths << ", rectangles " << squares << ", power-ups " << powerUps
              << ", clear bombs " << clearBombs << "\nscore " << totalScore << " in all, best "
              << bestScore << "\nentities at most " << mostEntities
              << "\nheap after a game: at most " << settledHeap << " bytes in the first "
              << settling_games << " games, " << lowestHeap << " to " << highestHeap
              << " after them\nresident " << static_cast<double>(residentBytes()) / mebibyte
              << " MiB\nfaults " << faults << std::endl;
}

} // namespace soak
