// Extender: the properties that the container keeps for each of its controls.
#pragma once

#include "base/String.h"
#include "host/FormFile.h"

#include <cstdint>

namespace host {

class Container;
class Control;
class Form;
class PropertyBag;

/// Position and size count in the container's units (twips, or pixels on a form with that scale mode) and move the control's
/// window at once.
class Extender {
public:
    Extender(Control& control, Form& form, Container& container, base::String name);

    [[nodiscard]] const base::String& Name() const { return name_; }
    [[nodiscard]] Form* Parent() const { return &form_; }
    [[nodiscard]] host::Container& Container() const { return *container_; }
    /// Moves the control, with all that stands in it, to another container of the form. Nothing happens when that is the control itself or
    /// stands in it.
    void Container(host::Container& container);

    [[nodiscard]] float Left() const { return left_; }
    void Left(float left);
    [[nodiscard]] float Top() const { return top_; }
    void Top(float top);
    [[nodiscard]] float Width() const { return width_; }
    void Width(float width);
    [[nodiscard]] float Height() const { return height_; }
    void Height(float height);
    /// All four with one move of the window.
    void Move(float left, float top, float width, float height);
    /// The rectangle in the container's client pixels; each of the four is converted by itself.
    [[nodiscard]] RECT PixelRect() const;

    [[nodiscard]] bool Visible() const { return visible_; }
    /// Shows or hides the control's window; a user control is told by Show or Hide.
    void Visible(bool visible);
    [[nodiscard]] int TabIndex() const { return tabIndex_; }
    void TabIndex(int tabIndex) { tabIndex_ = tabIndex; }
    [[nodiscard]] bool TabStop() const { return tabStop_; }
    void TabStop(bool tabStop) { tabStop_ = tabStop; }
    /// Kept for the control, which shows it in its own way.
    [[nodiscard]] const base::String& ToolTipText() const { return toolTipText_; }
    void ToolTipText(base::StringView text) { toolTipText_ = text; }
    /// The button that Enter presses. At most one control of a form has it: setting it takes it from the others.
    [[nodiscard]] bool Default() const { return default_; }
    void Default(bool isDefault);
    /// The button that Esc presses, at most one a form.
    [[nodiscard]] bool Cancel() const { return cancel_; }
    void Cancel(bool cancel);
    [[nodiscard]] const base::String& Tag() const { return tag_; }
    void Tag(base::StringView tag) { tag_ = tag; }
    /// Place in a control array, -1 outside of one.
    [[nodiscard]] std::int16_t Index() const { return index_; }

    /// 0 puts the control's window above its siblings, 1 below them.
    void ZOrder(int position = 0);

    /// Takes its own keys out of the bag without moving anything yet.
    void ReadProperties(const PropertyBag& bag);
    /// Writes them in their order. A control without a place on the form (a timer) has no Left, Top, Width and Height.
    void WriteProperties(PropertyBag& bag, bool hasPlace) const;
    /// Whether `key` is one that the extender stores: such a key in a control's own list is the extender's.
    [[nodiscard]] static bool OwnsKey(base::StringView key);

private:
    Control& control_;
    Form& form_;
    host::Container* container_;
    base::String name_;
    float left_ = 0, top_ = 0, width_ = 0, height_ = 0;
    bool visible_ = true;
    int tabIndex_ = 0;
    bool tabStop_ = true;
    base::String toolTipText_;
    bool default_ = false;
    bool cancel_ = false;
    base::String tag_;
    std::int16_t index_ = -1;
};

}  // namespace host
