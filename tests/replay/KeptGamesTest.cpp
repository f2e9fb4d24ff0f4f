// What stays of the kept games, which are the best, and the page of these.

#include "replay/KeptGames.h"
#include "replay/Best.h"
#include "replay/Page.h"
#include "replay/Words.h"
#include "tests/support/Files.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <set>

using namespace quorva::replay;
namespace fs = boost::filesystem;

namespace {

class KeptGames : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directory(folder);
        fs::current_path(folder);
    }
    void TearDown() override {
        fs::current_path("/");
        fs::remove_all(folder);
    }
    static std::set<std::string> names() {
        std::set<std::string> found;
        for (const fs::directory_entry& entry : fs::directory_iterator("."))
            found.insert(entry.path().filename().string());
        return found;
    }

    const fs::path folder = fs::temp_directory_path() / fs::unique_path("kov-kept-%%%%%%%%");
};

std::string at(int second, const std::string& rest) {
    return "2026-11-26 20.15." + std::to_string(second) + rest + ".kovreplay";
}

} // namespace

TEST_F(KeptGames, OfThoseKeptByThemselvesTheLatestAndTheBestStay) {
    const std::set<std::string> players = {at(10, " 5"),
                                           "mine.kovreplay",
                                           at(11, " 7 auto mine"),
                                           at(12, " 5 auto") + ".txt",
                                           "x" + at(13, " 5 auto"),
                                           "2026-11-26 20.15.1x 5 auto.kovreplay"};
    for (const std::string& name : players)
        fill(name, "12345678");
    const std::string best = at(20, " 900 auto"), second = at(21, " 800 auto");
    const std::string broken = at(19, " auto"), poor = at(23, " 1 auto");
    const std::string last = at(24, " 3 auto"), latest = at(25, " 2 auto");
    for (const std::string& name : {best, second, broken, poor, last, latest})
        fill(name, "12345678");
    const auto expectLeft = [&](std::set<std::string> expected) {
        expected.insert(players.begin(), players.end());
        EXPECT_EQ(names(), expected);
    };
    tidy(".", {6, 2, 48});
    expectLeft({best, second, broken, poor, last, latest});
    tidy(".", {5, 2, 48});
    expectLeft({best, second, poor, last, latest});
    tidy(".", {3, 2, 39}); // a byte too few: the oldest that isn't one of the best goes
    expectLeft({best, second, last, latest});
    tidy(".", {1, 1, 48});
    expectLeft({best, latest});
    tidy(".", {1, 1, 8});
    expectLeft({best});
    tidy(".", {1, 1, 7});
    expectLeft({});
    tidy("nowhere");
}

TEST_F(KeptGames, TwentyAndTenAndFiftyMegabytesStay) {
    for (int i = 0; i < 40; ++i) { // in no order; the later, the worse
        const int second = 10 + i * 7 % 40;
        fill(at(second, ' ' + std::to_string(100 - second) + " auto"), "");
    }
    const std::string oldest = at(30, " 70 auto"); // of the latest
    fs::resize_file(oldest, 50U << 20U);
    tidy(".");
    EXPECT_EQ(names().size(), 30U);
    EXPECT_TRUE(fs::exists(at(19, " 81 auto")));
    EXPECT_TRUE(fs::exists(oldest));
    fill(at(49, " 51 auto"), "a byte more");
    tidy(".");
    EXPECT_EQ(names().size(), 29U);
    EXPECT_FALSE(fs::exists(oldest));
}

TEST_F(KeptGames, NamesTellWhenAndHowWell) {
    KeptName name = KeptName::now(true);
    auto read = parseName(name.unfinished());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->date, name.date);
    EXPECT_EQ(read->score, 0U);
    read = parseName(name.finished(45567));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->score, 45567U);
    name.isAutomatic = false;
    EXPECT_FALSE(parseName(name.finished(45567)));
    read = parseName(at(10, " 999999999 auto"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->score, 999999999U);
    for (const char* rest :
         {"  auto", " 1000000000 auto", " 1x auto", "1 auto", " 1 aut", " -1 auto", ""})
        EXPECT_FALSE(parseName(at(10, rest))) << rest;
    EXPECT_FALSE(parseName(""));
    EXPECT_EQ(name.finished(45567), name.date + " 45567.kovreplay");
}

TEST_F(KeptGames, AProofIsMadeOnceForEachFileProgramAndFolder) {
    fs::create_directory("games");
    fill("games/a.kovreplay", "one");
    fill("games/b.kovreplay", "two");
    fill("program", "1");
    unsigned int made = 0;
    bool succeeds = true;
    const auto prove = [&](const fs::path&, const fs::path& path) {
        ++made;
        Report report;
        report.date = 7;
        report.games.push_back(
            {45567, 1, 2, true, "story", "remarks", {{10, 20}, {30, 45567}}, "<svg>"});
        ByteWriter out;
        report.write(out);
        fill(path.string(), out.bytes);
        return succeeds;
    };
    const auto proofs = [&] { return Proofs("games", {"program"}, prove); };
    {
        Proofs first = proofs();
        const auto report = first.of("games/a.kovreplay");
        ASSERT_TRUE(report);
        EXPECT_EQ(report->games[0].curve[1].second, 45567U);
        EXPECT_EQ(report->games[0].picture, "<svg>");
        EXPECT_TRUE(report->games[0].marked);
        EXPECT_TRUE(first.of("games/b.kovreplay"));
        fill("games/copy.kovreplay", "two");
        EXPECT_FALSE(first.of("games/copy.kovreplay")) << "the same game once more";
    }
    EXPECT_EQ(made, 2U);
    EXPECT_TRUE(proofs().of("games/a.kovreplay"));
    EXPECT_EQ(made, 2U) << "it was kept";
    fill("program", "2");
    EXPECT_TRUE(proofs().of("games/a.kovreplay"));
    EXPECT_EQ(made, 3U) << "by another program";
    fill("games/a.kovreplay", "three");
    Proofs last = proofs();
    EXPECT_TRUE(last.of("games/a.kovreplay"));
    EXPECT_EQ(made, 4U) << "of another file";
    last.forgetOthers();
    EXPECT_EQ(std::distance(fs::directory_iterator("games/.proofs"), fs::directory_iterator()), 1);
    succeeds = false;
    EXPECT_FALSE(last.of("games/b.kovreplay"));
    EXPECT_EQ(std::distance(fs::directory_iterator("games/.proofs"), fs::directory_iterator()), 1);

    fs::create_directory("others");
    fill("others/.proofs", "no folder");
    succeeds = true;
    EXPECT_TRUE(Proofs("others", {}, prove).of("games/a.kovreplay")) << "made, and not kept";
    EXPECT_EQ(contentsOf("others/.proofs"), "no folder");
}

