// Every stored key of every control: its type, its default, and what else is stored with it.
#include "tests/controls/FormFixture.h"

#include <algorithm>
#include <sstream>

namespace tests {

namespace {

/// B a byte, S and I whole numbers of 16 and 32 bits, C a colour, L a truth value by name, T a text, F a font, P a picture.
struct Key {
    const char* name;
    char type;
    std::string standard;  // "@n": the RGB value of system colour n; "own font": the form's
    std::string other;
    const char* also = "";  // what this value brings with it
    bool always = false;    // stored even when it is the default
};

const std::vector<Key> frame = {
    {"DragDropEnabled", 'B', "0", "1"},
    {"Invisible", 'B', "0", "1"},
    {"BorderRound", 'I', "0", "20"},
    {"BorderColorDark", 'C', "0x80000010", "0x00000001"},
    {"BorderColorLight", 'C', "0x80000014", "0x00000001"},
    {"ToolTipTextW", 'T', "\"\"", "\"t\""},
    {"Tooltiptitle", 'T', "\"\"", "\"t\"", "", true},
    {"ToolTipIcon", 'I', "0", "3", "", true},
    {"TooltipBalloon", 'B', "0", "1", "", true},
    {"ToolTipCentred", 'B', "0", "1"},
    {"ToolTipWidth", 'I', "0", "70000"},
    {"ToolTipBackColor", 'C', "0x80000018", "0x00000001"},
    {"ToolTipForeColor", 'C', "0x80000017", "0x00000001"},
    {"ForceTrueType", 'B', "0", "1"},
    {"UseClassicTheme", 'B', "0", "1"},
    {"EnableDisableChilds", 'B', "0", "1"},
    {"BackColor", 'C', "0x8000000F", "0x00000001"},
    {"ForeColor", 'C', "0x80000012", "0x00000001"},
    {"BorderStyle", 'I', "1", "0"},
    {"OLEDropMode", 'S', "0", "1"},
    {"Caption", 'T', "\"C\"", "\"\""},
    {"Enabled", 'B', "1", "0"},
    {"Appearance", 'B', "1", "2"},
    {"Font", 'F', "own font", "Font(\"Tahoma\", 10)"},
};

// Two by two pixels each.
constexpr const char* bitmap =
    "Bitmap(\"Qk1GAAAAAAAAADYAAAAoAAAAAgAAAAIAAAABABgAAAAAABAAAAAAAAAAAAAAAAAAAAAAAAAA/wAA////AAAAAP8A/wAAAA==\")";
constexpr const char* icon =
    "Icon(\"AAABAAEAAgIAAAEAIABAAAAAFgAAACgAAAACAAAABAAAAAEAIAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAYFBAADAgEAAAAAAAgAAAAEAAAAA=\")";

const std::vector<Key> button = {
    {"CaptionHide", 'B', "0", "1"},
    {"CaptionUniChars", 'T', "\"\"", "\"41\"", "Caption "},
    {"Caption", 'T', "\"\"", "\"c\""},
    {"FontAutoSize", 'I', "0", "70000"},
    {"ToolTipTextW", 'T', "\"\"", "\"t\""},
    {"ForceTrueType", 'B', "0", "1"},
    {"GradientDirection", 'I', "1", "70000"},
    {"CaptionFx", 'I', "0", "70000"},
    {"RoundedValue", 'I', "5", "6"},
    {"ContourColor", 'C', "0x00000000", "0x00000001"},
    {"ContourStyle", 'I', "2", "1"},
    {"Picture", 'P', "None", bitmap, "", true},
    {"PictureOver", 'P', "None", icon, "", true},
    {"PictureDown", 'P', "None", bitmap, "", true},
    {"PictureDisabled", 'P', "None", bitmap, "", true},
    {"PictureDisabledStyle", 'I', "0", "70000"},
    {"Style", 'I', "7", "10"},
    {"UseClassicTheme", 'B', "0", "1", "Style "},
    {"CaptionAlign", 'I', "0", "4"},
    {"PictureAlign", 'I', "1", "0"},
    {"NonThemeStyle", 'I', "0", "70000"},
    {"Enabled", 'L', "True", "False"},
    {"ShowFocus", 'B', "0", "1"},
    {"USeCustomColors", 'B', "0", "1"},
    {"BackColor", 'C', "0x8000000F", "0x00000001"},
    {"BackColorDisabled", 'C', "0x8000000F", "0x00000001"},
    {"HighlightColor", 'C', "@13", "0x00000001"},
    {"FontColor", 'C', "@18", "0x00000001"},
    {"FontHighlightColor", 'C', "@18", "0x00000001"},
    {"Tooltiptitle", 'T', "\"\"", "\"t\"", "", true},
    {"ToolTipIcon", 'I', "0", "3", "", true},
    {"TooltipBalloon", 'B', "0", "1", "", true},
    {"ToolTipCentred", 'B', "0", "1"},
    {"ToolTipWidth", 'I', "0", "70000"},
    {"ToolTipBackColor", 'C', "0x80000018", "0x00000001"},
    {"ToolTipForeColor", 'C', "0x80000017", "0x00000001"},
    {"ButtonType", 'I', "0", "1"},
    {"Value", 'I', "0", "1"},
    {"MaskColorEnabled", 'B', "0", "1"},
    {"MaskColor", 'C', "0x00C0C0C0", "0x00000001"},
    {"MousePointer", 'S', "0", "11"},
    {"RoundedBordersByTheme", 'B', "1", "0"},
    {"RightToLeft", 'L', "False", "True"},
    {"Font", 'F', "own font", "Font(\"Tahoma\", 10)", "", true},
};

const std::vector<Key> checkBox = {
    {"BackStyle", 'I', "0", "2"},
    {"AlignRight", 'B', "0", "1"},
    {"FontAutoSize", 'B', "0", "1"},
    {"BorderStyle", 'B', "0", "4"},
    {"ToolTipTextW", 'T', "\"\"", "\"t\""},
    {"Tooltiptitle", 'T', "\"\"", "\"t\""},
    {"ToolTipIcon", 'I', "0", "3"},
    {"TooltipBalloon", 'B', "0", "1"},
    {"ToolTipCentred", 'B', "0", "1"},
    {"ToolTipWidth", 'I', "0", "70000"},
    {"TooltipBackColor", 'C', "0x80000018", "0x00000001"},
    {"ToolTipForeColor", 'C', "0x80000017", "0x00000001"},
    {"ForceTrueType", 'B', "0", "1"},
    {"AutoSize", 'B', "0", "1"},
    {"ForeColor", 'C', "0x80000012", "0x00000001"},
    {"BackColor", 'C', "0x8000000F", "0x00000001"},
    {"MultiLine", 'B', "0", "1"},
    {"Transparent", 'B', "0", "1"},
    {"Style", 'I', "0", "1"},
    {"Alignment", 'I', "0", "2"},
    {"Caption", 'T', "\"C\"", "\"c\""},
    {"Value", 'B', "0", "2"},
    {"Font", 'F', "own font", "Font(\"Tahoma\", 10)"},
    {"UseClassicTheme", 'B', "0", "1"},
    {"Visible", 'L', "True", "False"},
    {"Enabled", 'B', "1", "0"},
};

const std::vector<Key> textBox = {
    {"CaseStyle", 'B', "0", "1"},
    {"TrimText", 'B', "0", "1"},
    {"MaxLength", 'I', "30000", "70000"},
    {"BorderStyle", 'B', "3", "4"},
    {"PasswordChar", 'S', "0", "42"},
    {"ToolTipTextW", 'T', "\"\"", "\"t\""},
    {"ForceTrueType", 'B', "0", "1"},
    {"EnhacedLineComputing", 'B', "0", "1"},
    {"ToolTipBalloon", 'B', "0", "1"},
    {"ToolTipBackColor", 'C', "0x80000018", "0x00000001"},
    {"ToolTipForeColor", 'C', "0x80000017", "0x00000001"},
    {"ToolTipCentred", 'B', "0", "1"},
    {"ToolTipWidth", 'I', "0", "70000"},
    {"BackColor", 'C', "0x80000005", "0x00000001"},
    {"BackColorSelected", 'C', "0x80000005", "0x00000001"},
    {"BackColorDisabled", 'C', "0x80000005", "0x00000001"},
    {"ForeColor", 'C', "0x80000008", "0x00000001"},
    {"TabKeyTextual", 'B', "0", "1"},
    {"Text", 'T', "\"C\"", "\"t\""},
    {"Font", 'F', "own font", "Font(\"Tahoma\", 10)"},
    {"UseClassicTheme", 'B', "0", "1"},
    {"AllowOnlyNumbers", 'B', "0", "1"},
    {"AllowOnlyAlphabetics", 'B', "0", "1"},
    {"AllowOnlyChars", 'T', "\"\"", "\"a\""},
    {"Locked", 'B', "0", "1"},
    {"HideSelection", 'B', "1", "0"},
    {"MultiLine", 'B', "0", "1"},
    {"ScrollBars", 'I', "0", "3"},
    {"UseSystemPasswordChar", 'B', "0", "1"},
    {"WordWrap", 'I', "0", "2"},
    {"DragDropEnabled", 'B', "0", "1"},
    {"Enabled", 'B', "1", "0"},
    {"Visible", 'L', "True", "False"},
};

std::string Standard(const Key& key)
{
    if (key.standard == "own font")
        return "Font(\"Arial\", 9)";
    if (key.standard[0] != '@')
        return key.standard;
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(GetSysColor(std::stoi(key.standard.substr(1)))));
    return text;
}

/// A value that the type does not hold and that counts as none.
std::string OutOfType(char type)
{
    switch (type) {
        case 'B':
            return "256";
        case 'S':
            return "40000";
        case 'I':
            return "3000000000";
        case 'T':
            return "1";
        case 'P':
            return "Bitmap(\"Qk1HAAAA\")";
        default:
            return "\"\"";
    }
}

}  // namespace

