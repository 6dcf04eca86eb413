// CommandButton: the push button that draws itself.
#pragma once

#include "controls/CommandButton/CommandButtonLayout.h"
#include "controls/CommandButton/CommandButtonPicture.h"
#include "controls/CommandButton/CommandButtonShape.h"
#include "controls/CommandButton/CommandButtonValues.h"
#include "controls/DSubclass.h"
#include "controls/LibraryControl.h"
#include "controls/WindowPlace.h"
#include "host/Event.h"
#include "host/TabOrder.h"

#include <cstdint>
#include <memory>

namespace controls {

template <class Control>
class PropertyTable;

/// A push or toggle button. Numbers that stand for something are listed in CommandButtonValues.h; colours are OLE colours.
class CommandButton final : public LibraryControl {
public:
    CommandButton();

    [[nodiscard]] base::StringView Kind() const override { return TEXT("CommandButton"); }
    [[nodiscard]] bool IsButton() const override { return true; }
    /// Name: the window's text where there is one, else the caption.
    [[nodiscard]] host::AccessibleFacts Accessibility() override;

    [[nodiscard]] const base::String& Caption() const { return caption_; }
    void Caption(const base::String& caption);
    /// The caption is not drawn but stands in the window's text, for screen readers.
    [[nodiscard]] bool CaptionHide() const { return captionHide_; }
    void CaptionHide(bool hide);
    /// A caption as hexadecimal UTF-16 units between commas, semicolons, colons or blanks: "41,E8,20AC". It ends at the first that is 0
    /// or does not fit into 16 bits.
    [[nodiscard]] const base::String& CaptionUniChars() const { return captionUniChars_; }
    void CaptionUniChars(const base::String& codes);
    /// Sets the window's text, which is never drawn.
    void ScreenReaderCaption(const base::String& text);
    [[nodiscard]] std::int32_t CaptionAlign() const { return captionAlign_; }
    void CaptionAlign(std::int32_t align) { Keep(captionAlign_, align, TEXT("CaptionAlign"), After::Relayout); }
    [[nodiscard]] std::int32_t CaptionFx() const { return captionFx_; }
    void CaptionFx(std::int32_t effect) { Keep(captionFx_, effect, TEXT("CaptionFx"), After::Redraw); }

    /// The look, 0 to 18. Style 0 switches the classic theme on, every other one off.
    [[nodiscard]] std::int32_t Style() const { return style_; }
    void Style(std::int32_t style);
    /// True is style 0; false brings back the style that was in force when it was switched on.
    [[nodiscard]] bool UseClassicTheme() const { return useClassicTheme_; }
    void UseClassicTheme(bool classic);
    /// What style 7 draws when there are no visual styles.
    [[nodiscard]] std::int32_t NonThemeStyle() const { return nonThemeStyle_; }
    void NonThemeStyle(std::int32_t style) { Keep(nonThemeStyle_, style, TEXT("NonThemeStyle"), After::Relayout); }
    [[nodiscard]] std::int32_t ButtonType() const { return buttonType_; }
    void ButtonType(std::int32_t type) { Keep(buttonType_, type, TEXT("ButtonType"), After::Redraw); }
    /// 1 while a toggle button is on, else 0. Other values are ignored.
    [[nodiscard]] std::int32_t Value() const { return value_; }
    void Value(std::int32_t value);
    [[nodiscard]] std::int32_t Default() const { return Value(); }
    void Default(std::int32_t value) { Value(value); }
    using host::UserControl::Enabled;
    void Enabled(bool enabled) override;
    [[nodiscard]] bool ShowFocus() const { return showFocus_; }
    void ShowFocus(bool show) { Keep(showFocus_, show, TEXT("ShowFocus"), After::Redraw); }