TEST_F(KeptGames, TheBestAreInOrderAndNotTooMany) {
    std::vector<RankedGame> games;
    for (const std::uint32_t score : {5U, 9U, 5U, 7U}) {
        games.push_back({"game", static_cast<std::int64_t>(100 - games.size()), {}});
        games.back().game.score = score;
    }
    games = best(games, 3);
    ASSERT_EQ(games.size(), 3U);
    EXPECT_EQ(games[0].game.score, 9U);
    EXPECT_EQ(games[1].game.score, 7U);
    EXPECT_EQ(games[2].date, 98) << "the earlier of two equals";
    EXPECT_EQ(best(games, 5).size(), 3U);
    EXPECT_EQ(minutes(59999) + ' ' + minutes(3661000), "0:59 61:01");
    EXPECT_EQ(dateText(INT64_MAX), "unknown");
    games[1].game.length = 83000;
    games[1].game.begin = 9000;
    games[1].game.marked = true;
    const std::string lines = inWords(games), date = dateText(97);
    EXPECT_EQ(lines.find(" 1.        9  " + date + "   0:00  fair    game, at 0:00\n"), 0U)
        << lines;
    EXPECT_NE(lines.find("\n 2.        7  " + date + "   1:23  marked  game, at 0:09\n"),
              std::string::npos)
        << lines;
}

TEST_F(KeptGames, ThePageEscapesNamesAndTakesTheGameForBrowsersAlong) {
    const std::string name = "<b>&\"'#&prove= 50%.kovreplay";
    const std::string encoded = "%3Cb%3E%26%22%27%23%26prove%3D%2050%25.kovreplay\"";
    fill(name, "a game");
    RankedGame game = {name, 0, {}};
    game.game.score = 20;
    game.game.length = 1000;
    game.game.curve = {{500, 20}};
    game.game.picture = "<svg/>";
    const auto expectParts = [](const std::vector<std::string>& parts) {
        const std::string page = contentsOf("page/index.html");
        for (const std::string& part : parts)
            EXPECT_NE(page.find(part), std::string::npos) << part;
        EXPECT_EQ(page.find("<b>"), std::string::npos);
    };
    writePage("page", {});
    expectParts({"<h1>KOV: best games</h1>", "There are none yet."});
    writePage("page", {game}); // again
    EXPECT_EQ(contentsOf("page/" + name), "a game");
    EXPECT_EQ(contentsOf("page/game-1.svg"), "<svg/>\n");
    EXPECT_EQ(contentsOf("page/index.html").find("<script"), std::string::npos);
    expectParts({"href=\"./" + encoded, ">&lt;b&gt;&amp;&quot;&#39;#&amp;prove= 50%.kovreplay<",
                 "viewBox=\"0 -2 300 84\"", "d=\"M0 80H150V0H300\"", // half a second, then all
                 "<h2>1. 20 points</h2>\n<div class=\"picture\"><img src=\"game-1.svg\""});
    RankedGame short_ = {name, 0, {}}; // over at once
    short_.game.curve = {{0, 0}};
    writePage(".", {game, short_}); // where the file is already
    EXPECT_NE(contentsOf("index.html").find("d=\"M0 80H0V80H300\""), std::string::npos);
    EXPECT_EQ(contentsOf(name), "a game");

    const auto write = [&](const fs::path& to) { writePage(to, {game}, "build"); };
    fs::create_directories("build/Songs");
    EXPECT_THROW(write("page"), std::runtime_error) << "an empty build";
    for (const char* part : {"index.html", "table.js", "kov.wasm", "kov-prove.wasm", "Songs/a.ogg"})
        fill(std::string("build/") + part, part);
    EXPECT_THROW(write("build/page"), std::runtime_error) << "a build would hold itself";
    for (int times = 0; times < 2; ++times) // again, over itself
        write("page");
    EXPECT_EQ(contentsOf("page/play/Songs/a.ogg"), "Songs/a.ogg");
    EXPECT_EQ(contentsOf("page/play/" + name), "a game") << "where the build looks for it";
    expectParts({"src=\"play/table.js\"", "Prove all", "href=\"play/?watch=" + encoded,
                 "href=\"play/?prove=" + encoded, "href=\"play/" + encoded,
                 "data-file=\"&lt;b&gt;&amp;&quot;&#39;#&amp;prove= 50%.kovreplay\""});
}
