// AmbientProperties: what a control may ask about where it stands.
#pragma once

#include "base/String.h"
#include "host/Font.h"
#include "host/OleColor.h"

#include <memory>

namespace host {

class Control;

class AmbientProperties {
public:
    explicit AmbientProperties(const Control& control) : control_(control) {}

    /// True while the program runs, false in a designer.
    [[nodiscard]] bool UserMode() const;
    /// The control's name, by which a new control calls itself.
    [[nodiscard]] const base::String& DisplayName() const;
    /// A copy of the form's font that the caller may change.
    [[nodiscard]] std::shared_ptr<host::Font> Font() const;
    /// The container's colours.
    [[nodiscard]] OleColor BackColor() const;
    [[nodiscard]] OleColor ForeColor() const;
    [[nodiscard]] bool RightToLeft() const;
    /// True for the button that Enter presses.
    [[nodiscard]] bool DisplayAsDefault() const;

private:
    const Control& control_;
};

}  // namespace host
