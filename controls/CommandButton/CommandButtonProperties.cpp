// CommandButtonProperties: what a button stores, and what setting its properties does.
#include "controls/CommandButton/CommandButton.h"
#include "controls/PropertyTable.h"
#include "host/AccessKey.h"

#include <algorithm>

namespace controls {

using base::String;
using base::StringView;
using host::PropertyBag;

namespace {

constexpr WCHAR separators[] = TEXT(",;: \u00FF");

/// Value of the hexadecimal digits at the start of `token`; above 0xFFFF when they do not fit into 16 bits.
std::uint32_t LeadingHexNumber(StringView token)
{
    std::uint32_t number = 0;
    for (const WCHAR unit : base::ToUpper(token)) {
        const std::size_t digit = StringView(TEXT("0123456789ABCDEF")).find(unit);
        if (digit == StringView::npos || number > 0xFFFF)
            break;
        number = number << 4 | static_cast<std::uint32_t>(digit);
    }
    return number;
}

String TextFromCodes(StringView codes)
{
    String text;
    std::size_t start = codes.find_first_not_of(separators);
    while (start != StringView::npos) {
        const std::size_t end = std::min(codes.find_first_of(separators, start), codes.size());
        const std::uint32_t unit = LeadingHexNumber(codes.substr(start, end - start));
        if (unit == 0 || unit > 0xFFFF)
            break;
        text += static_cast<WCHAR>(unit);
        start = codes.find_first_not_of(separators, end);
    }
    return text;
}

/// A default: the colour itself, not its place in the scheme.
template <int Index>
constexpr auto systemRgb = [](CommandButton&) { return GetSysColor(Index); };

}  // namespace

/// Written even when there is none.
template <ButtonPicture Which>
auto CommandButton::StoredPicture(const WCHAR* key)
{
    return StoredAs<CommandButton, std::shared_ptr<host::Picture>>(
        key, [](CommandButton & button) -> auto& { return button.pictures_[Which]; }, nullptr, WhenDefault::Stored);
}

/// Several keys differ from their properties' names in the case of a letter; they stay as they are in the files.
const PropertyTable<CommandButton>& CommandButton::Properties()
{
    using B = CommandButton;
    using std::int32_t;
    using std::uint32_t;
    using std::uint8_t;
    const auto face = host::SystemColor(COLOR_BTNFACE);
    static const PropertyTable<B> table{
        StoredAs<B, uint8_t>(TEXT("CaptionHide"), &B::captionHide_, 0),
        StoredAs<B, String>(TEXT("CaptionUniChars"), &B::captionUniChars_, nullptr),
        StoredAs<B, String>(TEXT("Caption"), &B::caption_, nullptr),
        StoredAs<B, int32_t>(TEXT("FontAutoSize"), &B::fontAutoSize_, AutoSizeOff),
        StoredAs<B, String>(TEXT("ToolTipTextW"), Tip<B, &Settings::text>(), nullptr),
        StoredAs<B, uint8_t>(TEXT("ForceTrueType"), &B::forceTrueType_, 0),
        StoredAs<B, int32_t>(TEXT("GradientDirection"), &B::gradientDirection_, GradientDiagonal),
        StoredAs<B, int32_t>(TEXT("CaptionFx"), &B::captionFx_, CaptionFxNone),
        StoredAs<B, int32_t>(TEXT("RoundedValue"), &B::roundedValue_, 5),
        StoredAs<B, uint32_t>(TEXT("ContourColor"), &B::contourColor_, 0),
        StoredAs<B, int32_t>(TEXT("ContourStyle"), &B::contourStyle_, Contour3D),
        StoredPicture<NormalPicture>(TEXT("Picture")),
        StoredPicture<OverPicture>(TEXT("PictureOver")),
        StoredPicture<DownPicture>(TEXT("PictureDown")),
        StoredPicture<DisabledPicture>(TEXT("PictureDisabled")),
        StoredAs<B, int32_t>(TEXT("PictureDisabledStyle"), &B::pictureDisabledStyle_, DisabledPictureUnchanged),
        StoredAs<B, int32_t>(TEXT("Style"), &B::style_, ThemeStyle),
        StoredAs<B, uint8_t>(TEXT("UseClassicTheme"), &B::useClassicTheme_, 0),
        StoredAs<B, int32_t>(TEXT("CaptionAlign"), &B::captionAlign_, AlignCentre).WrittenBefore(TEXT("Enabled")),
        StoredAs<B, int32_t>(TEXT("PictureAlign"), &B::pictureAlign_, AlignLeft),
        StoredAs<B, int32_t>(TEXT("NonThemeStyle"), &B::nonThemeStyle_, ClassicStyle).WrittenBefore(TEXT("UseClassicTheme")),
        StoredThrough<B, bool>(
            TEXT("Enabled"), [](B& button) { return button.Enabled(); }, [](B& button, bool on) { button.Input().Enabled(on); }, true),
        StoredAs<B, uint8_t>(TEXT("ShowFocus"), &B::showFocus_, 0),
        StoredAs<B, uint8_t>(TEXT("USeCustomColors"), &B::useCustomColors_, 0),
        StoredAs<B, uint32_t>(TEXT("BackColor"), &B::backColor_, face),
        StoredAs<B, uint32_t>(TEXT("BackColorDisabled"), &B::backColorDisabled_, face),
        StoredAs<B, uint32_t>(TEXT("HighlightColor"), &B::highLightColor_, systemRgb<COLOR_HIGHLIGHT>),
        StoredAs<B, uint32_t>(TEXT("FontColor"), &B::fontColor_, systemRgb<COLOR_BTNTEXT>),
        StoredAs<B, uint32_t>(TEXT("FontHighlightColor"), &B::fontHighlightColor_, systemRgb<COLOR_BTNTEXT>),
        StoredAs<B, String>(TEXT("Tooltiptitle"), Tip<B, &Settings::title>(), nullptr, WhenDefault::Stored),
        StoredAs<B, int32_t>(TEXT("ToolTipIcon"), Tip<B, &Settings::icon>(), 0, WhenDefault::Stored),
        StoredAs<B, uint8_t>(TEXT("TooltipBalloon"), Tip<B, &Settings::balloon>(), 0, WhenDefault::Stored),
        StoredAs<B, uint8_t>(TEXT("ToolTipCentred"), Tip<B, &Settings::centred>(), 0),
        StoredAs<B, int32_t>(TEXT("ToolTipWidth"), Tip<B, &Settings::width>(), 0),
        StoredAs<B, uint32_t>(TEXT("ToolTipBackColor"), Tip<B, &Settings::backColor>(), 0x80000018),
        StoredAs<B, uint32_t>(TEXT("ToolTipForeColor"), Tip<B, &Settings::foreColor>(), 0x80000017),
        StoredAs<B, int32_t>(TEXT("ButtonType"), &B::buttonType_, PushButton),
        StoredAs<B, int32_t>(TEXT("Value"), &B::value_, 0),
        StoredAs<B, uint8_t>(TEXT("MaskColorEnabled"), &B::maskColorEnabled_, 0).WrittenBefore(TEXT("MousePointer")),
        StoredAs<B, uint32_t>(TEXT("MaskColor"), &B::maskColor_, 0xC0C0C0),
        StoredThrough<B, std::int16_t>(
            TEXT("MousePointer"), [](B& button) { return button.MousePointer(); },
            [](B& button, std::int16_t pointer) { button.Input().MousePointer(pointer); }, 0),
        StoredAs<B, uint8_t>(TEXT("RoundedBordersByTheme"), &B::roundedBordersByTheme_, 1),
        StoredAs<B, bool>(TEXT("RightToLeft"), &B::rightToLeft_, false),
        StoredThrough<B, std::shared_ptr<host::Font>>(
            TEXT("Font"), [](B& button) { return button.Font(); },
            [](B& button, const std::shared_ptr<host::Font>& font) { button.TakeFont(*font); },
            [](B& button) { return button.Ambient().Font(); }, WhenDefault::Stored)
            .WrittenBefore(TEXT("ButtonType")),
    };
    return table;
}

void CommandButton::UserControl_ReadProperties(const PropertyBag& bag)
{
    Properties().Read(*this, bag);
    state_ = StateNormal;
    KeepTrueType();
    baseFontSize_ = Font()->Size();
    Input().AccessKey(host::AccessKeyOf(caption_));
    if (Ambient().UserMode())
        subclassControl_.TryEnable(hWnd());
    Relayout();
    Caption(caption_);
    savedStyle_ = style_;
    UseClassicTheme(useClassicTheme_);
    if (!captionUniChars_.empty())
        CaptionUniChars(captionUniChars_);
}

void CommandButton::UserControl_WriteProperties(PropertyBag& bag)
{
    Properties().Write(*this, bag);
}

void CommandButton::Follow(After after)
{
    if (after == After::Redraw)
        DrawControl();
    else
        Relayout();
}

void CommandButton::SendWindowText(const String& text)
{
    SendMessageUnsubclassed(subclassControl_, hWnd(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void CommandButton::Caption(const String& caption)
{
    caption_ = caption;
    if (captionHide_) {
        SendWindowText(caption_);
    } else {
        Input().AccessKey(host::AccessKeyOf(caption_));
        FitFont();
    }
    PropertyChanged(TEXT("Caption"));
    Relayout();
}

void CommandButton::CaptionHide(bool hide)
{
    captionHide_ = hide;
    if (!hide)
        SendWindowText({});
    PropertyChanged(TEXT("CaptionHide"));
    DrawControl();
}

void CommandButton::CaptionUniChars(const String& codes)
{
    captionUniChars_ = codes;
    Caption(TextFromCodes(codes));
    PropertyChanged(TEXT("CaptionUniChars"));
}

void CommandButton::ScreenReaderCaption(const String& text)
{
    SendWindowText(text);
    Announce(EVENT_OBJECT_NAMECHANGE);
}

void CommandButton::Style(std::int32_t style)
{
    style_ = style;
    if (styleGuard_ == 0) {
        savedStyle_ = ClassicStyle;
        ++styleGuard_;
        UseClassicTheme(style == ClassicStyle);
        --styleGuard_;
    }
    PropertyChanged(TEXT("Style"));
    if (styleGuard_ == 0)
        Relayout();
}

void CommandButton::UseClassicTheme(bool classic)
{
    useClassicTheme_ = classic;
    if (styleGuard_ == 0) {
        ++styleGuard_;
        if (classic)
            savedStyle_ = style_;
        Style(classic ? ClassicStyle : savedStyle_);
        --styleGuard_;
    }
    PropertyChanged(TEXT("UseClassicTheme"));
    if (styleGuard_ == 0)
        DrawControl();
}

void CommandButton::Value(std::int32_t value)
{
    if ((value != 0 && value != 1) || value == value_)
        return;
    if (value == 0)
        state_ = StateNormal;
    Keep(value_, value, TEXT("Value"), After::Redraw);
}

void CommandButton::Enabled(bool enabled)
{
    Input().Enabled(enabled);
    state_ = StateNormal;
    PropertyChanged(TEXT("Enabled"));
    DrawControl();
}

void CommandButton::BackColor(OleColor color)
{
    Keep(backColor_, color, TEXT("BackColor"), Enabled() ? After::Redraw : After::Nothing);
    if (!Ambient().UserMode())
        BackColorDisabled(color);
}

void CommandButton::BackColorDisabled(OleColor color)
{
    Keep(backColorDisabled_, color, TEXT("BackColorDisabled"), Enabled() ? After::Nothing : After::Redraw);
}

void CommandButton::ContourColor(OleColor color)
{
    if (color != contourColor_)
        Keep(contourColor_, color, TEXT("ContourColor"), After::Redraw);
}

void CommandButton::RoundedValue(std::int32_t value)
{
    value = std::max(value, 0);
    if (value == roundedValue_)
        return;
    // This one property tells of its change before it has the new value.
    PropertyChanged(TEXT("RoundedValue"));
    roundedValue_ = value;
    DrawControl();
}

void CommandButton::Picture(std::shared_ptr<host::Picture> picture)
{
    Keep(pictures_[NormalPicture], std::move(picture), TEXT("Picture"), After::Relayout);
}

void CommandButton::PictureOver(std::shared_ptr<host::Picture> picture)
{
    Keep(pictures_[OverPicture], std::move(picture), TEXT("PictureOver"), After::Relayout);
}

void CommandButton::PictureDown(std::shared_ptr<host::Picture> picture)
{
    Keep(pictures_[DownPicture], std::move(picture), TEXT("PictureDown"), After::Relayout);
}

void CommandButton::PictureDisabled(std::shared_ptr<host::Picture> picture)
{
    Keep(pictures_[DisabledPicture], std::move(picture), TEXT("PictureDisabled"), After::Relayout);
}

/// The steps that fit the font to the button are not the user's.
void CommandButton::FontChanged()
{
    if (fittingFont_)
        return;
    GiveNarrowedFontBack();
    baseFontSize_ = Font()->Size();
    DrawControl();
}

void CommandButton::MousePointer(std::int16_t pointer)
{
    Input().MousePointer(pointer);
    PropertyChanged(TEXT("MousePointer"));
}

}  // namespace controls
