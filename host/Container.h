// Container: what controls stand on: the form, or a user control that holds others.
#pragma once

#include "host/Font.h"
#include "host/OleColor.h"
#include "host/Units.h"

#include <memory>
#include <vector>

namespace host {

class Control;

class Container {
public:
    virtual ~Container() = default;

    /// The window that is the parent of the controls' windows; NULL when there is none (any more).
    [[nodiscard]] virtual HWND ContainerHandle() const = 0;
    /// How the controls' Left, Top, Width and Height count: the form's own mode on the form, twips everywhere else.
    [[nodiscard]] virtual ScaleMode ContainerScaleMode() const { return ScaleMode::Twips; }
    /// Where the corner of the container stands in its window's client area: above and to the left of it where it is scrolled.
    [[nodiscard]] virtual POINT ContainerOrigin() const { return {}; }
    [[nodiscard]] virtual OleColor ContainerBackColor() const = 0;
    [[nodiscard]] virtual OleColor ContainerForeColor() const = 0;

    /// The controls that stand directly on this container, in the order of the form file.
    [[nodiscard]] const std::vector<Control*>& ContainedControls() const { return contained_; }

private:
    friend class Form;
    std::vector<Control*> contained_;
};

}  // namespace host
