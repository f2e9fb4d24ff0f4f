#include "Framework/Signals.h"

#include <csignal>

namespace quorva {

bool isIgnored(int signal) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

void catchSignals(std::initializer_list<int> signals, void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : signals)
        if (!isIgnored(signal)) sigaction(signal, &action, nullptr);
}

} // namespace quorva
