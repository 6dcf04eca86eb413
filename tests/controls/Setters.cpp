// Every setter of every control: what it tells the container, and what is stored after it.
#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "controls/TextBox/TextBox.h"
#include "tests/controls/FormFixture.h"

#include <sstream>

namespace tests {

namespace {

template <class Control>
struct Setter {
    const char* stored;  // key and value; a value left out means: not stored, because it is the default
    void (*set)(Control&);
    const char* told;  // the names, each with a blank behind it; a key alone stands for itself
};

#define SET(Control, call) [](controls::Control& control) { control.call; }

using Button = controls::CommandButton;

const Setter<Button> buttonSetters[] = {
    {"CaptionHide = 1", SET(CommandButton, CaptionHide(true)), ""},
    {"CaptionUniChars = \"41\"", SET(CommandButton, CaptionUniChars(TEXT("41"))), "Caption CaptionUniChars "},
    {"Caption = \"c\"", SET(CommandButton, Caption(TEXT("c"))), ""},
    {"FontAutoSize = 2", SET(CommandButton, FontAutoSize(2)), ""},
    {"ToolTipTextW = \"t\"", SET(CommandButton, ToolTipTextW(TEXT("t"))), ""},
    {"ForceTrueType = 1", SET(CommandButton, ForceTrueType(true)), "ForceTrueType Font "},
    {"GradientDirection = 4", SET(CommandButton, GradientDirection(4)), ""},
    {"CaptionFx = 3", SET(CommandButton, CaptionFx(3)), ""},
    {"RoundedValue = 0", SET(CommandButton, RoundedValue(-3)), ""},
    {"ContourColor = 0x00000001", SET(CommandButton, ContourColor(1)), ""},
    {"ContourColor", SET(CommandButton, ContourColor(0)), "-"},
    {"ContourStyle = 1", SET(CommandButton, ContourStyle(1)), ""},
    {"PictureDisabledStyle = 2", SET(CommandButton, PictureDisabledStyle(2)), ""},
    {"Style = 10", SET(CommandButton, Style(10)), "UseClassicTheme Style "},
    {"UseClassicTheme = 1", SET(CommandButton, UseClassicTheme(true)), "Style UseClassicTheme "},
    {"CaptionAlign = 4", SET(CommandButton, CaptionAlign(4)), ""},
    {"PictureAlign = 0", SET(CommandButton, PictureAlign(0)), ""},
    {"NonThemeStyle = 3", SET(CommandButton, NonThemeStyle(3)), ""},
    {"Enabled = False", SET(CommandButton, Enabled(false)), ""},
    {"ShowFocus = 1", SET(CommandButton, ShowFocus(true)), ""},
    {"USeCustomColors = 1", SET(CommandButton, UseCustomColors(true)), "UseCustomColors "},
    {"BackColor = 0x00000001", SET(CommandButton, BackColor(1)), ""},
    {"BackColorDisabled = 0x00000001", SET(CommandButton, BackColorDisabled(1)), ""},
    {"HighlightColor = 0x00000001", SET(CommandButton, HighLightColor(1)), ""},
    {"FontColor = 0x00000001", SET(CommandButton, FontColor(1)), ""},
    {"FontHighlightColor = 0x00000001", SET(CommandButton, FontHighlightColor(1)), ""},
    {"Tooltiptitle = \"t\"", SET(CommandButton, TooltipTitle(TEXT("t"))), "TooltipTitle "},
    {"ToolTipIcon = 1", SET(CommandButton, ToolTipIcon(1)), "TooltipIcon "},
    {"TooltipBalloon = 1", SET(CommandButton, ToolTipBalloon(true)), "ToolTipBalloon "},
    {"ToolTipCentred = 1", SET(CommandButton, ToolTipCentred(true)), ""},
    {"ToolTipWidth = 9", SET(CommandButton, ToolTipWidth(9)), ""},
    {"ToolTipBackColor = 0x00000001", SET(CommandButton, TooltipBackColor(1)), ""},
    {"ToolTipForeColor = 0x00000001", SET(CommandButton, ToolTipForeColor(1)), ""},
    {"ButtonType = 1", SET(CommandButton, ButtonType(1)), ""},
    {"Value = 1", SET(CommandButton, Value(1)), ""},
    {"Value = 1", SET(CommandButton, Default(1)), ""},
    {"Value", SET(CommandButton, Value(2)), "-"},
    {"MaskColorEnabled = 1", SET(CommandButton, MaskColorEnabled(true)), ""},
    {"MaskColor = 0x00000001", SET(CommandButton, MaskColor(1)), ""},
    {"MousePointer = 11", SET(CommandButton, MousePointer(11)), ""},
    {"RoundedBordersByTheme = 0", SET(CommandButton, RoundedBordersByTheme(false)), ""},
    {"RightToLeft = True", SET(CommandButton, RightToLeft(true)), ""},
};

const Setter<controls::Frame> frameSetters[] = {
    {"BackStyle = 1", SET(Frame, BackStyle(1)), ""},
    {"DragDropEnabled = 1", SET(Frame, DragDropEnabled(true)), ""},
    {"Invisible = 1", SET(Frame, Invisible(true)), ""},
    {"BorderRound = 20", SET(Frame, BorderRound(25)), ""},
    {"BorderColorDark = 0x00000001", SET(Frame, BorderColorDark(1)), ""},
    {"BorderColorLight = 0x00000001", SET(Frame, BorderColorLight(1)), ""},
    {"ForceTrueType = 1", SET(Frame, ForceTrueType(true)), "ForceTrueType Font "},
    {"UseClassicTheme = 1", SET(Frame, UseClassicTheme(true)), ""},
    {"EnableDisableChilds = 1", SET(Frame, EnableDisableChilds(true)), ""},
    {"BackColor = 0x00000001", SET(Frame, BackColor(1)), ""},
    {"ForeColor = 0x00000001", SET(Frame, ForeColor(1)), ""},
    {"BorderStyle = 0", SET(Frame, BorderStyle(0)), ""},
    {"OLEDropMode = 1", SET(Frame, OLEDropMode(1)), ""},
    {"Caption = \"c\"", SET(Frame, Default(TEXT("c"))), ""},
    {"Enabled = 0", SET(Frame, Enabled(false)), ""},
    {"Appearance = 2", SET(Frame, Appearance(2)), ""},
};

const Setter<controls::CheckBox> checkBoxSetters[] = {
    {"BackStyle = 1", SET(CheckBox, BackStyle(1)), ""},
    {"AlignRight = 1", SET(CheckBox, AlignRight(true)), ""},
    {"FontAutoSize = 1", SET(CheckBox, FontAutoSize(true)), ""},
    {"BorderStyle = 4", SET(CheckBox, BorderStyle(4)), ""},
    {"ForceTrueType = 1", SET(CheckBox, ForceTrueType(true)), "ForceTrueType Font "},
    {"AutoSize = 1", SET(CheckBox, AutoSize(true)), ""},
    {"ForeColor = 0x00000001", SET(CheckBox, ForeColor(1)), ""},
    {"ForeColor", SET(CheckBox, ForeColor(0x80000012)), "-"},
    {"BackColor = 0x00000001", SET(CheckBox, BackColor(1)), ""},
    {"BackColor", SET(CheckBox, BackColor(0x8000000F)), "-"},
    {"MultiLine = 1", SET(CheckBox, MultiLine(true)), ""},
    {"Transparent = 1", SET(CheckBox, Transparent(true)), ""},
    {"Style = 1", SET(CheckBox, Style(1)), ""},
    {"Style", SET(CheckBox, Style(0)), "-"},
    {"Alignment = 2", SET(CheckBox, Alignment(2)), "TextAlignment "},
    {"Caption = \"c\"", SET(CheckBox, Caption(TEXT("c"))), ""},
    {"Value = 2", SET(CheckBox, Default(2)), ""},
    {"UseClassicTheme = 1", SET(CheckBox, UseClassicTheme(true)), ""},
    {"Enabled = 0", SET(CheckBox, Enabled(false)), ""},
};

const Setter<controls::TextBox> textBoxSetters[] = {
    {"CaseStyle = 1", SET(TextBox, CaseStyle(1)), ""},
    {"TrimText = 1", SET(TextBox, TrimText(true)), ""},
    {"MaxLength = 9", SET(TextBox, MaxLength(9)), ""},
    {"BorderStyle = 1", SET(TextBox, BorderStyle(1)), ""},
    {"PasswordChar = 42", SET(TextBox, PasswordChar(TEXT("*"))), ""},
    {"PasswordChar", SET(TextBox, PasswordChar(TEXT("**"))), "-"},
    {"ForceTrueType = 1", SET(TextBox, ForceTrueType(true)), "ForceTrueType Font "},
    {"EnhacedLineComputing", SET(TextBox, EnhacedLineComputing(true)), "-"},
    {"BackColor = 0x00000001", SET(TextBox, BackColor(1)), ""},
    {"BackColorSelected = 0x00000001", SET(TextBox, BackColorSelected(1)), ""},
    {"BackColorDisabled = 0x00000001", SET(TextBox, BackColorDisabled(1)), ""},
    {"ForeColor = 0x00000001", SET(TextBox, ForeColor(1)), ""},
    {"TabKeyTextual = 1", SET(TextBox, TabKeyTextual(true)), ""},
    {"UseClassicTheme = 1", SET(TextBox, UseClassicTheme(true)), ""},
    {"AllowOnlyNumbers = 1", SET(TextBox, AllowOnlyNumbers(true)), "AllowOnlyAlphabetics AllowOnlyChars AllowOnlyNumbers "},
    {"AllowOnlyAlphabetics = 1", SET(TextBox, AllowOnlyAlphabetics(true)), ""},
    {"AllowOnlyChars = \"a\"", SET(TextBox, AllowOnlyChars(TEXT("a"))), ""},
    {"Locked = 1", SET(TextBox, Locked(true)), ""},
    {"HideSelection = 0", SET(TextBox, HideSelection(false)), ""},
    {"ScrollBars = 3", SET(TextBox, ScrollBars(3)), ""},
    {"UseSystemPasswordChar = 1", SET(TextBox, UseSystemPasswordChar(true)), ""},
    {"WordWrap = 2", SET(TextBox, WordWrap(2)), "ScrollBars WordWrap "},
    {"DragDropEnabled = 1", SET(TextBox, DragDropEnabled(true)), ""},
    {"Enabled = 0", SET(TextBox, Enabled(false)), ""},
};

#undef SET

}  // namespace

class Setters : public FormFixture {
protected:
    template <class Control, std::size_t count>
    void Hold(const char* kind, const Setter<Control> (&setters)[count])
    {
        for (const Setter<Control>& setter : setters) {
            const std::string line = setter.stored;
            SCOPED_TRACE(kind + (" " + line));
            form = std::make_unique<KeyForm>();
            Open(std::string(kind) + " C { Width = 1500 Height = 450 TabIndex = 1 }");
            std::string told;
            form->PropertyChanged.Connect([&](host::Control&, base::StringView name) {
                // An edit that is made anew is given its text again, and reports that.
                if (name != TEXT("Text"))
                    told += Narrow(name) + " ";
            });
            setter.set(Get<Control>("C"));
            const std::string key = line.substr(0, line.find(' '));
            EXPECT_EQ(told, *setter.told == '-' ? "" : *setter.told != 0 ? setter.told : key + " ");
            const std::string stored = form->Write();
            const bool isLeftOut = line == key;
            EXPECT_EQ(stored.find("    " + (isLeftOut ? key + " = " : line + "\n")) == std::string::npos, isLeftOut) << stored;
        }
    }
};

TEST_F(Setters, OfACommandButton)
{
    Hold("CommandButton", buttonSetters);
}

TEST_F(Setters, OfAFrame)
{
    Hold("Frame", frameSetters);
}

TEST_F(Setters, OfACheckBox)
{
    Hold("CheckBox", checkBoxSetters);
}

TEST_F(Setters, OfATextBox)
{
    Hold("TextBox", textBoxSetters);
}

}  // namespace tests
