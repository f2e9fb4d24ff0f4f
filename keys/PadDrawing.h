#pragma once

#include "keys/Drawing.h"

namespace quorva::keys {

/// A usual pad, around the origin. Its buttons stand for the actions that they are meant for, not
/// for their numbers, which differ from pad to pad.
class PadDrawing : public Drawing {
    void drawParts(Part kind) const override;
    void fillAsked() const override;
    Part partOf(const char* action) const;
};

} // namespace quorva::keys
