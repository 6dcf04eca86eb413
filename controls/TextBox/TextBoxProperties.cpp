// TextBoxProperties: what setting a text box's properties does.
#include "controls/TextBox/TextBox.h"
namespace controls {

using base::String;

std::int32_t TextBox::MaxLength() const
{
    return hosted_.Window() ? static_cast<std::int32_t>(hosted_.Send(EM_GETLIMITTEXT)) : maxLength_;
}

void TextBox::MaxLength(std::int32_t length)
{
    maxLength_ = length;
    hosted_.Send(EM_SETLIMITTEXT, static_cast<WPARAM>(length));
    if (lineWindow_)
        SendMessageW(lineWindow_.Get(), EM_SETLIMITTEXT, static_cast<WPARAM>(length), 0);
    PropertyChanged(TEXT("MaxLength"));
}

void TextBox::Locked(bool locked)
{
    locked_ = locked;
    hosted_.Send(EM_SETREADONLY, locked);
    PropertyChanged(TEXT("Locked"));
}

/// A password box is single-line, so each of the two turns the other off.
void TextBox::MultiLine(bool multiLine)
{
    multiLine_ = multiLine;
    if (multiLine && useSystemPasswordChar_) {
        useSystemPasswordChar_ = false;
        passwordChar_ = 0;
    }
    PropertyChanged(TEXT("MultiLine"));
    CreateWindowAnew();
}

void TextBox::UseSystemPasswordChar(bool use)
{
    useSystemPasswordChar_ = use;
    if (use && multiLine_) {
        multiLine_ = false;
        passwordChar_ = 0;
    }
    PropertyChanged(TEXT("UseSystemPasswordChar"));
    CreateWindowAnew();
}

String TextBox::PasswordChar() const
{
    if (useSystemPasswordChar_)
        return {};
    const auto character = hosted_.Window() ? static_cast<WCHAR>(hosted_.Send(EM_GETPASSWORDCHAR)) : static_cast<WCHAR>(passwordChar_);
    return character ? String(1, character) : String();
}

void TextBox::PasswordChar(const String& character)
{
    if (useSystemPasswordChar_ || character.size() > 1)
        return;
    passwordChar_ = character.empty() ? std::int16_t{0} : static_cast<std::int16_t>(character[0]);
    hosted_.Send(EM_SETPASSWORDCHAR, static_cast<WORD>(passwordChar_));
    PropertyChanged(TEXT("PasswordChar"));
}

void TextBox::ScrollBars(std::int32_t scrollBars)
{
    if (wordWrap_ != WordWrapByScrollBars) {
        wordWrap_ = WordWrapByScrollBars;
        PropertyChanged(TEXT("WordWrap"));
    }
    scrollBars_ = scrollBars;
    PropertyChanged(TEXT("ScrollBars"));
    CreateWindowAnew();
}

void TextBox::WordWrap(std::int32_t wordWrap)
{
    wordWrap_ = wordWrap;
    if (wordWrap == WordWrapOff || wordWrap == WordWrapOn) {
        scrollBars_ = wordWrap == WordWrapOff ? BothScrollBars : VerticalScrollBar;
        PropertyChanged(TEXT("ScrollBars"));
    }
    PropertyChanged(TEXT("WordWrap"));
    CreateWindowAnew();
}

void TextBox::HideSelection(bool hide)
{
    hideSelection_ = hide;
    PropertyChanged(TEXT("HideSelection"));
    CreateWindowAnew();
}

void TextBox::BorderStyle(std::uint8_t style)
{
    borderStyle_ = style;
    PropertyChanged(TEXT("BorderStyle"));
    CreateWindowAnew();
}

void TextBox::CaseStyle(std::uint8_t style)
{
    caseStyle_ = style;
    PropertyChanged(TEXT("CaseStyle"));
}

void TextBox::TrimText(bool trim)
{
    trimText_ = trim;
    PropertyChanged(TEXT("TrimText"));
}

void TextBox::EnhacedLineComputing(bool enhanced)
{
    if (IsRunTime())
        return;
    enhacedLineComputing_ = enhanced;
    PropertyChanged(TEXT("EnhacedLineComputing"));
}

void TextBox::DragDropEnabled(bool enable)
{
    dragDropEnabled_ = enable;
    if (const HWND window = hosted_.Window()) {
        const LONG style = GetWindowLongW(window, GWL_EXSTYLE);
        SetWindowLongW(window, GWL_EXSTYLE, enable ? style | WS_EX_ACCEPTFILES : style & ~WS_EX_ACCEPTFILES);
        SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
    PropertyChanged(TEXT("DragDropEnabled"));
}

/// The edit refuses other than digits by itself; the other two rules are ours and give way.
void TextBox::AllowOnlyNumbers(bool only)
{
    if (only) {
        AllowOnlyAlphabetics(false);
        AllowOnlyChars({});
    }
    allowOnlyNumbers_ = only;
    hosted_.SetStyleBits(ES_NUMBER, only ? ES_NUMBER : 0);
    PropertyChanged(TEXT("AllowOnlyNumbers"));
}

void TextBox::AllowOnlyAlphabetics(bool only)
{
    if (only && allowOnlyNumbers_)
        AllowOnlyNumbers(false);
    rules_.allowOnlyAlphabetics = only;
    PropertyChanged(TEXT("AllowOnlyAlphabetics"));
}

void TextBox::AllowOnlyChars(const String& characters)
{
    if (!characters.empty() && allowOnlyNumbers_)
        AllowOnlyNumbers(false);
    rules_.allowOnlyChars = characters;
    PropertyChanged(TEXT("AllowOnlyChars"));
}

void TextBox::TabKeyTextual(bool textual)
{
    tabKeyTextual_ = textual;
    PropertyChanged(TEXT("TabKeyTextual"));
}

void TextBox::Enabled(bool enabled)
{
    HostedControl::Enabled(enabled);
    MakeBackgroundBrush();
}

OleColor TextBox::CurrentBackColor() const
{
    if (!enabled_)
        return backColorDisabled_;
    return hosted_.WindowFocused() ? backColorSelected_ : backColor_;
}

/// The edit asks for its brush at every paint, so the old one may go once the new one is there.
void TextBox::MakeBackgroundBrush()
{
    backgroundBrush_.Reset(CreateSolidBrush(TranslateOleColor(CurrentBackColor())));
    if (hosted_.Window())
        InvalidateRect(hosted_.Window(), nullptr, TRUE);
}

void TextBox::ForeColor(OleColor color)
{
    foreColor_ = color;
    GetSurface().ForeColor(color);
    PropertyChanged(TEXT("ForeColor"));
    Refresh();
}

void TextBox::BackColor(OleColor color)
{
    if (!hosted_.Window())
        return;
    backColor_ = color;
    if (!IsRunTime()) {
        backColorDisabled_ = color;
        backColorSelected_ = color;
    }
    if (enabled_) {
        GetSurface().BackColor(color);
        MakeBackgroundBrush();
        Refresh();
    }
    PropertyChanged(TEXT("BackColor"));
}

void TextBox::BackColorSelected(OleColor color)
{
    backColorSelected_ = color;
    MakeBackgroundBrush();
    PropertyChanged(TEXT("BackColorSelected"));
}

void TextBox::BackColorDisabled(OleColor color)
{
    backColorDisabled_ = color;
    MakeBackgroundBrush();
    PropertyChanged(TEXT("BackColorDisabled"));
}

void TextBox::FontChanged()
{
    ShowFont();
    Refresh();
}

/// The edit keeps using the font that it was given, so that one lives on until the edit has another.
void TextBox::ShowFont()
{
    const std::shared_ptr<const base::FontHandle> font = Font()->Share();
    hosted_.Send(WM_SETFONT, reinterpret_cast<WPARAM>(font ? font->Get() : nullptr), TRUE);
    shownFont_ = font;
}

}  // namespace controls
