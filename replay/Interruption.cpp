#include "replay/Interruption.h"

#include "Framework/Signals.h"

#include <atomic>

namespace quorva::replay {

namespace {

static_assert(std::atomic<bool>::is_always_lock_free); // else no handler may touch it
std::atomic<bool> interrupted = false;

void note(int) {
    interrupted = true;
}

constexpr std::initializer_list<int> signals = {SIGINT, SIGTERM, SIGHUP};

sigset_t signalSet() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : signals)
        if (!isIgnored(signal)) sigaddset(&set, signal);
    return set;
}

} // namespace

sigset_t holdInterruptions(std::initializer_list<int> others) {
    sigset_t set = signalSet();
    for (const int signal : others)
        sigaddset(&set, signal);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    return set;
}

void catchInterruptions() {
    catchSignals(signals, note);
    const sigset_t set = signalSet();
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

bool isInterrupted() {
    return interrupted;
}

bool takeInterruption() {
    return interrupted.exchange(false);
}

} // namespace quorva::replay
