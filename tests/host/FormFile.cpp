#include "host/FormFile.h"

#include <gtest/gtest.h>

namespace tests {

using namespace host;

constexpr const char* everything = R"(Form Form1 {
    Caption = "Say \"hi\"\\\n\tthere"
    Width = -120
    BackColor = 0x8000000F
    KeyPreview = True
    Frame Outer {
        Font = Font("MS Sans Serif", 8.25)
        Empty = ""
        Combo Inner_2 {
            List = ["Automatic", "Manu\"al", ""]
            None = []
            Fonts = Font("Tahoma", 12, Weight 600, Italic, Underline, Strikethrough, Charset 2)
        }
    }
    Label Last {
        Font = Font("Arial", 9.75, Bold)
        Key = 1
        Key = 2
    }
}
)";

TEST(FormFile, CanonicalText_ComesBackUnchanged)
{
    const ParsedForm form = ParseForm(everything);
    ASSERT_TRUE(form.Ok()) << form.line << ": " << form.message;
    EXPECT_EQ(form.root.properties[0].value, PropertyValue(base::String(TEXT("Say \"hi\"\\\n\tthere"))));
    EXPECT_EQ(form.root.properties[1].value, PropertyValue(Number{-120}));
    EXPECT_EQ(form.root.properties[2].value, PropertyValue(Number{0x8000000F, true}));
    const FontDescription bold{TEXT("Arial"), 9.75F, FW_BOLD};
    EXPECT_EQ(form.root.children[1].properties[0].value, PropertyValue(bold));
    EXPECT_EQ(WriteForm(form.root), everything);
}

TEST(FormFile, LooseText_MeansTheSameAsCanonical)
{
    const ParsedForm loose = ParseForm("\xEF\xBB\xBF\r\n  Form\tF{A=1\r\nB = 0x1f Label L { } C=\"\xC3\xA8\xE2\x82\xAC\" }\r\n");
    ASSERT_TRUE(loose.Ok()) << loose.line << ": " << loose.message;
    EXPECT_EQ(loose.root.properties[2].value, PropertyValue(base::String(TEXT("\u00E8\u20AC"))));
    EXPECT_EQ(WriteForm(loose.root),
              "Form F {\n    A = 1\n    B = 0x0000001F\n    C = \"\xC3\xA8\xE2\x82\xAC\"\n    Label L {\n    }\n}\n");
}

TEST(FormFile, Mistake_IsReportedWithItsLine)
{
    std::string deep = "Form F {\n";
    for (int level = 0; level < 100000; ++level)
        deep += "A B {";
    std::vector<std::pair<std::string, int>> cases = {{"", 1},
                                                      {"Form F\n\n[", 3},
                                                      {"Form F {\n    A = 1\n", 3},
                                                      {"Form F {\n}\nForm G {\n}\n", 3},
                                                      {"Form F {\n    A =\n    B = 1\n}\n", 3},
                                                      {"Form F {\n    A = \"one\n    B = 2\n}\n", 2},
                                                      {"Form F {\n\n    A = \"\\q\"\n}\n", 3},
                                                      {"Form F {\n    \xFF = 1\n}\n", 1},
                                                      {deep, 2}};
    for (const std::string value : {"12x", "0x123456789", "-0x10", "true", "[\"x\" \"y\"]", "Font(\"x\")", "Font(\"x\", 0)",
                                    "Font(\"x\", 8.2.5)", "Font(\"x\", 8, Charset 256)"})
        cases.emplace_back("Form F {\n    A = " + value + "\n}\n", 2);
    for (const auto& [text, line] : cases) {
        const ParsedForm form = ParseForm(text);
        EXPECT_EQ(form.line, line) << text.substr(0, 80) << "\n" << form.message;
        EXPECT_NE(form.message, "") << text.substr(0, 80);
        EXPECT_EQ(form.root, FormNode{});
    }
}

}  // namespace tests
