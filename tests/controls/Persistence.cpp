// What controls store, under which keys and in which order.
#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "controls/TextBox/TextBox.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/ControlContract.h"

namespace tests {

class Persistence : public FormFixture {
protected:
    /// The keys of a control's node, without those of its place.
    std::string Keys(const std::string& kind, const std::string& stored)
    {
        Open(kind + " C { Width = 1500 Height = 450 " + stored + " }");
        std::string keys;
        const auto written = host::ParseForm(form->Write());
        for (const host::Property& property : written.root.children.at(0).properties)
            keys += Narrow(property.key) + " ";
        return keys.substr(keys.find("TabIndex ") + 9);
    }
};

constexpr const char* buttonStored =
    R"(CaptionHide = 1 CaptionUniChars = "41" Caption = "c" FontAutoSize = 2 ToolTipTextW = "t" ForceTrueType = 1
    GradientDirection = 2 CaptionFx = 1 RoundedValue = 6 ContourColor = 0x00800000 ContourStyle = 1 PictureDisabledStyle = 2 Style = 10
    UseClassicTheme = 0 CaptionAlign = 1 PictureAlign = 2 NonThemeStyle = 3 Enabled = False ShowFocus = 1 USeCustomColors = 1 BackColor = 0x00000001
    BackColorDisabled = 0x00000002 HighlightColor = 0x00000003 FontColor = 0x00000004 FontHighlightColor = 0x00000005 Tooltiptitle = "tt"
    ToolTipIcon = 1 TooltipBalloon = 1 ToolTipCentred = 1 ToolTipWidth = 50 ToolTipBackColor = 0x00E1FFFF ToolTipForeColor = 0x00000006 ButtonType = 1
    Value = 1 MaskColorEnabled = 1 MaskColor = 0x00000000 MousePointer = 2 RoundedBordersByTheme = 0 RightToLeft = True Font = Font("Tahoma", 10))";

constexpr const char* frameStored = R"(BackStyle = 1 DragDropEnabled = 1 Invisible = 1 BorderRound = 4 BorderColorDark = 0x00000001
    BorderColorLight = 0x00000002 ToolTipTextW = "t" Tooltiptitle = "tt" ToolTipIcon = 1 TooltipBalloon = 1 ToolTipCentred = 1 ToolTipWidth = 50
    ToolTipBackColor = 0x00000003 ToolTipForeColor = 0x00000004 ForceTrueType = 1 UseClassicTheme = 1 EnableDisableChilds = 1 BackColor = 0x00000005
    ForeColor = 0x00000006 BorderStyle = 0 OLEDropMode = 1 Caption = "c" Enabled = 0 Appearance = 2 Font = Font("Tahoma", 10))";

constexpr const char* checkStored =
    R"(BackStyle = 0 AlignRight = 1 FontAutoSize = 0 BorderStyle = 2 ToolTipTextW = "t" Tooltiptitle = "tt" ToolTipIcon = 1
    TooltipBalloon = 1 ToolTipCentred = 1 ToolTipWidth = 50 TooltipBackColor = 0x00000003 ToolTipForeColor = 0x00000004 ForceTrueType = 1 AutoSize = 1
    ForeColor = 0x00000001 BackColor = 0x00000002 MultiLine = 1 Transparent = 1 Style = 1 Alignment = 2 Caption = "c" Value = 2
    Font = Font("Tahoma", 10) UseClassicTheme = 1 Enabled = 0)";

constexpr const char* textStored =
    R"(CaseStyle = 1 TrimText = 1 MaxLength = 20 BorderStyle = 1 PasswordChar = 42 ToolTipTextW = "t" ForceTrueType = 1
    EnhacedLineComputing = 1 ToolTipBalloon = 1 ToolTipBackColor = 0x00000003 ToolTipForeColor = 0x00000004 ToolTipCentred = 1 ToolTipWidth = 50
    BackColor = 0x00000001 BackColorSelected = 0x00000002 BackColorDisabled = 0x00000005 ForeColor = 0x00000006 TabKeyTextual = 1 Text = "TEXT"
    Font = Font("Tahoma", 10) UseClassicTheme = 1 AllowOnlyAlphabetics = 1 AllowOnlyChars = "1" Locked = 1 HideSelection = 0 MultiLine = 1 ScrollBars = 2
    WordWrap = 2 DragDropEnabled = 1 Enabled = 0)";

