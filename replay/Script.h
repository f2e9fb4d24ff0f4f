#pragma once

#include "replay/Blocks.h"
#include "replay/Records.h"

#include <optional>
#include <string>

namespace quorva::replay {

/// A replay file, record by record.
class Script {
public:
    /// Throws BadFile, as `next` does.
    explicit Script(const std::string& path);

    /// @return null behind the last record that is there
    const Record* peek();
    /// The same, and goes on.
    std::optional<Record> next();

    bool isCutOff() const { return !ended; }         ///< asked behind the last record
    std::size_t size() const { return file.size(); } ///< of the file, bytes

    Setup setup;

private:
    void fetch();

    BlockReader file;
    RecordReader reader;
    ByteReader block;
    std::optional<Record> ahead;
    bool ended = false; ///< by its end record
    std::uint64_t idle = 0;
};

} // namespace quorva::replay
