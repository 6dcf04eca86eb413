// Every stored property of every control, in the order of writing: its key, type and default, what is stored with it, what setting it
// tells the container.
#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "controls/TextBox/TextBox.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/ControlContract.h"

#include <map>
#include <set>
#include <sstream>

namespace tests {

namespace {

/// B a byte, S and I whole numbers of 16 and 32 bits, C a colour, L a truth value by name, T a text, F a font.
struct Key {
    const char* name;
    char type;
    std::string standard;  // "@n": the RGB value of system colour n
    std::string other;
    void (*set)(host::Control&);  // by code to `other`; null where a test of its own does it
    const char* told = "";        // to the container, each name with a blank behind it; empty: the key
    const char* also = "";        // what `other` brings with it into the file
    bool always = false;          // stored even when it is the default
};

#define SET(Kind, call) [](host::Control& control) { static_cast<controls::Kind&>(control).call; }

const std::vector<Key> frame = {
    {"DragDropEnabled", 'B', "0", "1", SET(Frame, DragDropEnabled(true))},
    {"Invisible", 'B', "0", "1", SET(Frame, Invisible(true))},
    {"BorderRound", 'I', "0", "20", SET(Frame, BorderRound(25))},
    {"BorderColorDark", 'C', "0x80000010", "0x00000001", SET(Frame, BorderColorDark(1))},
    {"BorderColorLight", 'C', "0x80000014", "0x00000001", SET(Frame, BorderColorLight(1))},
    {"ToolTipTextW", 'T', "\"\"", "\"t\"", SET(Frame, ToolTipTextW(TEXT("t")))},
    {"Tooltiptitle", 'T', "\"\"", "\"t\"", SET(Frame, TooltipTitle(TEXT("t"))), "TooltipTitle ", "", true},
    {"ToolTipIcon", 'I', "0", "3", SET(Frame, ToolTipIcon(3)), "", "", true},
    {"TooltipBalloon", 'B', "0", "1", SET(Frame, ToolTipBalloon(true)), "ToolTipBalloon ", "", true},
    {"ToolTipCentred", 'B', "0", "1", SET(Frame, ToolTipCentred(true))},
    {"ToolTipWidth", 'I', "0", "70000", SET(Frame, ToolTipWidth(70000))},
    {"ToolTipBackColor", 'C', "0x80000018", "0x00000001", SET(Frame, TooltipBackColor(1)), "TooltipBackColor "},
    {"ToolTipForeColor", 'C', "0x80000017", "0x00000001", SET(Frame, ToolTipForeColor(1))},
    {"ForceTrueType", 'B', "0", "1", SET(Frame, ForceTrueType(true))},
    {"UseClassicTheme", 'B', "0", "1", SET(Frame, UseClassicTheme(true))},
    {"EnableDisableChilds", 'B', "0", "1", SET(Frame, EnableDisableChilds(true))},
    {"BackColor", 'C', "0x8000000F", "0x00000001", SET(Frame, BackColor(1))},
    {"ForeColor", 'C', "0x80000012", "0x00000001", SET(Frame, ForeColor(1))},
    {"BorderStyle", 'I', "1", "0", SET(Frame, BorderStyle(0))},
    {"OLEDropMode", 'S', "0", "1", SET(Frame, OLEDropMode(1))},
    {"Caption", 'T', "\"C\"", "\"c\"", SET(Frame, Default(TEXT("c")))},
    {"Enabled", 'B', "1", "0", SET(Frame, Enabled(false))},
    {"Appearance", 'B', "1", "2", SET(Frame, Appearance(2))},
    {"Font", 'F', "Font(\"Arial\", 9)", "Font(\"Tahoma\", 10)", nullptr},
};

// Two by two pixels each.
constexpr const char* bitmap =
    "Bitmap(\"Qk1GAAAAAAAAADYAAAAoAAAAAgAAAAIAAAABABgAAAAAABAAAAAAAAAAAAAAAAAAAAAAAAAA/wAA////AAAAAP8A/wAAAA==\")";
constexpr const char* icon =
    "Icon(\"AAABAAEAAgIAAAEAIABAAAAAFgAAACgAAAACAAAABAAAAAEAIAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAYFBAADAgEAAAAAAAgAAAAEAAAAA=\")";

const std::vector<Key> button = {
    {"CaptionHide", 'B', "0", "1", SET(CommandButton, CaptionHide(true))},
    {"CaptionUniChars", 'T', "\"\"", "\"41\"", SET(CommandButton, CaptionUniChars(TEXT("41"))), "Caption CaptionUniChars ", "Caption "},
    {"Caption", 'T', "\"\"", "\"c\"", SET(CommandButton, Caption(TEXT("c")))},
    {"FontAutoSize", 'I', "0", "70000", SET(CommandButton, FontAutoSize(70000))},
    {"ToolTipTextW", 'T', "\"\"", "\"t\"", SET(CommandButton, ToolTipTextW(TEXT("t")))},
    {"ForceTrueType", 'B', "0", "1", SET(CommandButton, ForceTrueType(true))},
    {"GradientDirection", 'I', "1", "70000", SET(CommandButton, GradientDirection(70000))},
    {"CaptionFx", 'I', "0", "70000", SET(CommandButton, CaptionFx(70000))},
    {"RoundedValue", 'I', "5", "0", SET(CommandButton, RoundedValue(-3))},
    {"ContourColor", 'C', "0x00000000", "0x00000001", SET(CommandButton, ContourColor(1))},
    {"ContourStyle", 'I', "2", "1", SET(CommandButton, ContourStyle(1))},
    {"Picture", 'P', "None", bitmap, nullptr, "", "", true},
    {"PictureOver", 'P', "None", icon, nullptr, "", "", true},
    {"PictureDown", 'P', "None", bitmap, nullptr, "", "", true},
    {"PictureDisabled", 'P', "None", bitmap, nullptr, "", "", true},
    {"PictureDisabledStyle", 'I', "0", "70000", SET(CommandButton, PictureDisabledStyle(70000))},
    {"Style", 'I', "7", "10", SET(CommandButton, Style(10)), "UseClassicTheme Style "},
    {"NonThemeStyle", 'I', "0", "70000", SET(CommandButton, NonThemeStyle(70000))},
    {"UseClassicTheme", 'B', "0", "1", SET(CommandButton, UseClassicTheme(true)), "Style UseClassicTheme ", "Style "},
    {"PictureAlign", 'I', "1", "0", SET(CommandButton, PictureAlign(0))},
    {"CaptionAlign", 'I', "0", "4", SET(CommandButton, CaptionAlign(4))},
    {"Enabled", 'L', "True", "False", SET(CommandButton, Enabled(false))},
    {"ShowFocus", 'B', "0", "1", SET(CommandButton, ShowFocus(true))},
    {"USeCustomColors", 'B', "0", "1", SET(CommandButton, UseCustomColors(true)), "UseCustomColors "},
    {"BackColor", 'C', "0x8000000F", "0x00000001", SET(CommandButton, BackColor(1))},
    {"BackColorDisabled", 'C', "0x8000000F", "0x00000001", SET(CommandButton, BackColorDisabled(1))},
    {"HighlightColor", 'C', "@13", "0x00000001", SET(CommandButton, HighLightColor(1))},
    {"FontColor", 'C', "@18", "0x00000001", SET(CommandButton, FontColor(1))},
    {"FontHighlightColor", 'C', "@18", "0x00000001", SET(CommandButton, FontHighlightColor(1))},
    {"Tooltiptitle", 'T', "\"\"", "\"t\"", SET(CommandButton, TooltipTitle(TEXT("t"))), "TooltipTitle ", "", true},
    {"ToolTipIcon", 'I', "0", "1", SET(CommandButton, ToolTipIcon(1)), "TooltipIcon ", "", true},
    {"TooltipBalloon", 'B', "0", "1", SET(CommandButton, ToolTipBalloon(true)), "ToolTipBalloon ", "", true},
    {"ToolTipCentred", 'B', "0", "1", SET(CommandButton, ToolTipCentred(true))},
    {"ToolTipWidth", 'I', "0", "70000", SET(CommandButton, ToolTipWidth(70000))},
    {"ToolTipBackColor", 'C', "0x80000018", "0x00000001", SET(CommandButton, TooltipBackColor(1))},
    {"ToolTipForeColor", 'C', "0x80000017", "0x00000001", SET(CommandButton, ToolTipForeColor(1))},
    {"Font", 'F', "Font(\"Arial\", 9)", "Font(\"Tahoma\", 10)", nullptr, "", "", true},
    {"ButtonType", 'I', "0", "1", SET(CommandButton, ButtonType(1))},
    {"Value", 'I', "0", "1", SET(CommandButton, Value(1))},
    {"MaskColor", 'C', "0x00C0C0C0", "0x00000001", SET(CommandButton, MaskColor(1))},
    {"MaskColorEnabled", 'B', "0", "1", SET(CommandButton, MaskColorEnabled(true))},
    {"MousePointer", 'S', "0", "11", SET(CommandButton, MousePointer(11))},
    {"RoundedBordersByTheme", 'B', "1", "0", SET(CommandButton, RoundedBordersByTheme(false))},
    {"RightToLeft", 'L', "False", "True", SET(CommandButton, RightToLeft(true))},
};

const std::vector<Key> checkBox = {
    {"BackStyle", 'I', "0", "2", SET(CheckBox, BackStyle(2))},
    {"AlignRight", 'B', "0", "1", SET(CheckBox, AlignRight(true))},
    {"FontAutoSize", 'B', "0", "1", SET(CheckBox, FontAutoSize(true))},
    {"BorderStyle", 'B', "0", "4", SET(CheckBox, BorderStyle(4))},
    {"ToolTipTextW", 'T', "\"\"", "\"t\"", SET(CheckBox, ToolTipTextW(TEXT("t")))},
    {"Tooltiptitle", 'T', "\"\"", "\"t\"", SET(CheckBox, TooltipTitle(TEXT("t"))), "TooltipTitle "},
    {"ToolTipIcon", 'I', "0", "3", SET(CheckBox, ToolTipIcon(3))},
    {"TooltipBalloon", 'B', "0", "1", SET(CheckBox, ToolTipBalloon(true)), "ToolTipBalloon "},
    {"ToolTipCentred", 'B', "0", "1", SET(CheckBox, ToolTipCentred(true))},
    {"ToolTipWidth", 'I', "0", "70000", SET(CheckBox, ToolTipWidth(70000))},
    {"TooltipBackColor", 'C', "0x80000018", "0x00000001", SET(CheckBox, TooltipBackColor(1))},
    {"ToolTipForeColor", 'C', "0x80000017", "0x00000001", SET(CheckBox, ToolTipForeColor(1))},
    {"ForceTrueType", 'B', "0", "1", SET(CheckBox, ForceTrueType(true))},
    {"AutoSize", 'B', "0", "1", SET(CheckBox, AutoSize(true))},
    {"ForeColor", 'C', "0x80000012", "0x00000001", SET(CheckBox, ForeColor(1))},
    {"BackColor", 'C', "0x8000000F", "0x00000001", SET(CheckBox, BackColor(1))},
    {"MultiLine", 'B', "0", "1", SET(CheckBox, MultiLine(true))},
    {"Transparent", 'B', "0", "1", SET(CheckBox, Transparent(true))},
    {"Style", 'I', "0", "1", SET(CheckBox, Style(1))},
    {"Alignment", 'I', "0", "2", SET(CheckBox, Alignment(2)), "TextAlignment "},
    {"Caption", 'T', "\"C\"", "\"c\"", SET(CheckBox, Caption(TEXT("c")))},
    {"Value", 'B', "0", "2", SET(CheckBox, Default(2))},
    {"Font", 'F', "Font(\"Arial\", 9)", "Font(\"Tahoma\", 10)", nullptr},
    {"UseClassicTheme", 'B', "0", "1", SET(CheckBox, UseClassicTheme(true))},
    {"Visible", 'L', "True", "False", nullptr},
    {"Enabled", 'B', "1", "0", SET(CheckBox, Enabled(false))},
};

const std::vector<Key> textBox = {
    {"CaseStyle", 'B', "0", "1", SET(TextBox, CaseStyle(1))},
    {"TrimText", 'B', "0", "1", SET(TextBox, TrimText(true))},
    {"MaxLength", 'I', "30000", "70000", SET(TextBox, MaxLength(70000))},
    {"BorderStyle", 'B', "3", "4", SET(TextBox, BorderStyle(4))},
    {"PasswordChar", 'S', "0", "42", SET(TextBox, PasswordChar(TEXT("*")))},
    {"ToolTipTextW", 'T', "\"\"", "\"t\"", SET(TextBox, ToolTipTextW(TEXT("t")))},
    {"ForceTrueType", 'B', "0", "1", SET(TextBox, ForceTrueType(true))},
    {"EnhacedLineComputing", 'B', "0", "1", nullptr},
    {"ToolTipBalloon", 'B', "0", "1", SET(TextBox, ToolTipBalloon(true))},
    {"ToolTipBackColor", 'C', "0x80000018", "0x00000001", SET(TextBox, TooltipBackColor(1)), "TooltipBackColor "},
    {"ToolTipForeColor", 'C', "0x80000017", "0x00000001", SET(TextBox, ToolTipForeColor(1))},
    {"ToolTipCentred", 'B', "0", "1", SET(TextBox, ToolTipCentred(true))},
    {"ToolTipWidth", 'I', "0", "70000", SET(TextBox, ToolTipWidth(70000))},
    {"BackColor", 'C', "0x80000005", "0x00000001", SET(TextBox, BackColor(1))},
    {"BackColorSelected", 'C', "0x80000005", "0x00000001", SET(TextBox, BackColorSelected(1))},
    {"BackColorDisabled", 'C', "0x80000005", "0x00000001", SET(TextBox, BackColorDisabled(1))},
    {"ForeColor", 'C', "0x80000008", "0x00000001", SET(TextBox, ForeColor(1))},
    {"TabKeyTextual", 'B', "0", "1", SET(TextBox, TabKeyTextual(true))},
    {"Text", 'T', "\"C\"", "\"t\"", nullptr},
    {"Font", 'F', "Font(\"Arial\", 9)", "Font(\"Tahoma\", 10)", nullptr},
    {"UseClassicTheme", 'B', "0", "1", SET(TextBox, UseClassicTheme(true))},
    {"AllowOnlyNumbers", 'B', "0", "1", SET(TextBox, AllowOnlyNumbers(true)), "AllowOnlyAlphabetics AllowOnlyChars AllowOnlyNumbers "},
    {"AllowOnlyAlphabetics", 'B', "0", "1", SET(TextBox, AllowOnlyAlphabetics(true))},
    {"AllowOnlyChars", 'T', "\"\"", "\"a\"", SET(TextBox, AllowOnlyChars(TEXT("a")))},
    {"Locked", 'B', "0", "1", SET(TextBox, Locked(true))},
    {"HideSelection", 'B', "1", "0", SET(TextBox, HideSelection(false))},
    {"MultiLine", 'B', "0", "1", nullptr},
    {"ScrollBars", 'I', "0", "3", SET(TextBox, ScrollBars(3))},
    {"UseSystemPasswordChar", 'B', "0", "1", SET(TextBox, UseSystemPasswordChar(true))},
    {"WordWrap", 'I', "0", "2", SET(TextBox, WordWrap(2)), "ScrollBars WordWrap "},
    {"DragDropEnabled", 'B', "0", "1", SET(TextBox, DragDropEnabled(true))},
    {"Enabled", 'B', "1", "0", SET(TextBox, Enabled(false))},
    {"Visible", 'L', "True", "False", nullptr},
};

#undef SET

const struct {
    const char* kind;
    const std::vector<Key>& keys;
    /// What the container stores, or one of the others excludes.
    std::set<std::string> leftOut;
} kinds[] = {{"Frame", frame, {}},
             {"CommandButton", button, {}},
             {"CheckBox", checkBox, {"Visible"}},
             {"TextBox", textBox, {"Visible", "AllowOnlyNumbers"}}};

std::string Standard(const Key& key)
{
    if (key.standard[0] != '@')
        return key.standard;
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(GetSysColor(std::stoi(key.standard.substr(1)))));
    return text;
}

/// A value that the type does not hold and that counts as none.
const std::map<char, const char*> outOfType = {
    {'B', "256"},  {'S', "40000"}, {'I', "3000000000"}, {'T', "1"}, {'P', "Bitmap(\"Qk1HAAAA\")"},
    {'C', "\"\""}, {'L', "\"\""},  {'F', "\"\""}};

}  // namespace