class StoredKeys : public FormFixture {
protected:
    /// What is stored of a control that was read with this in its file: "key = value" by key.
    std::map<std::string, std::string> Stored(const std::string& kind, const std::string& properties)
    {
        form = std::make_unique<KeyForm>();
        Open("Font = Font(\"Arial\", 9)\n" + kind + " C { Width = 1500 Height = 450 TabIndex = 1 " + properties + " }");
        std::map<std::string, std::string> stored;
        std::istringstream lines(form->Write());
        for (std::string line; std::getline(lines, line);)
            if (const std::size_t mark = line.find(" = "); line.starts_with("        ") && mark != std::string::npos)
                stored[line.substr(8, mark - 8)] = line.substr(mark + 3);
        for (const char* const place : {"Left", "Top", "Width", "Height", "TabIndex"})
            stored.erase(place);
        return stored;
    }
    void Hold(const std::string& kind, const std::vector<Key>& keys)
    {
        std::map<std::string, std::string> always;
        for (const Key& key : keys)
            if (key.always)
                always[key.name] = Standard(key);
        EXPECT_EQ(Stored(kind, ""), always) << kind << ": a missing key has its default";
        for (const Key& key : keys) {
            SCOPED_TRACE(kind + "." + key.name);
            const std::string assignment = std::string(key.name) + " = ";
            EXPECT_EQ(Stored(kind, assignment + Standard(key)), always) << "its default";
            EXPECT_EQ(Stored(kind, assignment + OutOfType(key.type)), always) << "what is no value for it";
            auto other = Stored(kind, assignment + key.other);
            EXPECT_EQ(other[key.name], key.other);
            if (!key.always)
                other.erase(key.name);
            std::string also;
            for (const auto& [name, value] : other)
                if (!always.contains(name))
                    also += name + " ";
            EXPECT_EQ(also, key.also);
        }
    }
};

TEST_F(StoredKeys, OfAFrame)
{
    Hold("Frame", frame);
}

TEST_F(StoredKeys, OfACommandButton)
{
    Hold("CommandButton", button);
}

TEST_F(StoredKeys, OfACheckBox)
{
    Hold("CheckBox", checkBox);
}

TEST_F(StoredKeys, OfATextBox)
{
    Hold("TextBox", textBox);
}

}  // namespace tests
