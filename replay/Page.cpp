#include "replay/Page.h"

#include "replay/Words.h"

#include <boost/filesystem.hpp>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace quorva::replay {

namespace {

namespace fs = boost::filesystem;

const char* const head = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>KOV: best games</title>
<style>
body { max-width: 60em; margin: 2em auto; padding: 0 1em; background: #1b1b1b; color: #c8ced2;
  font: 16px/1.5 sans-serif; }
h1, h2, a { color: #1aedff; font-weight: normal; }
article { display: flex; flex-wrap: wrap; gap: 0 1.5em; border-top: 1px solid #444; }
h2 { width: 100%; margin: .8em 0 .4em; }
.picture { flex: 1 1 22em; } .picture img { width: 100%; border: 1px solid #444; }
.words { flex: 1 1 20em; } .words p { margin: 0 0 .6em; }
.curve { width: 100%; height: 5em; background: #222; }
.curve path { fill: none; stroke: #d6ff0c; stroke-width: 1.5; vector-effect: non-scaling-stroke; }
.helps { font-size: 80%; color: #9aa3a8; } .marked, .differs { color: #ff8a4d; }
.check a, button { display: inline-block; margin-right: .5em; padding: .2em .8em;
  border: 1px solid; border-radius: .25em; background: none; color: inherit; font: inherit;
  text-decoration: none; cursor: pointer; }
.holds { color: #d6ff0c; } [hidden] { display: none !important; }
</style>
)";

const char* const begin = R"(</head>
<body>
<h1>KOV: best games</h1>
<p>Each of these was played again and reached its score. That proves that the inputs in its file
reach it, not whose hands they were. What could have helped is told beside it; what is unlike an
untouched game has a (!) behind it. <code>kov-replay watch</code> shows a file.</p>
)";

// With the game for browsers. Without scripts its buttons stay hidden.
const char* const web_head =
    R"(<meta http-equiv="Content-Security-Policy" content="default-src 'none'; script-src 'self' 'wasm-unsafe-eval'; style-src 'unsafe-inline'; img-src 'self'; connect-src 'self'; worker-src 'self'; base-uri 'none'; form-action 'none'">
<link rel="icon" href="play/icons/kov.svg" type="image/svg+xml">
<script type="module" src="play/table.js"></script>
)";
const char* const web_begin =
    R"(<p id="check" hidden><button type="button">Prove all</button> <span role="status">by playing them again here, in your browser</span></p>
)";
const char* const web_folder = "play";

constexpr int curve_width = 300, curve_height = 80; // in units of its own

void write(const fs::path& path, const std::string& text) {
    std::ofstream file(path.string(), std::ios::binary);
    file << text << std::flush;
    if (!file) throw std::runtime_error("can't write " + path.string());
}

/// The score over time: a step at each catch.
std::string curve(const Report::Game& game) {
    std::ostringstream way;
    const double right = std::max<std::uint32_t>(game.length, 1);
    const double top = std::max<std::uint32_t>(game.score, 1);
    way << "M0 " << curve_height;
    for (const auto& [time, score] : game.curve)
        way << 'H' << static_cast<int>(curve_width * (time / right)) << 'V'
            << static_cast<int>(curve_height * (1.0 - score / top));
    way << 'H' << curve_width;
    std::ostringstream out;
    out << "<svg class=\"curve\" role=\"img\" aria-label=\"score over time\" viewBox=\"0 -2 "
        << curve_width << ' ' << curve_height + 4 << "\" preserveAspectRatio=\"none\"><path d=\""
        << way.str() << "\"/></svg>\n";
    return out.str();
}

/// As part of an address.
std::string encoded(const std::string& fileName) {
    std::string address;
    for (const char c : fileName) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isPlain =
            byte < 0x80 && (std::isalnum(byte) != 0 || c == '-' || c == '.' || c == '_');
        char code[4];
        std::snprintf(code, sizeof code, "%%%02X", byte);
        address += isPlain ? std::string(1, c) : code;
    }
    return address;
}

/// For the script: whose game it is, and where its buttons are.
std::string buttons(const std::string& name) {
    std::string text = "<p class=\"check\" hidden>";
    for (const auto& [action, label] : {std::pair("watch", "Watch"), std::pair("prove", "Prove")})
        text += std::string("<a href=\"") + web_folder + "/?" + action + '=' + encoded(name) +
                "\">" + label + "</a> ";
    return text + "<span class=\"mark\" role=\"status\"></span></p>\n";
}

std::string article(std::size_t rank, const RankedGame& each, const std::string& picture,
                    bool withWeb) {
    const Report::Game& game = each.game;
    const std::string name = each.file.filename().string();
    const std::string address = withWeb ? web_folder + ('/' + encoded(name)) : addressOf(name);
    std::ostringstream out;
    out << "<article";
    if (withWeb) out << " data-file=\"" << escaped(name) << '"';
    out << ">\n<h2>" << rank << ". " << game.score << " points</h2>\n";
    if (!picture.empty())
        out << "<div class=\"picture\"><img src=\"" << picture
            << "\" alt=\"the field at its best catch\"></div>\n";
    out << "<div class=\"words\">\n"
        << curve(game) << "<p>" << dateText(each.date) << ", " << minutes(game.length)
        << (game.marked ? ", <span class=\"marked\">marked</span>" : ", fair") << "</p>\n<p>"
        << escaped(game.story) << ".</p>\n<p class=\"helps\">" << escaped(game.remarks)
        << ".</p>\n<p><a href=\"" << address << "\" download>" << escaped(name) << "</a>, at "
        << minutes(game.begin) << "</p>\n"
        << (withWeb ? buttons(name) : "") << "</div>\n</article>\n";
    return out.str();
}

/// The build, beside the page.
void copyBuild(const fs::path& build, const fs::path& folder) {
    for (const char* name : {"index.html", "table.js", "kov.wasm", "kov-prove.wasm"})
        if (!fs::exists(build / name))
            throw std::runtime_error("no build of the game for browsers: " + build.string());
    const fs::path copy = folder / web_folder, source = fs::canonical(build);
    if (fs::exists(copy) && fs::equivalent(source, copy)) return;
    fs::path each = fs::canonical(folder);
    while (each != source && each != each.root_path())
        each = each.parent_path();
    if (each == source) throw std::runtime_error("the page can't lie within the build");
    fs::copy(source, copy, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

void copyReplay(const fs::path& file, const fs::path& folder) {
    const fs::path copy = folder / file.filename();
    if (fs::exists(copy) && fs::equivalent(file, copy)) return;
    fs::copy_file(file, copy, fs::copy_options::overwrite_existing);
}

} // namespace

std::string escaped(const std::string& text) {
    std::string safe;
    for (const char c : text) {
        if (c == '&')
            safe += "&amp;";
        else if (c == '<')
            safe += "&lt;";
        else if (c == '>')
            safe += "&gt;";
        else if (c == '"')
            safe += "&quot;";
        else if (c == '\'')
            safe += "&#39;";
        else
            safe += c;
    }
    return safe;
}

std::string addressOf(const std::string& fileName) {
    return "./" + encoded(fileName); // else a colon in it would end the name of a protocol
}

void writePage(const fs::path& folder, const std::vector<RankedGame>& games,
               const fs::path& build) {
    const bool withWeb = !build.empty();
    if (!fs::is_directory(folder)) fs::create_directories(folder);
    if (withWeb) copyBuild(build, folder);
    std::string page = head;
    page += withWeb ? std::string(web_head) + begin + web_begin : begin;
    for (std::size_t i = 0; i < games.size(); ++i) {
        const std::string picture =
            games[i].game.picture.empty() ? "" : "game-" + std::to_string(i + 1) + ".svg";
        if (!picture.empty()) write(folder / picture, games[i].game.picture + '\n');
        copyReplay(games[i].file, withWeb ? folder / web_folder : folder);
        page += article(i + 1, games[i], picture, withWeb);
    }
    if (games.empty()) page += "<p>There are none yet.</p>\n";
    write(folder / "index.html", page + "</body>\n</html>\n");
}

} // namespace quorva::replay
