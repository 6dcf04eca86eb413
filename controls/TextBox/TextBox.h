// TextBox: a control that shows the system's edit window.
#pragma once

#include "controls/HostedControl.h"
#include "controls/TextBox/TextBoxFilter.h"
#include "controls/TextBox/TextBoxValues.h"
#include "host/Event.h"
#include "host/OwnWindow.h"

#include <cstdint>
#include <vector>

namespace controls {

template <class Control>
class PropertyTable;

/// Its window is the system's edit. Character and line numbers count from 0.
class TextBox final : public HostedControl {
public:
    TextBox() : HostedControl(BorderSunken, COLOR_WINDOWTEXT, COLOR_WINDOW) {}
    ~TextBox() override { ReleaseWindow(); }

    [[nodiscard]] base::StringView Kind() const override { return TEXT("TextBox"); }
    [[nodiscard]] host::AccessibleFacts Accessibility() override;

    // Text and selection.

    /// What is read is trimmed when `TrimText` says so. Setting another text in a multi-line box raises `Change`; in a single-line box
    /// the edit reports every setting itself.
    [[nodiscard]] base::String Text();
    void Text(const base::String& text);
    [[nodiscard]] base::String Default() { return Text(); }
    void Default(const base::String& text) { Text(text); }
    [[nodiscard]] std::int32_t Length() const;
    void SetSel(std::int32_t In_Start, std::int32_t In_Length);
    [[nodiscard]] std::int32_t SelStart() const;
    void SelStart(std::int32_t start);
    [[nodiscard]] std::int32_t SelLength() const;
    void SelLength(std::int32_t length);
    [[nodiscard]] base::String SelText();
    /// Replaces the selection; can be undone.
    void SelText(const base::String& text);
    void UnDo();
    [[nodiscard]] bool CanUnDo() const;
    void ClearUnDo();
    /// Whether the user has edited since this was last asked. With `In_ResetOnly` forgets it and answers false.
    bool IsChanged(bool In_ResetOnly);
    void ScrollToActualPos();
    /// Prints `Text` on the default printer in the box's font. False when nothing was printed.
    [[nodiscard]] bool PrintText();

    // Lines; with `EnhacedLineComputing` as if word wrap were off.

    [[nodiscard]] std::int32_t LineCount();
    [[nodiscard]] std::int32_t GetLineIndexFromPos(std::int32_t In_PosCharacter);
    /// -1 when there is no such line.
    [[nodiscard]] std::int32_t GetPosStartFromLineIndex(std::int32_t In_LineIndex);
    [[nodiscard]] bool ExistsLine(std::int32_t In_LineIndex);
    /// -1 when there is no such line.
    [[nodiscard]] std::int32_t GetLineLength(std::int32_t In_LineIndex);
    /// Empty when there is no such line.
    [[nodiscard]] base::String GetLine(std::int32_t In_LineIndex);
    /// The caret's line. Setting puts the caret to the start of a line.
    [[nodiscard]] std::int32_t LineIndex();
    void LineIndex(std::int32_t line);
    [[nodiscard]] std::int32_t GetCurrentPosInLine();
    [[nodiscard]] std::int32_t GetTopLineIndex() const;
    /// Removes a line with its line break; can be undone. False when there is no such line.
    bool RemoveLine(std::int32_t In_LineIndex);

    // Kinds of boxes.

    [[nodiscard]] std::int32_t MaxLength() const;
    void MaxLength(std::int32_t length);
    [[nodiscard]] bool Locked() const { return locked_; }
    void Locked(bool locked);
    [[nodiscard]] bool MultiLine() const { return multiLine_; }
    void MultiLine(bool multiLine);
    /// 0 none, 1 horizontal, 2 vertical, 3 both.
    [[nodiscard]] std::int32_t ScrollBars() const { return scrollBars_; }
    void ScrollBars(std::int32_t scrollBars);
    /// 0 as the scroll bars say, 1 off, 2 on.
    [[nodiscard]] std::int32_t WordWrap() const { return wordWrap_; }
    void WordWrap(std::int32_t wordWrap);
    [[nodiscard]] bool HideSelection() const { return hideSelection_; }
    void HideSelection(bool hide) { Keep(hideSelection_, hide, TEXT("HideSelection"), After::NewWindow); }
    /// 0 as typed, 1 upper, 2 lower case; counts when the edit is made the next time.
    [[nodiscard]] std::uint8_t CaseStyle() const { return caseStyle_; }
    void CaseStyle(std::uint8_t style) { Keep(caseStyle_, style, TEXT("CaseStyle")); }
    [[nodiscard]] bool TrimText() const { return trimText_; }
    void TrimText(bool trim) { Keep(trimText_, trim, TEXT("TrimText")); }
    /// One character, or empty for none. Empty, and not to be set, while the system's character is used.
    [[nodiscard]] base::String PasswordChar() const;
    void PasswordChar(const base::String& character);
    [[nodiscard]] bool UseSystemPasswordChar() const { return useSystemPasswordChar_; }
    void UseSystemPasswordChar(bool use);
    /// Can be changed in a designer only.
    [[nodiscard]] bool EnhacedLineComputing() const { return enhacedLineComputing_; }
    void EnhacedLineComputing(bool enhanced);
    [[nodiscard]] bool DragDropEnabled() const { return dragDropEnabled_; }
    void DragDropEnabled(bool enable);

    // What may be typed.