TEST_F(Persistence, EveryControl_KeepsTheContract)
{
    const std::pair<const char*, const char*> kinds[] = {
        {"Frame", frameStored}, {"CommandButton", buttonStored}, {"CheckBox", checkStored}, {"TextBox", textStored}};
    for (const auto& [kind, stored] : kinds) {
        SCOPED_TRACE(kind);
        KeepsControlContract(factory, kind, stored);
        KeepsControlContract(factory, kind, "");
    }
}

TEST_F(Persistence, Keys_AreWrittenInTheirOrder)
{
    const std::tuple<const char*, const char*, const char*> kinds[] = {
        {"Frame", frameStored,
         "BackStyle DragDropEnabled Invisible BorderRound BorderColorDark BorderColorLight ToolTipTextW Tooltiptitle ToolTipIcon "
         "TooltipBalloon ToolTipCentred ToolTipWidth ToolTipBackColor ToolTipForeColor ForceTrueType UseClassicTheme EnableDisableChilds "
         "BackColor ForeColor BorderStyle OLEDropMode Caption Enabled Appearance Font "},
        {"CommandButton", buttonStored,
         "CaptionHide CaptionUniChars Caption FontAutoSize ToolTipTextW ForceTrueType GradientDirection CaptionFx RoundedValue "
         "ContourColor ContourStyle Picture PictureOver PictureDown PictureDisabled PictureDisabledStyle Style NonThemeStyle PictureAlign "
         "CaptionAlign Enabled ShowFocus USeCustomColors "
         "BackColor BackColorDisabled HighlightColor FontColor FontHighlightColor Tooltiptitle ToolTipIcon TooltipBalloon ToolTipCentred "
         "ToolTipWidth ToolTipBackColor ToolTipForeColor Font ButtonType Value MaskColor MaskColorEnabled MousePointer "
         "RoundedBordersByTheme RightToLeft "},
        {"CheckBox", checkStored,
         "AlignRight BorderStyle ToolTipTextW Tooltiptitle ToolTipIcon TooltipBalloon ToolTipCentred ToolTipWidth TooltipBackColor "
         "ToolTipForeColor ForceTrueType AutoSize ForeColor BackColor MultiLine Transparent Style Alignment Caption Value Font "
         "UseClassicTheme Enabled "},
        {"TextBox", textStored,
         "CaseStyle TrimText MaxLength BorderStyle PasswordChar ToolTipTextW ForceTrueType EnhacedLineComputing ToolTipBalloon "
         "ToolTipBackColor ToolTipForeColor ToolTipCentred ToolTipWidth BackColor BackColorSelected BackColorDisabled ForeColor "
         "TabKeyTextual Text Font UseClassicTheme AllowOnlyAlphabetics AllowOnlyChars Locked HideSelection MultiLine ScrollBars WordWrap "
         "DragDropEnabled Enabled "}};
    for (const auto& [kind, stored, keys] : kinds) {
        form = std::make_unique<KeyForm>();
        EXPECT_EQ(Keys(kind, stored), keys) << kind;
    }
}

TEST_F(Persistence, FrameAndItsSurface_ShareAKey)
{
    const struct {
        const char* stored;
        int frame;
        const char* keys;
    } files[] = {{"", 0, "Tooltiptitle ToolTipIcon TooltipBalloon "},
                 {"BackStyle = 1", 1, "BackStyle Tooltiptitle ToolTipIcon TooltipBalloon "},
                 {"BackStyle = 0", 0, "Tooltiptitle ToolTipIcon TooltipBalloon BackStyle "},
                 {"BackStyle = 1 BackStyle = 0", 1, "BackStyle Tooltiptitle ToolTipIcon TooltipBalloon BackStyle "}};
    for (const auto& [stored, frame, keys] : files) {
        form = std::make_unique<KeyForm>();
        EXPECT_EQ(Keys("Frame", stored), keys);
        EXPECT_EQ(Get<controls::Frame>("C").BackStyle(), frame) << stored;
    }
}

TEST_F(Persistence, Designer_MakesWindowsButWatchesNone)
{
    for (const bool userMode : {true, false}) {
        form = std::make_unique<KeyForm>();
        Open("CheckBox C { Width = 1500 Height = 300 Caption = \"c\" }", userMode);
        auto& box = Get<controls::CheckBox>("C");
        Click(box.hWnd());
        EXPECT_EQ(GetFocus(), box.hWnd()) << "the button itself has heard of it";
        EXPECT_EQ(box.Value(), userMode);
    }
}

}  // namespace tests
