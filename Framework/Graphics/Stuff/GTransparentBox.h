#pragma once

#include "Framework/Graphics/Stuff/GBox.h"

namespace quorva::graphics {

/// A filled rectangle drawn without depth test, which is on afterwards. How much shows through is
/// its colour's alpha.
class GTransparentBox : public GBox {
public:
    void render() override;
};

} // namespace quorva::graphics