class StoredProperties : public FormFixture {
protected:
    /// Those of the last text that was looked at, in its order, each with a blank behind it.
    std::string keys;

    /// What is stored of a control that was read with this in its file: "key = value" by key.
    std::map<std::string, std::string> Stored(const std::string& kind, const std::string& properties)
    {
        Open("Font = Font(\"Arial\", 9)\n" + kind + " C { Width = 1500 Height = 450 TabIndex = 1 " + properties + " }");
        return Written();
    }
    std::map<std::string, std::string> Written()
    {
        const std::set<std::string> place{"Left", "Top", "Width", "Height", "TabIndex"};
        std::map<std::string, std::string> stored;
        keys.clear();
        std::istringstream lines(form->Write());
        for (std::string line; std::getline(lines, line);) {
            const std::size_t mark = line.find(" = ");
            if (!line.starts_with("        ") || mark == std::string::npos || place.contains(line.substr(8, mark - 8)))
                continue;
            keys += line.substr(8, mark - 8) + " ";
            stored[line.substr(8, mark - 8)] = line.substr(mark + 3);
        }
        return stored;
    }
    void HoldSetter(const std::string& kind, const Key& key)
    {
        (void)Stored(kind, "");
        std::string told;
        form->PropertyChanged.Connect([&](host::Control&, base::StringView name) {
            // An edit that is made anew is given its text again, and reports that.
            if (name != TEXT("Text"))
                told += Narrow(name) + " ";
        });
        key.set(Any("C"));
        EXPECT_EQ(told, *key.told != 0 ? key.told : std::string(key.name) + " ");
        EXPECT_EQ(Written()[key.name], key.other) << "set by code";
    }
    void Hold(const std::string& kind, const std::vector<Key>& table)
    {
        std::map<std::string, std::string> always;
        for (const Key& key : table)
            if (key.always)
                always[key.name] = Standard(key);
        EXPECT_EQ(Stored(kind, ""), always) << kind << ": a missing key has its default";
        for (const Key& key : table) {
            SCOPED_TRACE(kind + "." + key.name);
            const std::string assignment = std::string(key.name) + " = ";
            EXPECT_EQ(Stored(kind, assignment + Standard(key)), always) << "its default";
            EXPECT_EQ(Stored(kind, assignment + outOfType.at(key.type)), always) << "what is no value for it";
            auto other = Stored(kind, assignment + key.other);
            EXPECT_EQ(other[key.name], key.other);
            if (!key.always)
                other.erase(key.name);
            std::string also;
            for (const auto& [name, value] : other)
                if (!always.contains(name))
                    also += name + " ";
            EXPECT_EQ(also, key.also);
            if (key.set)
                HoldSetter(kind, key);
        }
    }
};

