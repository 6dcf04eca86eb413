// TextBox: persistence, life and the system's edit.
#include "controls/TextBox/TextBox.h"

#include "controls/PropertyTable.h"

#include <uxtheme.h>

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
        StoredAs<T, uint8_t>(TEXT("BorderStyle"), &T::borderStyle_, 3),
        StoredAs<T, std::int16_t>(TEXT("PasswordChar"), &T::passwordChar_, 0),
        StoredAs<T, String>(TEXT("ToolTipTextW"), Tip<T, &Settings::text>(), String()),
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
            TEXT("Text"), [](T& box) { return box.Text(); }, [](T& box, const String& text) { box.cachedText_ = text; },
            [](T& box) { return box.Ambient().DisplayName(); }),
        StoredThrough<T, std::shared_ptr<host::Font>>(
            TEXT("Font"), [](T& box) { return box.Font(); }, [](T& box, const std::shared_ptr<host::Font>& font) { box.TakeFont(*font); },
            [](T& box) { return box.Ambient().Font(); }),
        StoredAs<T, uint8_t>(TEXT("UseClassicTheme"), &T::useClassicTheme_, 0),
        StoredAs<T, uint8_t>(TEXT("AllowOnlyNumbers"), &T::allowOnlyNumbers_, 0),
        StoredAs<T, uint8_t>(
            TEXT("AllowOnlyAlphabetics"), [](T & box) -> auto& { return box.rules_.allowOnlyAlphabetics; }, 0),
        StoredAs<T, String>(
            TEXT("AllowOnlyChars"), [](T & box) -> auto& { return box.rules_.allowOnlyChars; }, String()),
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

void TextBox::UserControl_InitProperties()
{
    TakeFont(*Ambient().Font());
    cachedText_ = Ambient().DisplayName();
    Begin();
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

void TextBox::UserControl_Paint()
{
    hosted_.ControlPainted();
    FixFocus();
}

void TextBox::ReleaseEdit()
{
    DestroyToolTip();
    hosted_.Destroy();
    lineWindow_.Reset();
    backgroundBrush_.Reset();
    shownFont_.reset();
}

void TextBox::CreateWindowAnew()
{
    const bool hadEdit = hosted_.Window() != nullptr;
    const String text = hadEdit ? hosted_.Text() : cachedText_;
    const std::int32_t caret = hadEdit ? SelStart() : 0;
    const HostedWindow::Creation creation(hosted_);
    ReleaseEdit();

    const BorderBits border = BorderBitsOf(borderStyle_);
    DWORD style = border.style | CaseBits(caseStyle_) | LineBits(multiLine_, scrollBars_);
    style |= useSystemPasswordChar_ || passwordChar_ != 0 ? ES_PASSWORD : 0;
    style |= hideSelection_ ? 0 : ES_NOHIDESEL;
    const DWORD extendedStyle = border.extendedStyle | (dragDropEnabled_ ? WS_EX_ACCEPTFILES : 0);
    if (!hosted_.Create({TEXT("Edit"), style, extendedStyle, {}, enabled_}))
        return;
    CreateLineWindow();

    ShowFont();
    hosted_.Send(EM_SETLIMITTEXT, static_cast<WPARAM>(maxLength_));
    if (lineWindow_)
        SendMessageW(lineWindow_.Get(), EM_SETLIMITTEXT, static_cast<WPARAM>(maxLength_), 0);
    if (useClassicTheme_)
        SetWindowTheme(hosted_.Window(), TEXT(""), TEXT(""));
    hosted_.SetStyleBits(ES_NUMBER, allowOnlyNumbers_ ? ES_NUMBER : 0);
    if (locked_)
        hosted_.Send(EM_SETREADONLY, TRUE);
    GetSurface().ForeColor(foreColor_);
    if (passwordChar_ != 0 && !useSystemPasswordChar_)
        hosted_.Send(EM_SETPASSWORDCHAR, static_cast<WPARAM>(passwordChar_));
    hosted_.Subclass();
    GetSurface().BackColor(backColor_);
    MakeBackgroundBrush();
    Text(text);
    SelStart(caret);
    ScrollToActualPos();
}

/// An edit that scrolls sideways never wraps: its lines are the text's own. It stays out of sight and hears only questions.
void TextBox::CreateLineWindow()
{
    if (!enhacedLineComputing_ || ScrollsSideways(scrollBars_))
        return;
    lineWindow_.Reset(CreateWindowExW(0, TEXT("Edit"), nullptr, WS_CHILD | ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL, 0, 0, 0, 0,
                                      HWND_MESSAGE, nullptr, GetModuleHandleW(nullptr), nullptr));
    lineWindowStale_ = true;
}

}  // namespace controls
