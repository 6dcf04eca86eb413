// CheckBox: a control that shows the system's three-state check box.
#pragma once

#include "base/Handles.h"
#include "controls/CheckBox/CheckBoxLayout.h"
#include "controls/HostedControl.h"
#include "controls/WindowDc.h"
#include "host/Event.h"

#include <cstdint>
#include <memory>

namespace controls {

template <class Control>
class PropertyTable;

/// The system draws the box; it never toggles by itself. A click or Space makes it checked or unchecked; only code makes it grayed.
class CheckBox final : public HostedControl {
public:
    ~CheckBox() override { ReleaseButton(); }

    [[nodiscard]] base::StringView Kind() const override { return TEXT("CheckBox"); }

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
    void BackStyle(std::int32_t style);
    /// 0 none, 1 single, 2 static edge, 3 sunken, 4 raised.
    [[nodiscard]] std::uint8_t BorderStyle() const { return borderStyle_; }
    void BorderStyle(std::uint8_t style);
    /// The box stands to the right of the caption.
    [[nodiscard]] bool AlignRight() const { return alignRight_; }
    void AlignRight(bool right);
    [[nodiscard]] bool MultiLine() const { return multiLine_; }
    void MultiLine(bool multiLine);
    /// Shows the container's background, as it was when it was first needed.
    [[nodiscard]] bool Transparent() const { return transparent_; }
    void Transparent(bool transparent);
    [[nodiscard]] OleColor ForeColor() const { return foreColor_; }
    void ForeColor(OleColor color);
    [[nodiscard]] OleColor BackColor() const { return backColor_; }
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

    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(const host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Terminate() override { ReleaseButton(); }
    void UserControl_Resize() override;
    void UserControl_GotFocus() override { hosted_.ControlGotFocus(enabled_, FocusScope::OwnContainer); }

    void CreateWindowAnew() override;
    void ReleaseButton();
    void Toggle();
    void ResizeToCaption();
    void FontChanged() override;
    void ShowFont();
    void FitFont();
    void MakeBackgroundBrush();
    void MakeTransparencyBrush();

    void SubclassControl_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled) override;
    void SubclassParent_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled) override;
    void OnKeyDown(WPARAM wParam, LPARAM lParam, bool& handled);
    void ActOnKey(std::int16_t keyCode);

    base::String caption_;
    std::uint8_t value_ = Unchecked;
    std::int32_t alignment_ = TextLeft;
    std::int32_t style_ = 0;
    std::int32_t backStyle_ = 0;
    std::uint8_t borderStyle_ = BorderNone;
    bool alignRight_ = false;
    bool multiLine_ = false;
    bool transparent_ = false;
    OleColor foreColor_ = host::SystemColor(COLOR_BTNTEXT);
    OleColor backColor_ = host::SystemColor(COLOR_BTNFACE);
    bool autoSize_ = false;
    bool fontAutoSize_ = false;

    WindowDc buttonDc_;
    base::BrushHandle backgroundBrush_;
    base::BrushHandle transparencyBrush_;
    std::shared_ptr<const base::FontHandle> shownFont_;
    base::FontHandle narrowedFont_;
};

}  // namespace controls
