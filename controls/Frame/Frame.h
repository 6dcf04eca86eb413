// Frame: a group box that holds other controls.
#pragma once

#include "controls/DSubclass.h"
#include "controls/Frame/FrameValues.h"
#include "controls/LibraryControl.h"
#include "controls/WindowDc.h"
#include "host/Event.h"

#include <cstdint>
#include <vector>

namespace controls {

template <class Control>
class PropertyTable;

/// A border round its area with a caption set into the top edge. Never takes the keyboard focus.
class Frame final : public LibraryControl {
public:
    Frame();

    [[nodiscard]] base::StringView Kind() const override { return TEXT("Frame"); }
    [[nodiscard]] bool CanGetFocus() const override { return false; }
    [[nodiscard]] bool TabStop() const { return false; }
    [[nodiscard]] host::AccessibleFacts Accessibility() override;

    /// One "&" marks the access key, "&&" is a literal ampersand. Reading makes the window's text equal to it again.
    [[nodiscard]] base::String Caption();
    void Caption(const base::String& caption);
    [[nodiscard]] base::String Default() { return Caption(); }
    void Default(const base::String& caption) { Caption(caption); }

    [[nodiscard]] OleColor BackColor() const { return GetSurface().BackColor(); }
    void BackColor(OleColor color);
    [[nodiscard]] OleColor ForeColor() const { return GetSurface().ForeColor(); }
    void ForeColor(OleColor color);
    /// 0 own colours; 1 takes both from the container at each drawing.
    [[nodiscard]] std::int32_t BackStyle() const { return backStyle_; }
    void BackStyle(std::int32_t style) { Keep(backStyle_, style, TEXT("BackStyle"), After::Redraw); }
    /// 0 none, 1 border.
    [[nodiscard]] std::int32_t BorderStyle() const { return borderStyle_; }
    void BorderStyle(std::int32_t style) { Keep(borderStyle_, style, TEXT("BorderStyle"), After::Redraw); }
    /// Classic look: 0 flat, 1 etched, 2 etched the other way round.
    [[nodiscard]] std::uint8_t Appearance() const { return appearance_; }
    void Appearance(std::uint8_t appearance) { Keep(appearance_, appearance, TEXT("Appearance"), After::Redraw); }
    /// Corner diameter of the classic border in pixels, 0 to 20; other values become the nearest of these.
    [[nodiscard]] std::int32_t BorderRound() const { return borderRound_; }
    void BorderRound(std::int32_t round);
    [[nodiscard]] OleColor BorderColorDark() const { return borderColorDark_; }
    void BorderColorDark(OleColor color) { Keep(borderColorDark_, color, TEXT("BorderColorDark"), After::Redraw); }
    [[nodiscard]] OleColor BorderColorLight() const { return borderColorLight_; }
    void BorderColorLight(OleColor color) { Keep(borderColorLight_, color, TEXT("BorderColorLight"), After::Redraw); }
    /// Only the background is drawn.
    [[nodiscard]] bool Invisible() const { return invisible_; }
    void Invisible(bool invisible) { Keep(invisible_, invisible, TEXT("Invisible"), After::Redraw); }
    [[nodiscard]] bool Enabled() const override { return enabled_; }
    void Enabled(bool enabled) override;
    /// Setting `Enabled` also enables or disables the controls in the frame; those that were disabled before stay so.
    [[nodiscard]] bool EnableDisableChilds() const { return enableDisableChilds_; }
    void EnableDisableChilds(bool enable);
    /// The window accepts files from the shell.
    [[nodiscard]] bool DragDropEnabled() const { return dragDropEnabled_; }
    void DragDropEnabled(bool enable);
    /// 0 none, 1 manual: data may be dropped here.
    [[nodiscard]] std::int16_t OLEDropMode() const { return Input().OleDropMode(); }
    void OLEDropMode(std::int16_t mode);
    [[nodiscard]] bool UseClassicTheme() const { return useClassicTheme_; }
    void UseClassicTheme(bool classic) { Keep(useClassicTheme_, classic, TEXT("UseClassicTheme"), After::Redraw); }

    void Refresh() override { DrawFrame(); }
    void DrawFrame();
    /// Paints the top row of the window in the background colour, over a dark line that Windows otherwise leaves there.
    void FixBlackLine();
    /// Does the same once more 10 ms later, when the paint is over.
    void FixBlackLineRetard();
    /// Drags data from here: OLEStartDrag says what. Returns when the drag is over; the frame may be gone then.
    void OLEDrag() { Input().OLEDrag(); }

