#pragma once

#include <cstddef>
#include <cstring>
#include <tuple>
#include <utility>
#include <vector>

// Stands between the whole program, font library included, and GL. Every call goes through and can
// be recorded on a tape, which replays the very same calls without the game.

namespace bench {

class GLTape {
public:
    void record();
    void stop() { recording = false; }
    void play() const;
    std::size_t size() const { return calls.size(); }

    /// Sends the call through, and records it while the tape runs.
    template <class Function, class... Arguments>
    auto pass(Function* function, Arguments... arguments) {
        if (recording) keep(function, arguments...);
        return function(arguments...);
    }
    /// The same for a call that reads `count` floats.
    template <class Function>
    void passFloats(Function* function, const float* floats, std::size_t count) {
        if (recording) {
            Call call{playFloats<Function>, {}};
            std::memcpy(call.bytes, &function, sizeof function);
            std::memcpy(call.bytes + sizeof function, floats, count * sizeof(float));
            calls.push_back(call);
        }
        function(floats);
    }

private:
    struct Call {
        void (*play)(const unsigned char* bytes);
        alignas(8) unsigned char bytes[72]; ///< the function, then its arguments
    };

    template <class Function, class... Arguments>
    void keep(Function* function, Arguments... arguments) {
        using Kept = std::tuple<Function*, Arguments...>;
        static_assert(sizeof(Kept) <= sizeof(Call::bytes));
        Call call{[](const unsigned char* bytes) {
                      const auto send = [](auto* f, auto... values) { f(values...); };
                      std::apply(send, *reinterpret_cast<const Kept*>(bytes));
                  },
                  {}};
        new (call.bytes) Kept(function, arguments...);
        calls.push_back(call);
    }
    template <class Function>
    static void playFloats(const unsigned char* bytes) {
        Function* function;
        std::memcpy(&function, bytes, sizeof function);
        function(reinterpret_cast<const float*>(bytes + sizeof function));
    }

    bool recording = false;
    std::vector<Call> calls;
};

GLTape& glTape();

} // namespace bench
