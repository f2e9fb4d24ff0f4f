#include "tests/pictures/Pictures.h"

#include "Framework/Engine.h"
#include "Framework/Managers/FontManager.h"

#include <FTGL/ftgl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

using namespace quorva;

namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t shown = 2000; ///< letters, of what differs

Lines linesOf(std::istream& in) {
    Lines lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

std::string fileOf(const std::string& state) {
    return std::string(KOV_SOURCE_DIR) + "/tests/pictures/" + state + ".txt";
}

/// The pinned picture in full; empty if there is none.
Lines pinned(const std::string& state) {
    std::ifstream file(fileOf(state));
    Lines lines = linesOf(file);
    if (lines.empty() || lines.front().rfind("like ", 0) != 0) return lines;
    std::istringstream head(lines.front());
    std::string word, like;
    std::ptrdiff_t before = 0, after = 0;
    head >> word >> like >> before >> after;
    const Lines base = pinned(like);
    lines.erase(lines.begin());
    lines.insert(lines.begin(), base.begin(), base.begin() + before);
    lines.insert(lines.end(), base.end() - after, base.end());
    return lines;
}

void pin(const std::string& state, const Lines& lines, const std::string& like) {
    std::ofstream file(fileOf(state));
    const Lines base = like == state ? Lines() : pinned(like);
    const auto [first, baseFirst] =
        std::mismatch(lines.begin(), lines.end(), base.begin(), base.end());
    const auto last = std::mismatch(lines.rbegin(), std::make_reverse_iterator(first),
                                    base.rbegin(), std::make_reverse_iterator(baseFirst))
                          .first.base();
    if (!base.empty())
        file << "like " << like << ' ' << first - lines.begin() << ' ' << lines.end() - last
             << '\n';
    std::for_each(first, last, [&file](const std::string& line) { file << line << '\n'; });
}

/// A font that writes down what it is asked to render.
class NotedFont : public FTGLPolygonFont {
public:
    explicit NotedFont(const graphics::Font& font)
        : FTGLPolygonFont(font.name.c_str()),
          name(" in " + font.name + ' ' + getStringFromFontRenderMode(font.mode) + ' ' +
               std::to_string(font.font->FaceSize())) {}

    FTPoint Render(const char* text, const int, FTPoint, FTPoint, int) override {
        standins::glRecorder().note('"' + std::string(text) + '"' + name);
        return {};
    }

private:
    std::string name;
};

/// While it lives, all words are noted.
class NotedFonts {
public:
    NotedFonts() : kept(fonts()) {
        for (auto& [name, entry] : fonts())
            entry.value.font.reset(new NotedFont(entry.value));
    }
    ~NotedFonts() {
        for (auto& [name, entry] : fonts())
            entry.value.font = kept.at(name).value.font;
    }
    NotedFonts(const NotedFonts&) = delete;
    NotedFonts& operator=(const NotedFonts&) = delete;

private:
    using Fonts = decltype(ResourceManager<graphics::Font, true>::resources);
    static Fonts& fonts() { return FontManager::Instance().resources; }

    Fonts kept;
};

} // namespace

void expectPicture(const std::string& state, const std::string& calls, const std::string& like) {
    std::istringstream in(calls);
    const Lines now = linesOf(in);
    if (std::getenv("KOV_RENEW_PICTURES") != nullptr) pin(state, now, like);
    const Lines expected = pinned(state);
    EXPECT_FALSE(expected.empty()) << "no picture of " << state << " is pinned";
    if (now == expected) return;
    using testing::internal::edit_distance::CreateUnifiedDiff;
    ADD_FAILURE() << state << " looks different (- pinned, + now):\n"
                  << CreateUnifiedDiff(expected, now).substr(0, shown)
                  << "\nIf that is meant: tools/renew_pictures.sh";
}

std::string nextFrame() {
    const NotedFonts noted;
    return callsOf([] { Engine::Instance().update(); });
}
