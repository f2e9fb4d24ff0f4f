#include "replay/Story.h"

#include "Framework/Entity.h"
#include "Framework/MessageHandler.h"
#include "Framework/Timer.h"
#include "Framework/physics/PhysicsProcessor.h"
#include "game/Marvo.h"
#include "game/TrapLine.h"
#include "replay/Snapshot.h"
#include "replay/Words.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quorva::replay {

using physics::PhysicsProcessor;

namespace {

constexpr unsigned int sides_of_rectangle = 4; // none is a side of two that pay out

/// Whether the rectangle has just paid out.
bool isCatch(const PhysicsProcessor::Square& square) {
    return std::all_of(square.begin(), square.end(),
                       [](const TrapLine* line) { return line->isFakeDone(); });
}

/// In the rectangle that has just paid out.
unsigned int caughtTriangles() {
    const auto& processor = *activeComponent<PhysicsProcessor>(); // which has said so
    unsigned int count = 0;
    for (const PhysicsProcessor::Square& square : processor.squares) {
        if (!isCatch(square)) continue;
        for (const Entity* const entity : processor.entities)
            if (entity->physics->type == physics::shape_triangle &&
                PhysicsProcessor::holds(square, *entity->physics))
                ++count;
        break; // each rectangle is among them four times
    }
    return count;
}

} // namespace

unsigned int GameStory::sides() const {
    return sides_of_rectangle * static_cast<unsigned int>(catches.size());
}

unsigned int GameStory::triangles() const {
    return std::accumulate(catches.begin(), catches.end(), 0U,
                           [](unsigned int sum, const Catch& c) { return sum + c.triangles; });
}

const GameStory::Catch* GameStory::best() const {
    const auto found =
        std::max_element(catches.begin(), catches.end(),
                         [](const Catch& a, const Catch& b) { return a.points < b.points; });
    return found == catches.end() ? nullptr : &*found;
}

std::string inWords(const GameStory& game) {
    std::string text = counted(game.catches.size(), "rectangle") + " with " +
                       counted(game.triangles(), "triangle");
    if (const GameStory::Catch* const best = game.best())
        text += ", the best " + counted(best->points, "point") + " for " +
                counted(best->triangles, "triangle") + " at " + minutes(game.begin + best->time);
    text += "; " + counted(game.shots, "shot") + ", " + std::to_string(game.sides()) +
            " of them a side; " + counted(game.powerUps, "power-up") + "; " +
            (game.end ? counted(game.end->deaths, "death") + "; " : "") + minutes(game.length()) +
            " long";
    return text;
}

Story::Story() {
    subscribeToAll();
}

void Story::look(const Progress& progress, const Pass& pass, std::uint32_t time) {
    if (progress.ended && !games.empty()) games.back().end = progress.ended;
    if (progress.began) begin(time);
    if (!progress.inGame && !progress.ended) return;
    GameStory& game = games.back();
    game.last = time;
    const auto presses = std::count_if(pass.events.begin(), pass.events.end(),
                                       [](const Event& event) { return event.isPress(); });
    game.presses = std::max(game.presses, static_cast<std::size_t>(presses));
    for (; now.datedCatches < game.catches.size(); ++now.datedCatches)
        game.catches[now.datedCatches].time = time - game.begin;
    lookAtClock(progress, time);
}

void Story::begin(std::uint32_t time) {
    games.emplace_back();
    games.back().begin = time;
    games.back().settings = settingsOfGame();
    now = {time, 0, 0, 0, {}};
}

/// A pause and the tick that follows it, or that went before, may be in one pass.
void Story::lookAtClock(const Progress& progress, std::uint32_t time) {
    GameStory& game = games.back();
    const TimerClass& timer = Timer::Instance();
    if (progress.ended) {
        if (now.pauseBegin) endPause(time - *now.pauseBegin);
        return;
    }
    const std::uint32_t ended = timer.correction - std::exchange(now.pauses, timer.correction);
    if (ended != 0) endPause(ended);
    if (!timer.paused)
        now.pauseBegin.reset();
    else if (!now.pauseBegin)
        now.pauseBegin = time;
    if (!progress.ticked || progress.began) return;
    const std::uint32_t length = time - std::exchange(now.lastTick, time);
    ++game.ticks;
    if (length > GameStory::slow_tick) ++game.slowTicks;
    game.longestTick = std::max(game.longestTick, length);
}

/// @param length ms
void Story::endPause(std::uint32_t length) {
    ++games.back().pauses;
    games.back().paused += length;
    now.lastTick += length;
}

void Story::receiveMessage(const SoundSquare*) {
    GameStory& game = games.back();
    const std::uint32_t before = std::exchange(now.score, Marvo::Instance().score);
    const GameStory::Catch* const former = game.best();
    const std::uint32_t points = now.score - before;
    const bool isBest = former == nullptr || points > former->points;
    game.catches.push_back({0, points, caughtTriangles()});
    if (isBest && onBestCatch) onBestCatch();
}

} // namespace quorva::replay
