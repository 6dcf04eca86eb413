// Clipboard: the text that cut and copy left on the stand-in PC.
#pragma once

#include "platform/sim/SimPc.h"

#include <string>
#include <utility>

namespace platform {

class Clipboard : public Area {
public:
    using Area::Area;
    /// Empty when there is no text.
    [[nodiscard]] const std::u16string& Text() const { return text_; }
    void Text(std::u16string text) { text_ = std::move(text); }

private:
    std::u16string text_;
};

}  // namespace platform
