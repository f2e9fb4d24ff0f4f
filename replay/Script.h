#pragma once

#include "replay/Blocks.h"
#include "replay/Records.h"

#include <optional>
#include <string>
#include <utility>

namespace quorva::replay {

/// A replay file, record by record.
class Script {
public:
    /// Throws BadFile, as all that reads on does.
    explicit Script(const std::string& path);

    /// Whether the last record that is there has been taken.
    bool atEnd();

    /// The next record, which stays the next; null at the end.
    const Record* ahead() { return atEnd() ? nullptr : &*next; }
    /// The same, taken, if it is one of these; else it stays the next.
    template <class Kind>
    std::optional<Kind> take();
    /// Whatever it is; empty at the end.
    std::optional<Record> take();

    bool isCutOff() const { return !ended; }             ///< asked at the end
    std::size_t size() const { return file.size(); }     ///< of the file, bytes
    std::size_t offset() const { return file.offset(); } ///< bytes that have been read

    Setup setup;

private:
    void fetch();
    void require(const Pass& pass);

    BlockReader file;
    RecordReader reader;
    ByteReader block;
    std::optional<Record> next;
    bool ended = false; ///< by its end record
    std::uint64_t idle = 0;
    std::optional<std::uint32_t> start; ///< ms, the clock at the first pass
};

template <class Kind>
std::optional<Kind> Script::take() {
    if (atEnd()) return {};
    auto* const found = std::get_if<Kind>(&*next);
    if (found == nullptr) return {};
    std::optional<Kind> taken = std::move(*found);
    next.reset();
    return taken;
}

} // namespace quorva::replay
