#include "replay/Report.h"

namespace quorva::replay {

namespace {

constexpr std::size_t longest_text = 4096, largest_picture = 4U << 20U; // bytes

std::uint32_t number32(ByteReader& in) {
    return static_cast<std::uint32_t>(in.number(UINT32_MAX));
}

} // namespace

void Report::write(ByteWriter& out) const {
    out.signedNumber(date);
    out.text(verdict);
    out.number(games.size());
    for (const Game& game : games) {
        out.number(game.score);
        out.number(game.begin);
        out.number(game.length);
        out.flag(game.marked);
        out.text(game.story);
        out.text(game.remarks);
        out.number(game.curve.size());
        for (const auto& [time, score] : game.curve) {
            out.number(time);
            out.number(score);
        }
        out.text(game.picture);
    }
}

Report Report::read(ByteReader& in) {
    Report report;
    report.date = in.signedNumber();
    report.verdict = in.text(longest_text);
    report.games.resize(in.count());
    for (Game& game : report.games) {
        game.score = number32(in);
        game.begin = number32(in);
        game.length = number32(in);
        game.marked = in.flag();
        game.story = in.text(longest_text);
        game.remarks = in.text(longest_text);
        game.curve.resize(in.count());
        for (auto& [time, score] : game.curve) {
            time = number32(in);
            score = number32(in);
        }
        game.picture = in.text(largest_picture);
    }
    return report;
}

} // namespace quorva::replay
