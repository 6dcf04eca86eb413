// A text box on paper: ten letters of 12 by 20 pixels in a line, three lines on a page.
#include "controls/TextBox/TextBox.h"
#include "platform/sim/Printer.h"
#include "tests/controls/FormFixture.h"

namespace tests {

class TextPrinter : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(TextBox Notes { Width = 900 Height = 600 MultiLine = 1 Font = Font("Courier New", 8.25) Text = "" })");
    }
    controls::TextBox& Notes() { return Get<controls::TextBox>("Notes"); }

    platform::Printer& printer = platform::SimPc::Current().Get<platform::Printer>();
    const platform::Printer::Device paper{u"Laser", 144, {125, 65}};
};

TEST_F(TextPrinter, Text_IsBrokenIntoLinesAndPages)
{
    printer.Default(paper);
    Notes().Text(TEXT("short &\r\n\r\nthe quick brown fox\r\nabcdefghi\xD83D\xDE00z\r\n123\t9"));
    ASSERT_TRUE(Notes().PrintText());
    ASSERT_EQ(printer.Printed().size(), 1U);
    EXPECT_EQ(printer.Printed()[0].name, TEXT("Notes"));
    std::vector<base::String> lines;
    for (const auto& page : printer.Printed()[0].pages) {
        lines.emplace_back(TEXT("page"));
        for (const auto& line : page)
            lines.push_back(Wide(std::to_string(line.place.x) + "," + std::to_string(line.place.y) + " ") + line.text);
    }
    const std::vector<base::String> expected{TEXT("page"), TEXT("0,0 short &"),   TEXT("0,20 "),          TEXT("0,40 the quick "),
                                             TEXT("page"), TEXT("0,0 brown fox"), TEXT("0,20 abcdefghi"), TEXT("0,40 \xD83D\xDE00z"),
                                             TEXT("page"), TEXT("0,0 123     9")};
    EXPECT_EQ(lines, expected);
    Notes().Text({});
    EXPECT_TRUE(Notes().PrintText());
    EXPECT_EQ(printer.Printed().at(1).pages.size(), 1U) << "an empty text is an empty page";
}

TEST_F(TextPrinter, PrinterThatRefuses_PrintsNothing)
{
    Notes().Text(TEXT("1\r\n2\r\n3\r\n4"));
    EXPECT_FALSE(Notes().PrintText()) << "there is none";
    printer.Default(paper);
    const std::tuple<const char*, int, bool> refusals[] = {{"CreateDCW", 1, false}, {"CreateFontIndirectW", 1, false},
                                                           {"StartDocW", 1, false}, {"StartPage", 1, true},
                                                           {"StartPage", 2, true},  {"EndPage", 1, true},
                                                           {"EndPage", 2, true},    {"EndDoc", 1, true}};
    auto& pc = platform::SimPc::Current();
    for (const auto& [call, nth, isBegun] : refusals) {
        SCOPED_TRACE(call + std::to_string(nth));
        pc.GetFaults().FailCall(call, ERROR_PRINT_CANCELLED, nth);
        pc.Trace().Start();
        EXPECT_FALSE(Notes().PrintText());
        EXPECT_EQ(pc.Trace().Count("AbortDoc"), isBegun ? 1U : 0U) << "what was begun is taken back";
    }
    EXPECT_TRUE(printer.Printed().empty());
    EXPECT_TRUE(Notes().PrintText());
    EXPECT_EQ(printer.Printed().at(0).pages.size(), 2U);
}

}  // namespace tests
