#pragma once

#include "Framework/Singleton.h"
#include "platform/fmodex/fmodex.h"

/// Owns the sound layer's system object, which lasts until the process ends: it is deliberately
/// neither closed nor released.
class FModSystemClass {
public:
    FModSystemClass(); ///< makes the system and starts its output

    /// Whether `result` is success. Anything else is reported on standard error.
    bool isFModOk(FMOD_RESULT& result) const;

    FMOD_SYSTEM* system = nullptr; ///< null if it could not be made
    FMOD_RESULT result = 0;        ///< of the last call
};

using FModSystem = quorva::ReturningSingleton<FModSystemClass>;