    [[nodiscard]] bool UseCustomColors() const { return useCustomColors_; }
    void UseCustomColors(bool use) { Keep(useCustomColors_, use, TEXT("UseCustomColors"), After::Redraw); }
    [[nodiscard]] OleColor BackColor() const { return backColor_; }
    void BackColor(OleColor color);
    [[nodiscard]] OleColor BackColorDisabled() const { return backColorDisabled_; }
    void BackColorDisabled(OleColor color);
    [[nodiscard]] OleColor HighLightColor() const { return highLightColor_; }
    void HighLightColor(OleColor color) { Keep(highLightColor_, color, TEXT("HighlightColor"), After::Redraw); }
    [[nodiscard]] OleColor FontColor() const { return fontColor_; }
    void FontColor(OleColor color) { Keep(fontColor_, color, TEXT("FontColor"), After::Redraw); }
    [[nodiscard]] OleColor FontHighlightColor() const { return fontHighlightColor_; }
    void FontHighlightColor(OleColor color) { Keep(fontHighlightColor_, color, TEXT("FontHighlightColor"), After::Redraw); }
    [[nodiscard]] OleColor MaskColor() const { return maskColor_; }
    void MaskColor(OleColor color) { Keep(maskColor_, color, TEXT("MaskColor"), After::Redraw); }
    [[nodiscard]] bool MaskColorEnabled() const { return maskColorEnabled_; }
    void MaskColorEnabled(bool enable) { Keep(maskColorEnabled_, enable, TEXT("MaskColorEnabled"), After::Redraw); }
    [[nodiscard]] OleColor ContourColor() const { return contourColor_; }
    void ContourColor(OleColor color);
    [[nodiscard]] std::int32_t ContourStyle() const { return contourStyle_; }
    void ContourStyle(std::int32_t style) { Keep(contourStyle_, style, TEXT("ContourStyle"), After::Redraw); }
    /// Corner diameter in pixels, never negative.
    [[nodiscard]] std::int32_t RoundedValue() const { return roundedValue_; }
    void RoundedValue(std::int32_t value);
    [[nodiscard]] bool RoundedBordersByTheme() const { return roundedBordersByTheme_; }
    void RoundedBordersByTheme(bool rounded) { Keep(roundedBordersByTheme_, rounded, TEXT("RoundedBordersByTheme"), After::Redraw); }
    [[nodiscard]] std::int32_t GradientDirection() const { return gradientDirection_; }
    void GradientDirection(std::int32_t direction) { Keep(gradientDirection_, direction, TEXT("GradientDirection"), After::Redraw); }
    [[nodiscard]] bool RightToLeft() const { return rightToLeft_; }
    void RightToLeft(bool rightToLeft) { Keep(rightToLeft_, rightToLeft, TEXT("RightToLeft"), After::Redraw); }
    /// Shared, not copied. A state without a picture of its own shows `Picture`; a disabled button then shows it as
    /// `PictureDisabledStyle` says.
    [[nodiscard]] const std::shared_ptr<host::Picture>& Picture() const { return pictures_[NormalPicture]; }
    void Picture(std::shared_ptr<host::Picture> picture);
    [[nodiscard]] const std::shared_ptr<host::Picture>& PictureOver() const { return pictures_[OverPicture]; }
    void PictureOver(std::shared_ptr<host::Picture> picture);
    [[nodiscard]] const std::shared_ptr<host::Picture>& PictureDown() const { return pictures_[DownPicture]; }
    void PictureDown(std::shared_ptr<host::Picture> picture);
    [[nodiscard]] const std::shared_ptr<host::Picture>& PictureDisabled() const { return pictures_[DisabledPicture]; }
    void PictureDisabled(std::shared_ptr<host::Picture> picture);
    [[nodiscard]] std::int32_t PictureAlign() const { return pictureAlign_; }
    void PictureAlign(std::int32_t align) { Keep(pictureAlign_, align, TEXT("PictureAlign"), After::Relayout); }
    [[nodiscard]] std::int32_t PictureDisabledStyle() const { return pictureDisabledStyle_; }
    void PictureDisabledStyle(std::int32_t style) { Keep(pictureDisabledStyle_, style, TEXT("PictureDisabledStyle"), After::Relayout); }

    /// Fits the font to the button: 0 never, 1 narrower characters, all others fewer points. Counts from the next caption on.
    [[nodiscard]] std::int32_t FontAutoSize() const { return fontAutoSize_; }
    void FontAutoSize(std::int32_t mode) { Keep(fontAutoSize_, mode, TEXT("FontAutoSize")); }
    [[nodiscard]] std::int16_t MousePointer() const { return Input().MousePointer(); }
    void MousePointer(std::int16_t pointer);

    /// The visual state, a ButtonState, or 0 for a new button that nothing has happened to.
    [[nodiscard]] std::int32_t State() const { return state_; }
    void DrawControl();
    /// Follows the container's idea of the position, lays out anew and repaints.
    void Refresh() override;
    void SetFocusEx();
    /// Opens a document or an address. The shell's result: greater than 32 when it worked.
    INT_PTR OpenLink(const base::String& sLink);