    host::Event<1> Click;
    host::Event<2> DblClick;
    host::Event<3> ContextMenu;
    host::Event<4, std::int16_t&, std::int16_t&, float&, float&> MouseDown;
    host::Event<5, std::int16_t&, std::int16_t&, float&, float&> MouseMove;
    host::Event<6, std::int16_t&, std::int16_t&, float&, float&> MouseUp;
    host::Event<7, std::vector<base::String>&, std::int16_t&> DragDropFile;
    // See host::OleDragEvents.
    host::Event<8, std::int32_t&> OLECompleteDrag;
    host::Event<9, host::DataObject&, std::int32_t&, std::int16_t&, std::int16_t&, float&, float&> OLEDragDrop;
    host::Event<10, host::DataObject&, std::int32_t&, std::int16_t&, std::int16_t&, float&, float&, std::int16_t&> OLEDragOver;
    host::Event<11, std::int32_t&, bool&> OLEGiveFeedback;
    host::Event<12, host::DataObject&, std::int16_t&> OLESetData;
    host::Event<13, host::DataObject&, std::int32_t&> OLEStartDrag;

private:
    static const PropertyTable<Frame>& Properties();

    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(const host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Terminate() override;
    void UserControl_Paint() override;
    void UserControl_Resize() override;
    void UserControl_AmbientChanged(base::StringView name) override;
    void UserControl_Click() override { Click.Raise(); }
    void UserControl_DblClick() override { DblClick.Raise(); }
    void UserControl_MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override
    {
        MouseDown.Raise(button, shift, x, y);
    }
    void UserControl_MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override
    {
        MouseMove.Raise(button, shift, x, y);
    }
    void UserControl_MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override { MouseUp.Raise(button, shift, x, y); }
    void UserControl_OLECompleteDrag(std::int32_t& effect) override { OLECompleteDrag.Raise(effect); }
    void UserControl_OLEDragDrop(host::DataObject& data, std::int32_t& effect, std::int16_t& button, std::int16_t& shift, float& x,
                                 float& y) override
    {
        OLEDragDrop.Raise(data, effect, button, shift, x, y);
    }
    void UserControl_OLEDragOver(host::DataObject& data, std::int32_t& effect, std::int16_t& button, std::int16_t& shift, float& x,
                                 float& y, std::int16_t& state) override
    {
        OLEDragOver.Raise(data, effect, button, shift, x, y, state);
    }
    void UserControl_OLEGiveFeedback(std::int32_t& effect, bool& defaultCursors) override { OLEGiveFeedback.Raise(effect, defaultCursors); }
    void UserControl_OLESetData(host::DataObject& data, std::int16_t& dataFormat) override { OLESetData.Raise(data, dataFormat); }
    void UserControl_OLEStartDrag(host::DataObject& data, std::int32_t& allowedEffects) override
    {
        OLEStartDrag.Raise(data, allowedEffects);
    }

    void FontChanged() override { DrawFrame(); }
    void Follow(After) override { DrawFrame(); }
    void Start();
    void TakeBackColor(OleColor color);
    void TakeForeColor(OleColor color);
    void TellContained(base::StringView ambient);
    void RepaintWindow();
    void EnableChildren(bool enabled);
    void AcceptFiles(bool accept);
    void SubclassControl_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled);
    void OnDropFiles(WPARAM drop);

    base::String caption_;
    std::int32_t backStyle_ = OwnColors;
    std::int32_t borderStyle_ = FrameWithBorder;
    std::uint8_t appearance_ = AppearanceEtched;
    std::int32_t borderRound_ = 0;
    OleColor borderColorDark_ = host::SystemColor(COLOR_BTNSHADOW);
    OleColor borderColorLight_ = host::SystemColor(COLOR_BTNHIGHLIGHT);
    bool invisible_ = false;
    bool enabled_ = true;
    bool enableDisableChilds_ = false;
    bool dragDropEnabled_ = false;
    bool useClassicTheme_ = false;

    std::int16_t surfaceBackStyle_ = 1;  // 0 transparent, 1 opaque: only kept, for a frame paints every pixel

    bool drawnOnce_ = false;
    bool fixPending_ = false;
    std::vector<base::String> disabledBefore_;
    WindowDc windowDc_;
    DSubclass subclassControl_;
};

}  // namespace controls
