#include "replay/Best.h"

#include "Framework/Utility.h"
#include "replay/Words.h"

#include <boost/filesystem.hpp>
#include <boost/uuid/name_generator_sha1.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <sstream>
#include <utility>

namespace quorva::replay {

namespace {

namespace fs = boost::filesystem;
namespace uuids = boost::uuids;

const char* const proof_folder = ".proofs";

std::string contentsOf(const fs::path& path) {
    std::ifstream file(path.string(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// From here on the key stands for the contents of that file, too.
void extend(std::string& key, const fs::path& file) {
    const uuids::name_generator_sha1 begin(uuids::ns::oid());
    key = uuids::to_string(uuids::name_generator_sha1(begin(key))(contentsOf(file)));
}

std::optional<Report> readReport(const fs::path& path) {
    try {
        ByteReader in(contentsOf(path));
        return Report::read(in);
    } catch (const BadFile&) {
        return {}; // there is none yet, or it is damaged: made anew
    }
}

} // namespace

Proofs::Proofs(const fs::path& folder, const std::vector<fs::path>& basis, Prover prover_)
    : kept(folder / proof_folder), prover(std::move(prover_)) {
    for (const fs::path& file : basis)
        extend(basisKey, file);
    boost::system::error_code error;
    if (fs::create_directory(kept, error) || fs::is_directory(kept, error)) return;
    kept.clear(); // they can't be kept
}

std::optional<Report> Proofs::of(const fs::path& file) {
    std::string key = basisKey;
    extend(key, file);
    if (std::find(asked.begin(), asked.end(), key) != asked.end()) return {};
    asked.push_back(key);
    const bool isKept = !kept.empty();
    const fs::path path = isKept ? kept / key : fs::temp_directory_path() / key;
    if (isKept)
        if (auto report = readReport(path)) return report;
    const fs::path made = fs::unique_path(path.string() + ".%%%%%%%%");
    boost::system::error_code ignored;
    std::optional<Report> report;
    if (prover(file, made)) report = readReport(made);
    if (report && isKept) fs::rename(made, path, ignored);
    fs::remove(made, ignored);
    return report;
}

void Proofs::forgetOthers() {
    boost::system::error_code ignored;
    std::vector<fs::path> others;
    for (const fs::directory_entry& entry : fs::directory_iterator(kept, ignored))
        if (std::find(asked.begin(), asked.end(), entry.path().filename().string()) == asked.end())
            others.push_back(entry.path());
    for (const fs::path& other : others)
        fs::remove(other, ignored);
}

std::vector<RankedGame> best(std::vector<RankedGame> games, std::size_t count) {
    std::stable_sort(games.begin(), games.end(), [](const RankedGame& a, const RankedGame& b) {
        return a.game.score != b.game.score ? a.game.score > b.game.score : a.date < b.date;
    });
    games.resize(std::min(games.size(), count));
    return games;
}

std::string inWords(const std::vector<RankedGame>& games) {
    std::ostringstream out;
    std::size_t rank = 0;
    for (const RankedGame& each : games)
        out << std::setw(2) << ++rank << ". " << std::setw(8) << each.game.score << "  "
            << dateText(each.date) << "  " << std::setw(5) << minutes(each.game.length) << "  "
            << (each.game.marked ? "marked" : "fair  ") << "  "
            << utility::printable(each.file.filename().string()) << ", at "
            << minutes(each.game.begin) << '\n';
    return out.str();
}

} // namespace quorva::replay
