// CheckBox: a control that shows the system's three-state check box.
#pragma once

#include "base/Handles.h"
#include "controls/CheckBox/CheckBoxValues.h"
#include "controls/HostedControl.h"
#include "controls/WindowDc.h"
#include "host/Event.h"

#include <cstdint>

namespace controls {

template <class Control>
class PropertyTable;

/// The system draws the box; it never toggles by itself. A click or Space makes it checked or unchecked; only code makes it grayed.
class CheckBox final : public HostedControl {
public:
    CheckBox() : HostedControl(BorderNone, COLOR_BTNTEXT, COLOR_BTNFACE) {}
    ~CheckBox() override { ReleaseWindow(); }

    [[nodiscard]] base::StringView Kind() const override { return TEXT("CheckBox"); }
    [[nodiscard]] host::AccessibleFacts Accessibility() override;

    /// 0 unchecked, 1 checked, 2 grayed. Set: -1 counts as 1, anything else as 0. A change raises `Click`.
    [[nodiscard]] std::uint8_t Value();
    void Value(std::int32_t value);
    [[nodiscard]] std::uint8_t Default() { return Value(); }
    void Default(std::int32_t value) { Value(value); }
    [[nodiscard]] base::String Caption();
    void Caption(const base::String& caption);

    /// 0 left, 1 right, 2 centre.
    [[nodiscard]] std::int32_t Alignment() const { return alignment_; }
    void Alignment(std::int32_t alignment);
    /// 0 check box, 1 looks like a push button.
    [[nodiscard]] std::int32_t Style() const { return style_; }
    void Style(std::int32_t style);
    /// 0 own colours, 1 takes both from the container whenever the window is made.
    [[nodiscard]] std::int32_t BackStyle() const { return backStyle_; }
    void BackStyle(std::int32_t style) { Keep(backStyle_, style, TEXT("BackStyle"), After::NewWindow); }
    /// The box stands to the right of the caption.
    [[nodiscard]] bool AlignRight() const { return alignRight_; }
    void AlignRight(bool right) { Keep(alignRight_, right, TEXT("AlignRight"), After::NewWindow); }
    [[nodiscard]] bool MultiLine() const { return multiLine_; }
    void MultiLine(bool multiLine);
    /// Shows the container's background, as it was when it was first needed.
    [[nodiscard]] bool Transparent() const { return transparent_; }
    void Transparent(bool transparent) { Keep(transparent_, transparent, TEXT("Transparent"), After::Redraw); }
    using HostedControl::BackColor;
    using HostedControl::ForeColor;
    void ForeColor(OleColor color);
    void BackColor(OleColor color);
    /// The control is as wide as its caption needs. Excludes `FontAutoSize`.
    [[nodiscard]] bool AutoSize() const { return autoSize_; }
    void AutoSize(bool autoSize);
    /// The characters are as narrow as the control needs. Excludes `AutoSize`.
    [[nodiscard]] bool FontAutoSize() const { return fontAutoSize_; }
    void FontAutoSize(bool fontAutoSize);

    host::Event<1> Click;
    host::Event<2, std::int16_t&, std::int16_t&> KeyDown;
    host::Event<3, std::int16_t&, std::int16_t&> KeyUp;
    host::Event<4, std::int16_t&> KeyPress;
    host::Event<5> ContextMenu;

private:
    static const PropertyTable<CheckBox>& Properties();
    /// The button style for an alignment; what is no alignment counts as left.
    [[nodiscard]] static DWORD AlignmentBits(std::int32_t alignment);

    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(const host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Resize() override;
    void UserControl_GotFocus() override { hosted_.ControlGotFocus(FocusScope::OwnContainer); }

    HostedWindow::Shape Shape() override;
    void WindowMade() override;
    void ReleaseWindow() override;
    void OnHostedMessage(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) override;
    void OnKey(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled) override;
    void ActOnKey(UINT message, std::int16_t keyCode) override;
    void RaiseKey(host::KeyEvent event, std::int16_t& code, std::int16_t& shift) override { RaiseKeyOf(*this, event, code, shift); }
    HBRUSH Background(HDC dc) override;
    void FontChanged() override;
    void ShowFont() override;

    void Toggle();
    void ResizeToCaption();
    void FitFont();
    void ShowFittedFont(base::FontHandle font);
    void MakeTransparencyBrush();

    base::String caption_;
    std::uint8_t value_ = Unchecked;
    std::int32_t alignment_ = TextLeft;
    std::int32_t style_ = StandardCheckBox;
    std::int32_t backStyle_ = OwnColors;
    bool alignRight_ = false;
    bool multiLine_ = false;
    bool transparent_ = false;
    bool autoSize_ = false;
    bool fontAutoSize_ = false;

    WindowDc buttonDc_;
    base::BrushHandle transparencyBrush_;
    base::FontHandle fittedFont_;
    bool isNarrowed_ = false;
};

}  // namespace controls
