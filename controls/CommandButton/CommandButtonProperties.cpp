// CommandButtonProperties: what setting a button's properties does.
#include "controls/AccessKey.h"
#include "controls/CommandButton/CommandButton.h"

#include <algorithm>

namespace controls {

using base::String;
using base::StringView;

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

}  // namespace

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
        GetSurface().AccessKey(AccessKeyOf(caption_));
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

void CommandButton::NonThemeStyle(std::int32_t style)
{
    Keep(nonThemeStyle_, style, TEXT("NonThemeStyle"), After::Relayout);
}

void CommandButton::ButtonType(std::int32_t type)
{
    Keep(buttonType_, type, TEXT("ButtonType"), After::Redraw);
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
    GetSurface().Enabled(enabled);
    state_ = StateNormal;
    PropertyChanged(TEXT("Enabled"));
    DrawControl();
}

void CommandButton::ShowFocus(bool show)
{
    Keep(showFocus_, show, TEXT("ShowFocus"), After::Redraw);
}

void CommandButton::UseCustomColors(bool use)
{
    Keep(useCustomColors_, use, TEXT("UseCustomColors"), After::Redraw);
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

void CommandButton::HighLightColor(OleColor color)
{
    Keep(highLightColor_, color, TEXT("HighlightColor"), After::Redraw);
}

void CommandButton::FontColor(OleColor color)
{
    Keep(fontColor_, color, TEXT("FontColor"), After::Redraw);
}

void CommandButton::FontHighlightColor(OleColor color)
{
    Keep(fontHighlightColor_, color, TEXT("FontHighlightColor"), After::Redraw);
}

void CommandButton::MaskColor(OleColor color)
{
    Keep(maskColor_, color, TEXT("MaskColor"), After::Redraw);
}

void CommandButton::MaskColorEnabled(bool enable)
{
    Keep(maskColorEnabled_, enable, TEXT("MaskColorEnabled"), After::Redraw);
}

void CommandButton::ContourColor(OleColor color)
{
    if (color != contourColor_)
        Keep(contourColor_, color, TEXT("ContourColor"), After::Redraw);
}

void CommandButton::ContourStyle(std::int32_t style)
{
    Keep(contourStyle_, style, TEXT("ContourStyle"), After::Redraw);
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

void CommandButton::RoundedBordersByTheme(bool rounded)
{
    Keep(roundedBordersByTheme_, rounded, TEXT("RoundedBordersByTheme"), After::Redraw);
}

void CommandButton::GradientDirection(std::int32_t direction)
{
    Keep(gradientDirection_, direction, TEXT("GradientDirection"), After::Redraw);
}

void CommandButton::RightToLeft(bool rightToLeft)
{
    Keep(rightToLeft_, rightToLeft, TEXT("RightToLeft"), After::Redraw);
}

void CommandButton::CaptionAlign(std::int32_t align)
{
    Keep(captionAlign_, align, TEXT("CaptionAlign"), After::Relayout);
}

void CommandButton::CaptionFx(std::int32_t effect)
{
    Keep(captionFx_, effect, TEXT("CaptionFx"), After::Redraw);
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

void CommandButton::PictureAlign(std::int32_t align)
{
    Keep(pictureAlign_, align, TEXT("PictureAlign"), After::Relayout);
}

void CommandButton::PictureDisabledStyle(std::int32_t style)
{
    Keep(pictureDisabledStyle_, style, TEXT("PictureDisabledStyle"), After::Relayout);
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

void CommandButton::FontAutoSize(std::int32_t mode)
{
    Keep(fontAutoSize_, mode, TEXT("FontAutoSize"), After::Nothing);
}

void CommandButton::MousePointer(std::int16_t pointer)
{
    GetSurface().MousePointer(pointer);
    PropertyChanged(TEXT("MousePointer"));
}

}  // namespace controls