    [[nodiscard]] bool AllowOnlyNumbers() const { return allowOnlyNumbers_; }
    void AllowOnlyNumbers(bool only);
    [[nodiscard]] bool AllowOnlyAlphabetics() const { return rules_.allowOnlyAlphabetics; }
    void AllowOnlyAlphabetics(bool only);
    [[nodiscard]] const base::String& AllowOnlyChars() const { return rules_.allowOnlyChars; }
    void AllowOnlyChars(const base::String& characters);
    /// Tab is text, not a focus key.
    [[nodiscard]] bool TabKeyTextual() const { return tabKeyTextual_; }
    void TabKeyTextual(bool textual) { Keep(tabKeyTextual_, textual, TEXT("TabKeyTextual")); }
    /// Where the arrow keys move the focus: up and down always, left and right from the text's ends. Not owned.
    void ForwardFocusUp(host::Control* control) { forwardFocusUp_ = control; }
    void ForwardFocusDown(host::Control* control) { forwardFocusDown_ = control; }
    void ForwardFocusLeft(host::Control* control) { forwardFocusLeft_ = control; }
    void ForwardFocusRight(host::Control* control) { forwardFocusRight_ = control; }

    // Looks.

    using HostedControl::BackColor;
    using HostedControl::ForeColor;
    void ForeColor(OleColor color);
    void BackColor(OleColor color);
    /// While the box has the focus.
    [[nodiscard]] OleColor BackColorSelected() const { return backColorSelected_; }
    void BackColorSelected(OleColor color) { Keep(backColorSelected_, color, TEXT("BackColorSelected"), After::Redraw); }
    [[nodiscard]] OleColor BackColorDisabled() const { return backColorDisabled_; }
    void BackColorDisabled(OleColor color) { Keep(backColorDisabled_, color, TEXT("BackColorDisabled"), After::Redraw); }
    void SetFocusEx();

    host::Event<1> Click;
    host::Event<2> DblClick;
    host::Event<3> Change;
    host::Event<4> Scroll;
    host::Event<5, std::int16_t&> KeyPress;
    host::Event<6, std::int16_t&, std::int16_t&> KeyDown;
    host::Event<7, std::int16_t&, std::int16_t&> KeyUp;
    host::Event<8, std::vector<base::String>&, std::int16_t&> DragDropFile;
    host::Event<9, bool&> ContextMenu;
    host::Event<10> MouseEnter;
    host::Event<11> MouseLeave;
    host::Event<12, std::int32_t> MouseWheel;
    host::Event<13> BufferOverflow;

private:
    static const PropertyTable<TextBox>& Properties();

    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(const host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Paint() override;
    void UserControl_GotFocus() override;
    void UserControl_KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
    void UserControl_KeyUp(std::int16_t& keyCode, std::int16_t& shift) override;
    void UserControl_KeyPress(std::int16_t& keyAscii) override;

    HostedWindow::Shape Shape() override;
    void WindowMade() override;
    void ReleaseWindow() override;
    void CreateWindowAnew() override;
    void OnHostedMessage(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) override;
    void OnKey(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled) override;
    void ActOnKey(UINT message, std::int16_t keyCode) override;
    void RaiseKey(host::KeyEvent event, std::int16_t& code, std::int16_t& shift) override { RaiseKeyOf(*this, event, code, shift); }
    void MouseEntered() override { MouseEnter.Raise(); }
    void MouseGone() override { MouseLeave.Raise(); }
    void OnNotification(WORD code) override;
    [[nodiscard]] OleColor CurrentBackColor() const override;
    void FontChanged() override;

    void CreateLineWindow();
    void LimitText();
    void Cache(base::String text);
    void ReplaceSelection(const base::String& text);
    /// Brings the hidden line window up to date and answers with the window that counts lines.
    HWND LineCounter(bool withCaret = false);
    LRESULT AskLines(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// The background is another one where the focus changes it.
    void RepaintForFocus();
    void FixFocus();
    void OnChar(HWND window, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled);
    void OnKillFocus(bool& handled);
    void TypeTab();
    void PassKeyOn(UINT message, std::int16_t code);
    bool ForwardFocus(std::int16_t keyCode);

    /// Only `Cache` changes it: what it held before may have been a password.
    base::String cachedText_;
    std::int32_t maxLength_ = 30000;
    bool locked_ = false;
    bool multiLine_ = false;
    std::int32_t scrollBars_ = NoScrollBars;
    std::int32_t wordWrap_ = WordWrapByScrollBars;
    bool hideSelection_ = true;
    std::uint8_t caseStyle_ = CaseAsTyped;
    bool trimText_ = false;
    std::int16_t passwordChar_ = 0;
    bool useSystemPasswordChar_ = false;
    bool enhacedLineComputing_ = false;
    bool dragDropEnabled_ = false;
    bool allowOnlyNumbers_ = false;
    TextBoxRules rules_;
    bool tabKeyTextual_ = false;
    OleColor backColorSelected_ = host::SystemColor(COLOR_WINDOW);
    OleColor backColorDisabled_ = host::SystemColor(COLOR_WINDOW);
    host::Control* forwardFocusUp_ = nullptr;
    host::Control* forwardFocusDown_ = nullptr;
    host::Control* forwardFocusLeft_ = nullptr;
    host::Control* forwardFocusRight_ = nullptr;

    host::WindowHandle lineWindow_;
    bool lineWindowStale_ = false;
};

}  // namespace controls
