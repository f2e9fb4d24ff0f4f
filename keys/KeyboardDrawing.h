#pragma once

#include "Framework/Primitives/Box.h"
#include "keys/Drawing.h"

namespace quorva::keys {

/// A usual keyboard, around the origin.
class KeyboardDrawing : public Drawing {
public:
    /// A key, and where it is.
    struct Key {
        int symbol; ///< SDL's; 0 for a key that can't be bound
        primitives::Box box;
    };
    static const std::vector<Key>& keys();

    Part partOf(const Key& key) const;

private:
    void drawParts(Part kind) const override;
    void fillAsked() const override;
};

} // namespace quorva::keys
