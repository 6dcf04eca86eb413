// TextBoxProperties: what a text box stores, and what setting its properties does.
#include "controls/PropertyTable.h"
#include "controls/TextBox/TextBox.h"

namespace controls {

using base::String;
using host::PropertyBag;

const PropertyTable<TextBox>& TextBox::Properties()
{
    using T = TextBox;
    using std::int32_t;
    using std::uint32_t;
    using std::uint8_t;
    const auto window = host::SystemColor(COLOR_WINDOW);
    static const PropertyTable<T> table{
        StoredAs<T, uint8_t>(TEXT("CaseStyle"), &T::caseStyle_, CaseAsTyped),
        StoredAs<T, uint8_t>(TEXT("TrimText"), &T::trimText_, 0),
        StoredAs<T, int32_t>(TEXT("MaxLength"), &T::maxLength_, 30000),
        StoredAs<T, uint8_t>(TEXT("BorderStyle"), &T::borderStyle_, BorderSunken),
        StoredAs<T, std::int16_t>(TEXT("PasswordChar"), &T::passwordChar_, 0),
        StoredAs<T, String>(TEXT("ToolTipTextW"), Tip<T, &Settings::text>(), nullptr),
        StoredAs<T, uint8_t>(TEXT("ForceTrueType"), &T::forceTrueType_, 0),
        StoredAs<T, uint8_t>(TEXT("EnhacedLineComputing"), &T::enhacedLineComputing_, 0),
        StoredAs<T, uint8_t>(TEXT("ToolTipBalloon"), Tip<T, &Settings::balloon>(), 0),
        StoredAs<T, uint32_t>(TEXT("ToolTipBackColor"), Tip<T, &Settings::backColor>(), 0x80000018),
        StoredAs<T, uint32_t>(TEXT("ToolTipForeColor"), Tip<T, &Settings::foreColor>(), 0x80000017),
        StoredAs<T, uint8_t>(TEXT("ToolTipCentred"), Tip<T, &Settings::centred>(), 0),
        StoredAs<T, int32_t>(TEXT("ToolTipWidth"), Tip<T, &Settings::width>(), 0),
        StoredAs<T, uint32_t>(TEXT("BackColor"), &T::backColor_, window),
        StoredAs<T, uint32_t>(TEXT("BackColorSelected"), &T::backColorSelected_, window),
        StoredAs<T, uint32_t>(TEXT("BackColorDisabled"), &T::backColorDisabled_, window),
        StoredAs<T, uint32_t>(TEXT("ForeColor"), &T::foreColor_, host::SystemColor(COLOR_WINDOWTEXT)),
        StoredAs<T, uint8_t>(TEXT("TabKeyTextual"), &T::tabKeyTextual_, 0),
        StoredThrough<T, String>(
            TEXT("Text"), [](T& box) { return box.Text(); }, [](T& box, const String& text) { box.Cache(text); },
            [](T& box) { return box.Ambient().DisplayName(); }),
        StoredThrough<T, std::shared_ptr<host::Font>>(
            TEXT("Font"), [](T& box) { return box.Font(); }, [](T& box, const std::shared_ptr<host::Font>& font) { box.TakeFont(*font); },
            [](T& box) { return box.Ambient().Font(); }),
        StoredAs<T, uint8_t>(TEXT("UseClassicTheme"), &T::useClassicTheme_, 0),
        StoredAs<T, uint8_t>(TEXT("AllowOnlyNumbers"), &T::allowOnlyNumbers_, 0),
        StoredAs<T, uint8_t>(
            TEXT("AllowOnlyAlphabetics"), [](T & box) -> auto& { return box.rules_.allowOnlyAlphabetics; }, 0),
        StoredAs<T, String>(
            TEXT("AllowOnlyChars"), [](T & box) -> auto& { return box.rules_.allowOnlyChars; }, nullptr),
        StoredAs<T, uint8_t>(TEXT("Locked"), &T::locked_, 0),
        StoredAs<T, uint8_t>(TEXT("HideSelection"), &T::hideSelection_, 1),
        StoredAs<T, uint8_t>(TEXT("MultiLine"), &T::multiLine_, 0),
        StoredAs<T, int32_t>(TEXT("ScrollBars"), &T::scrollBars_, NoScrollBars),
        StoredAs<T, uint8_t>(TEXT("UseSystemPasswordChar"), &T::useSystemPasswordChar_, 0),
        StoredAs<T, int32_t>(TEXT("WordWrap"), &T::wordWrap_, WordWrapByScrollBars),
        StoredAs<T, uint8_t>(TEXT("DragDropEnabled"), &T::dragDropEnabled_, 0),
        StoredAs<T, uint8_t>(TEXT("Enabled"), &T::enabled_, 1),
        StoredThrough<T, bool>(
            TEXT("Visible"), [](T& box) { return box.GetExtender().Visible(); },
            [](T& box, bool visible) { box.GetExtender().Visible(visible); }, true),
    };
    return table;
}

void TextBox::UserControl_ReadProperties(const PropertyBag& bag)
{
    Properties().Read(*this, bag);
    Begin();
}

void TextBox::UserControl_WriteProperties(PropertyBag& bag)
{
    Properties().Write(*this, bag);
}

std::int32_t TextBox::MaxLength() const
{
    return hosted_.Window() ? static_cast<std::int32_t>(hosted_.Send(EM_GETLIMITTEXT)) : maxLength_;
}

void TextBox::MaxLength(std::int32_t length)
{
    maxLength_ = length;
    LimitText();
    PropertyChanged(TEXT("MaxLength"));
}

void TextBox::LimitText()
{
    hosted_.Send(EM_SETLIMITTEXT, static_cast<WPARAM>(maxLength_));
    if (lineWindow_)
        SendMessageW(lineWindow_.Get(), EM_SETLIMITTEXT, static_cast<WPARAM>(maxLength_), 0);
}

void TextBox::Locked(bool locked)
{
    hosted_.Send(EM_SETREADONLY, locked);
    Keep(locked_, locked, TEXT("Locked"));
}

/// A password box is single-line, so each of the two turns the other off.
void TextBox::MultiLine(bool multiLine)
{
    if (multiLine && useSystemPasswordChar_) {
        Keep(useSystemPasswordChar_, false, TEXT("UseSystemPasswordChar"));
        Keep(passwordChar_, std::int16_t{0}, TEXT("PasswordChar"));
    }
    Keep(multiLine_, multiLine, TEXT("MultiLine"), After::NewWindow);
}

void TextBox::UseSystemPasswordChar(bool use)
{
    if (use && multiLine_) {
        Keep(multiLine_, false, TEXT("MultiLine"));
        Keep(passwordChar_, std::int16_t{0}, TEXT("PasswordChar"));
    }
    Keep(useSystemPasswordChar_, use, TEXT("UseSystemPasswordChar"), After::NewWindow);
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
    if (wordWrap_ != WordWrapByScrollBars)
        Keep(wordWrap_, WordWrapByScrollBars, TEXT("WordWrap"));
    Keep(scrollBars_, scrollBars, TEXT("ScrollBars"), After::NewWindow);
}

void TextBox::WordWrap(std::int32_t wordWrap)
{
    if (wordWrap == WordWrapOff || wordWrap == WordWrapOn)
        Keep(scrollBars_, wordWrap == WordWrapOff ? BothScrollBars : VerticalScrollBar, TEXT("ScrollBars"));
    Keep(wordWrap_, wordWrap, TEXT("WordWrap"), After::NewWindow);
}

void TextBox::EnhacedLineComputing(bool enhanced)
{
    if (!IsRunTime())
        Keep(enhacedLineComputing_, enhanced, TEXT("EnhacedLineComputing"));
}

void TextBox::DragDropEnabled(bool enable)
{
    if (const HWND window = hosted_.Window()) {
        const LONG style = GetWindowLongW(window, GWL_EXSTYLE);
        SetWindowLongW(window, GWL_EXSTYLE, enable ? style | WS_EX_ACCEPTFILES : style & ~WS_EX_ACCEPTFILES);
        SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
    Keep(dragDropEnabled_, enable, TEXT("DragDropEnabled"));
}

/// The edit refuses other than digits by itself; the other two rules are ours and give way.
void TextBox::AllowOnlyNumbers(bool only)
{
    if (only) {
        AllowOnlyAlphabetics(false);
        AllowOnlyChars({});
    }
    hosted_.SetStyleBits(ES_NUMBER, only ? ES_NUMBER : 0);
    Keep(allowOnlyNumbers_, only, TEXT("AllowOnlyNumbers"));
}

void TextBox::AllowOnlyAlphabetics(bool only)
{
    if (only && allowOnlyNumbers_)
        AllowOnlyNumbers(false);
    Keep(rules_.allowOnlyAlphabetics, only, TEXT("AllowOnlyAlphabetics"));
}

void TextBox::AllowOnlyChars(const String& characters)
{
    if (!characters.empty() && allowOnlyNumbers_)
        AllowOnlyNumbers(false);
    Keep(rules_.allowOnlyChars, characters, TEXT("AllowOnlyChars"));
}

OleColor TextBox::CurrentBackColor() const
{
    if (!enabled_)
        return backColorDisabled_;
    return hosted_.WindowFocused() ? backColorSelected_ : backColor_;
}

void TextBox::ForeColor(OleColor color)
{
    GetSurface().ForeColor(color);
    Keep(foreColor_, color, TEXT("ForeColor"), After::Redraw);
}

void TextBox::BackColor(OleColor color)
{
    if (!hosted_.Window())
        return;
    if (!IsRunTime()) {
        backColorDisabled_ = color;
        backColorSelected_ = color;
    }
    if (enabled_)
        GetSurface().BackColor(color);
    Keep(backColor_, color, TEXT("BackColor"), enabled_ ? After::Redraw : After::Nothing);
}

void TextBox::RepaintForFocus()
{
    if (hosted_.Window() && enabled_ && backColor_ != backColorSelected_)
        InvalidateRect(hosted_.Window(), nullptr, TRUE);
}

void TextBox::FontChanged()
{
    ShowFont();
    Refresh();
}

}  // namespace controls
