// LibraryControl: what the four controls of the library have in common.
#pragma once

#include "controls/FontRule.h"
#include "controls/ToolTip.h"
#include "host/UserControl.h"

#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>

namespace controls {

/// Whose colours a control shows, where it has a choice.
enum BackStyleValue : std::int32_t { OwnColors, ContainerColors };

/// A user control with a tip, with the properties that its container keeps for it as members of its own, and with a font of its own.
class LibraryControl : public host::UserControl, public ToolTip {
public:
    [[nodiscard]] bool IsRunTime() const { return Ambient().UserMode(); }
    /// Description: the tip's text.
    [[nodiscard]] host::AccessibleFacts Accessibility() override;

    // Kept by the container, which stores them; see host::Extender. Position and size count in the container's units.

    [[nodiscard]] const base::String& Name() const { return GetExtender().Name(); }
    [[nodiscard]] const base::String& Tag() const { return GetExtender().Tag(); }
    void Tag(base::StringView tag) { GetExtender().Tag(tag); }
    [[nodiscard]] host::Form& Parent() const { return ParentForm(); }
    [[nodiscard]] host::Container& Container() const { return GetExtender().Container(); }
    /// Moves the control to another container of its form; the position then counts there.
    void Container(host::Container& container) { GetExtender().Container(container); }
    [[nodiscard]] float Left() const { return GetExtender().Left(); }
    void Left(float left) { GetExtender().Left(left); }
    [[nodiscard]] float Top() const { return GetExtender().Top(); }
    void Top(float top) { GetExtender().Top(top); }
    [[nodiscard]] float Width() const { return GetExtender().Width(); }
    void Width(float width) { GetExtender().Width(width); }
    [[nodiscard]] float Height() const { return GetExtender().Height(); }
    void Height(float height) { GetExtender().Height(height); }
    [[nodiscard]] bool Visible() const { return GetExtender().Visible(); }
    void Visible(bool visible) { GetExtender().Visible(visible); }
    /// 0 puts the control above its siblings, 1 below them.
    void ZOrder(int position = 0) { GetExtender().ZOrder(position); }
    /// See `MoveInZOrder`.
    void ZedOrder(HWND insertAfter);

    /// See `controls::GetGoldenSection`.
    [[nodiscard]] double GetGoldenSection(std::int32_t In_SegmentLen, bool In_GetMaxSegment) const;
    /// True makes the width the height (cut to an integer) times the golden ratio. Reads false.
    [[nodiscard]] bool GoldenSection() const { return false; }
    void GoldenSection(bool apply);

    /// The control's own font: what is changed in it changes the control.
    [[nodiscard]] const std::shared_ptr<host::Font>& Font() const { return GetSurface().Font(); }
    /// Takes a copy, so that several controls may be given one font. No font at all is ignored.
    void Font(const std::shared_ptr<host::Font>& font);
    /// Keeps the font a TrueType text font, see `ApplyForceTrueType`.
    [[nodiscard]] bool ForceTrueType() const { return forceTrueType_; }
    void ForceTrueType(bool force);

protected:
    explicit LibraryControl(ToolTipNames names = {}, ForceTrueTypeChoice trueTypeChoice = ForceTrueTypeChoice::MessageFontFirst)
        : ToolTip(static_cast<host::UserControl&>(*this), names), trueTypeChoice_(trueTypeChoice)
    {
    }

    void UserControl_Show() override;

    /// What a changed property asks of its control.
    enum class After { Nothing, Redraw, Relayout, NewWindow };
    virtual void Follow(After after) = 0;
    /// What a setter does: keeps the value, tells the container, and then what follows from it.
    template <class T>
    void Keep(T& field, std::type_identity_t<T> value, const WCHAR* name, After after = After::Nothing)
    {
        field = std::move(value);
        PropertyChanged(name);
        if (after != After::Nothing)
            Follow(after);
    }

    /// Makes a copy of the font the control's own, without telling anybody.
    void TakeFont(const host::Font& font);
    /// The control's font is another one or has changed: show it.
    virtual void FontChanged() = 0;
    /// Applies the rule to the present font when it is on.
    void KeepTrueType();

    bool forceTrueType_ = false;

private:
    const ForceTrueTypeChoice trueTypeChoice_;
};

}  // namespace controls
