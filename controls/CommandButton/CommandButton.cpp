// CommandButton: persistence and life.
#include "controls/CommandButton/CommandButton.h"

#include "controls/AccessKey.h"
#include "controls/PropertyTable.h"

namespace controls {

using base::String;
using base::StringView;
using host::PropertyBag;

namespace {

auto SystemRgb(int index)
{
    return [index](CommandButton&) { return GetSysColor(index); };
}

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
    const auto whatever = WhenDefault::Stored;
    static const PropertyTable<B> table{
        StoredAs<B, uint8_t>(TEXT("CaptionHide"), &B::captionHide_, 0),
        StoredAs<B, String>(TEXT("CaptionUniChars"), &B::captionUniChars_, String()),
        StoredAs<B, String>(TEXT("Caption"), &B::caption_, String()),
        StoredAs<B, int32_t>(TEXT("FontAutoSize"), &B::fontAutoSize_, AutoSizeOff),
        StoredAs<B, String>(TEXT("ToolTipTextW"), Tip<B, &Settings::text>(), String()),
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
            TEXT("Enabled"), [](B& button) { return button.Enabled(); }, [](B& button, bool on) { button.GetSurface().Enabled(on); }, true),
        StoredAs<B, uint8_t>(TEXT("ShowFocus"), &B::showFocus_, 0),
        StoredAs<B, uint8_t>(TEXT("USeCustomColors"), &B::useCustomColors_, 0),
        StoredAs<B, uint32_t>(TEXT("BackColor"), &B::backColor_, face),
        StoredAs<B, uint32_t>(TEXT("BackColorDisabled"), &B::backColorDisabled_, face),
        StoredAs<B, uint32_t>(TEXT("HighlightColor"), &B::highLightColor_, SystemRgb(COLOR_HIGHLIGHT)),
        StoredAs<B, uint32_t>(TEXT("FontColor"), &B::fontColor_, SystemRgb(COLOR_BTNTEXT)),
        StoredAs<B, uint32_t>(TEXT("FontHighlightColor"), &B::fontHighlightColor_, SystemRgb(COLOR_BTNTEXT)),
        StoredAs<B, String>(TEXT("Tooltiptitle"), Tip<B, &Settings::title>(), String(), whatever),
        StoredAs<B, int32_t>(TEXT("ToolTipIcon"), Tip<B, &Settings::icon>(), 0, whatever),
        StoredAs<B, uint8_t>(TEXT("TooltipBalloon"), Tip<B, &Settings::balloon>(), 0, whatever),
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
            [](B& button, std::int16_t pointer) { button.GetSurface().MousePointer(pointer); }, 0),
        StoredAs<B, uint8_t>(TEXT("RoundedBordersByTheme"), &B::roundedBordersByTheme_, 1),
        StoredAs<B, bool>(TEXT("RightToLeft"), &B::rightToLeft_, false),
        StoredThrough<B, std::shared_ptr<host::Font>>(
            TEXT("Font"), [](B& button) { return button.Font(); },
            [](B& button, const std::shared_ptr<host::Font>& font) { button.TakeFont(*font); },
            [](B& button) { return button.Ambient().Font(); }, whatever)
            .WrittenBefore(TEXT("ButtonType")),
    };
    return table;
}

CommandButton::CommandButton()
    : LibraryControl({.icon = TEXT("TooltipIcon"), .backColor = TEXT("ToolTipBackColor")}, ForceTrueTypeChoice::FirstFamily)
{
    subclassControl_.WndProc.Connect([this](HWND window, UINT message, auto&&...) { SubclassControl_WndProc(window, message); });
}

void CommandButton::UserControl_InitProperties()
{
    RoundedValue(5);
    TakeFont(*Ambient().Font());
    baseFontSize_ = Font()->Size();
    backColor_ = backColorDisabled_ = TranslateOleColor(host::SystemColor(COLOR_BTNFACE));
    fontHighlightColor_ = TranslateOleColor(host::SystemColor(COLOR_BTNTEXT));
    if (Ambient().UserMode())
        subclassControl_.TryEnable(hWnd());
    Caption(Ambient().DisplayName());
}

void CommandButton::UserControl_ReadProperties(const PropertyBag& bag)
{
    Properties().Read(*this, bag);
    state_ = StateNormal;
    KeepTrueType();
    baseFontSize_ = Font()->Size();
    GetSurface().AccessKey(AccessKeyOf(caption_));
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

void CommandButton::UserControl_Terminate()
{
    DestroyToolTip();
    subclassControl_.Release();
    narrowedFont_.Reset();
}

void CommandButton::UserControl_Show()
{
    shown_ = true;
    LibraryControl::UserControl_Show();
    Relayout();
}

void CommandButton::Refresh()
{
    const HWND window = hWnd();
    if (!window)
        return;
    place_.Follow(window, GetExtender());
    Relayout();
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

}  // namespace controls
