// Anything as a replay: its records as they are in a file, behind a setup that is left as it is or
// not. They are packed as a program that knows the format would, then read, and written again.

#include "fuzz/Playground.h"
#include "replay/Script.h"
#include "replay/Summary.h"

#include <cstdio>

using namespace quorva::replay;

namespace {

constexpr const char* file = "any.kovreplay";
constexpr std::size_t small_block = 4096; // bytes: may grow by any factor

/// As a file, or as what a file's blocks hold.
void make(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = fuzz::textOf(data + 1, size - 1);
    if (data[0] % 4 == 0) return fuzz::write(file, data + 1, size - 1);
    std::remove(file);
    BlockWriter blocks(file);
    ByteWriter head;
    if (data[0] % 4 != 1) Setup().write(head);
    fuzz::require(blocks.write(head.bytes + bytes.substr(0, BlockWriter::largest_block / 2)),
                  "the playground can be written to");
}

/// @param waits set if there are passes to be repeated, which a smaller file may not have as many
/// of
/// @return the records' bytes, up to the first that is damaged
std::string contents(bool& waits) {
    ByteWriter out;
    RecordWriter writer;
    try {
        Script script(file);
        script.setup.write(out);
        const std::size_t largest = 100 * script.size() + 8192;
        while (const auto record = script.take()) {
            const auto* const pass = std::get_if<Pass>(&*record);
            waits = waits || (pass != nullptr && pass->idle != 0);
            writer.write(*record, out);
            fuzz::require(out.bytes.size() <= 4 * largest, "memory is in proportion to the file");
        }
    } catch (const BadFile&) {
        // What came before it counts.
    }
    return out.bytes;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool entered = (fuzz::enterPlayground(), true);
    static_cast<void>(entered);
    if (size == 0) return 0;
    make(data, size);
    bool waits = false;
    const std::string first = contents(waits);
    try {
        fuzz::require(!Summary(file).text().empty(), "a summary, or a reason why not");
    } catch (const BadFile&) {
        // Said in a line.
    }
    if (first.empty() || first.size() > small_block) return 0;
    std::remove(file);
    BlockWriter(file).write(first);
    const std::string second = contents(waits);
    fuzz::require(waits ? first.compare(0, second.size(), second) == 0 : second == first,
                  "what is written reads back");
    return 0;
}
