#pragma once

#include "replay/Report.h"

#include <boost/filesystem/path.hpp>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorva::replay {

struct RankedGame {
    boost::filesystem::path file;
    std::int64_t date; ///< of the session, seconds since 1970, UTC
    Report::Game game;
};

/// Proofs of replay files, kept in a folder beside them by the contents of the file, of the program
/// that has proved them and of what it has compared them with.
class Proofs {
public:
    /// Plays a file again, and leaves the report in another. @return whether there is one
    using Prover = std::function<bool(const boost::filesystem::path& file,
                                      const boost::filesystem::path& report)>;

    /// @param folder of the replay files
    /// @param basis  the files on which a proof depends, beside the replay itself
    Proofs(const boost::filesystem::path& folder, const std::vector<boost::filesystem::path>& basis,
           Prover prover_);

    /// @return empty if the file can't be played, or was asked for already under another name
    std::optional<Report> of(const boost::filesystem::path& file);

    void forgetOthers(); ///< those that weren't asked for

private:
    boost::filesystem::path kept; ///< the folder with the proofs
    std::string basisKey;
    Prover prover;
    std::vector<std::string> asked; ///< names of proofs
};

/// The best of them all, at most so many; the earlier of equals first.
std::vector<RankedGame> best(std::vector<RankedGame> games, std::size_t count);

/// Lines for a reader.
std::string inWords(const std::vector<RankedGame>& games);

} // namespace quorva::replay