TEST_F(StoredProperties, HaveTheirKeysTypesAndDefaults)
{
    for (const auto& [kind, table, leftOut] : kinds)
        Hold(kind, table);
}

TEST_F(StoredProperties, AreWrittenInTheirOrderAndKeepTheContract)
{
    for (const auto& [kind, table, leftOut] : kinds) {
        SCOPED_TRACE(kind);
        std::string stored, written;
        for (const Key& key : table)
            if (!leftOut.contains(key.name)) {
                stored += key.name + (" = " + key.other) + " ";
                written += key.name + std::string(" ");
            }
        (void)Stored(kind, stored);
        EXPECT_EQ(keys, written);
        KeepsControlContract(factory, kind, stored);
        KeepsControlContract(factory, kind, "");
    }
}

TEST_F(StoredProperties, FrameAndItsSurface_ShareAKey)
{
    const std::tuple<const char*, int, const char*> files[] = {
        {"", 0, "Tooltiptitle ToolTipIcon TooltipBalloon "},
        {"BackStyle = 1", 1, "BackStyle Tooltiptitle ToolTipIcon TooltipBalloon "},
        {"BackStyle = 0", 0, "Tooltiptitle ToolTipIcon TooltipBalloon BackStyle "},
        {"BackStyle = 1 BackStyle = 0 OLEDropMode = 1 Caption = \"c\"", 1,
         "BackStyle Tooltiptitle ToolTipIcon TooltipBalloon OLEDropMode BackStyle Caption "}};
    for (const auto& [stored, backStyle, written] : files) {
        (void)Stored("Frame", stored);
        EXPECT_EQ(keys, written);
        EXPECT_EQ(Get<controls::Frame>("C").BackStyle(), backStyle) << stored;
    }
}

TEST_F(StoredProperties, WhatIsNoChangeOrNotAllowed_IsNotTold)
{
    Open("CommandButton B { Width = 1500 Height = 450 } CheckBox C { Top = 600 Width = 1500 Height = 450 } TextBox T { Top = 1200 }");
    form->PropertyChanged.Connect([this](host::Control&, base::StringView name) { Note(Narrow(name)); });
    Get<controls::CommandButton>("B").Value(2);
    Get<controls::CommandButton>("B").Default(0);
    auto& check = Get<controls::CheckBox>("C");
    check.ForeColor(0x80000012);
    check.BackColor(0x8000000F);
    check.Style(0);
    check.Value(0);
    Get<controls::TextBox>("T").PasswordChar(TEXT("**"));
    Get<controls::TextBox>("T").EnhacedLineComputing(true);
    EXPECT_EQ(Take(), Lines{});
}

}  // namespace tests
