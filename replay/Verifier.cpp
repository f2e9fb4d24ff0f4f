#include "replay/Verifier.h"

#include "replay/Interruption.h"
#include "replay/Words.h"

#include <algorithm>
#include <utility>

namespace quorva::replay {

Verifier::Verifier(Script& script_, const Shipped& shipped_, bool withPictures)
    : Playback(script_), shipped(shipped_) {
    if (!withPictures) return;
    camera.emplace();
    story.onBestCatch = [this] { pictureIsDue = true; };
}

void Verifier::prepareGame() {
    changes = changesFrom(shipped, script.setup);
    Playback::prepareGame();
}

void Verifier::show() {
    if (!difference().empty()) stop();
    look();
    passIdly();
}

void Verifier::look() {
    if (!start) start = now();
    story.look(progress(), pass(), now() - *start);
    takePicture();
}

/// Of the frame that is there, if it shows the best catch so far.
void Verifier::takePicture() {
    if (!camera) return;
    if (!std::exchange(pictureIsDue, false)) return camera->skip();
    const SettingValues& settings = story.games.back().settings;
    pictures.resize(story.games.size());
    pictures.back() = camera->take(valueOf(settings, 'w'), valueOf(settings, 'l'));
}

void Verifier::passIdly() {
    if (onProgress)
        onProgress(static_cast<double>(script.offset()) / static_cast<double>(script.size()));
}

void Verifier::finish() {
    Playback::finish();
    pictureIsDue = false;
    look();
}

std::string Verifier::verdict() {
    if (!difference().empty()) return difference();
    if (isInterrupted()) return "interrupted";
    return script.isCutOff() ? "holds, but is cut off here" : "holds";
}

bool Verifier::anyGameMarked() const {
    return std::any_of(story.games.begin(), story.games.end(),
                       [this](const GameStory& game) { return anyMarked(remarks(game)); });
}

Report Verifier::report() {
    Report report = {script.setup.date, difference(), {}};
    pictures.resize(story.games.size());
    for (std::size_t i = 0; i < story.games.size(); ++i) {
        const GameStory& game = story.games[i];
        if (!game.end) continue;
        const std::vector<Remark> found = remarks(game);
        Report::Game kept = {
            game.end->score, game.begin, game.length(), anyMarked(found), inWords(game),
            inWords(found),  {},         pictures[i]};
        std::uint32_t score = 0;
        for (const GameStory::Catch& each : game.catches)
            kept.curve.emplace_back(each.time, score += each.points);
        report.games.push_back(std::move(kept));
    }
    return report;
}

} // namespace quorva::replay