    host::Event<1> Click;
    host::Event<2> MouseEnter;
    host::Event<3> MouseLeave;
    host::Event<4> DblClick;
    host::Event<5> ContextMenu;
    host::Event<6, std::int16_t&, std::int16_t&, float&, float&> MouseDown;
    host::Event<7, std::int16_t&, std::int16_t&, float&, float&> MouseMove;
    host::Event<8, std::int16_t&, std::int16_t&, float&, float&> MouseUp;
    host::Event<9, std::int16_t&> KeyPress;
    host::Event<10, std::int16_t&, std::int16_t&> KeyDown;
    host::Event<11, std::int16_t&, std::int16_t&> KeyUp;

private:
    static const PropertyTable<CommandButton>& Properties();
    template <ButtonPicture Which>
    static auto StoredPicture(const WCHAR* key);

    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(const host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Terminate() override;
    void UserControl_Show() override;
    void UserControl_Hide() override { shown_ = false; }
    void UserControl_Paint() override { DrawControl(); }
    void UserControl_Resize() override { Relayout(); }
    void UserControl_GotFocus() override { HasFocus(true); }
    void UserControl_EnterFocus() override { HasFocus(true); }
    void UserControl_LostFocus() override { HasFocus(false); }
    void UserControl_ExitFocus() override { HasFocus(false); }
    void UserControl_AmbientChanged(base::StringView name) override;
    void UserControl_MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void UserControl_MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void UserControl_MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void UserControl_Click() override;
    void UserControl_DblClick() override;
    void UserControl_KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
    void UserControl_KeyUp(std::int16_t& keyCode, std::int16_t& shift) override;
    void UserControl_KeyPress(std::int16_t& keyAscii) override;
    void UserControl_AccessKeyPress(std::int16_t key) override;

    void SubclassControl_WndProc(HWND window, UINT message);
    void ClickByKey();
    void HasFocus(bool has);
    void ShowState(std::int32_t state);
    void MoveFocus(host::FocusDirection direction);
    /// STATE_SYSTEM bits of what is drawn.
    [[nodiscard]] LONG AccessibleState() const;
    /// Tells of a state that is another since it was told last.
    void AnnounceState();

    void Follow(After after) override;
    void SendWindowText(const base::String& text);
    /// Lays the caption out for the present size and draws.
    void Relayout();
    void FontChanged() override;
    /// Does what `FontAutoSize` says, and takes back what it said before.
    void FitFont();
    void ShrinkFont();
    void NarrowFont();
    void TellFont(HFONT font);
    void GiveNarrowedFontBack();
    [[nodiscard]] ButtonLook Look();
    [[nodiscard]] bool PaintThemed(Canvas& canvas, const ButtonLook& look);
    void CutWindow(const ButtonStyle& drawn, const ButtonLook& look);
    [[nodiscard]] int ContentMargin() const;

    base::String caption_;
    base::String captionUniChars_;
    bool captionHide_ = false;
    std::int32_t captionAlign_ = AlignCentre;
    std::int32_t captionFx_ = CaptionFxNone;
    std::int32_t style_ = ThemeStyle;
    std::int32_t nonThemeStyle_ = ClassicStyle;
    bool useClassicTheme_ = false;
    std::int32_t savedStyle_ = ClassicStyle;
    int styleGuard_ = 0;  // not 0 while Style and UseClassicTheme bring each other into line
    std::int32_t buttonType_ = PushButton;
    std::int32_t value_ = 0;
    bool showFocus_ = true;
    bool useCustomColors_ = false;
    OleColor backColor_ = 0;
    OleColor backColorDisabled_ = 0;
    OleColor highLightColor_ = 0xF5F6F7;
    OleColor fontColor_ = host::SystemColor(COLOR_BTNTEXT);
    OleColor fontHighlightColor_ = 0;
    OleColor maskColor_ = 0xFFFFFF;
    bool maskColorEnabled_ = true;
    OleColor contourColor_ = 0x800000;
    std::int32_t contourStyle_ = Contour3D;
    std::int32_t roundedValue_ = 0;
    bool roundedBordersByTheme_ = true;
    std::int32_t gradientDirection_ = GradientDiagonal;
    bool rightToLeft_ = false;
    ButtonPictures pictures_;
    std::int32_t pictureAlign_ = AlignCentre;
    std::int32_t pictureDisabledStyle_ = DisabledPictureUnchanged;
    std::int32_t fontAutoSize_ = AutoSizeOff;
    float baseFontSize_ = 0;
    bool autoSizeApplied_ = false;
    bool fittingFont_ = false;
    base::FontHandle narrowedFont_;

    std::int32_t state_ = 0;
    bool hasFocus_ = false;
    bool shown_ = false;
    LONG announcedState_ = 0;
    std::int32_t lastMouseUpButton_ = 0;
    std::int16_t lastKeyDown_ = 0;
    WindowPlace place_;
    CaptionPlace captionPlace_{{}, DT_CENTER | DT_WORDBREAK};
    const ButtonStyle* drawnStyle_ = nullptr;  // the row that drew last
    WindowShape windowShape_;
    DSubclass subclassControl_;
};

}  // namespace controls
