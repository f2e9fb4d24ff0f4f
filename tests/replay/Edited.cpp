#include "tests/replay/Edited.h"

#include "replay/Script.h"
#include "tests/support/Files.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <cstdio>

namespace quorva::replay {

std::string edited(const std::string& path, const Edit& edit,
                   const std::function<void(Setup&)>& editSetup, bool once) {
    Script script(path);
    RecordWriter records;
    ByteWriter bytes;
    if (editSetup) editSetup(script.setup);
    script.setup.write(bytes);
    {
        std::remove("edited"); // of the edit before
        BlockWriter blocks("edited");
        bool done = !edit;
        while (auto record = script.take()) {
            if (!done) done = edit(*record);
            records.write(*record, bytes);
            if (bytes.bytes.size() < 4000) continue;
            blocks.write(bytes.bytes);
            bytes.bytes.clear();
        }
        EXPECT_TRUE(done || !once);
        blocks.write(bytes.bytes);
    }
    return contentsOf("edited");
}

Edit toFirstShot(const Event& other) {
    return [other](Record& record) {
        auto* const pass = std::get_if<Pass>(&record);
        if (pass == nullptr) return false;
        for (Event& event : pass->events)
            if (event.which == SDLK_w) return event = other, true;
        return false;
    };
}

} // namespace quorva::replay
