// Lines against a splitter of the test's own, and what can be undone.
#include "controls/TextBox/TextBox.h"

#include "tests/controls/FormFixture.h"
#include "tests/support/UserInput.h"

#include <functional>
#include <random>

namespace tests {

namespace {

using base::String;

/// Start and length of each line of a text with "\r\n" between them.
std::vector<std::pair<int, int>> LinesOf(const String& text)
{
    std::vector<std::pair<int, int>> lines{{0, 0}};
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == TEXT('\r'))
            lines.emplace_back(static_cast<int>(++at) + 1, 0);
        else
            ++lines.back().second;
    }
    return lines;
}

/// Up to 6 lines of up to 30 letters and blanks, empty ones too.
String RandomText(std::minstd_rand& random)
{
    String text;
    for (auto line = random() % 6;; --line) {
        for (auto left = random() % 3 == 0 ? 0 : random() % 30; left > 0; --left)
            text += random() % 5 == 0 ? TEXT(' ') : static_cast<WCHAR>(TEXT('a') + random() % 26);
        if (line == 0)
            return text;
        text += TEXT("\r\n");
    }
}

}  // namespace

class TextBoxText : public FormFixture {
protected:
    /// A box for some ten letters a line.
    void OpenBox(const std::string& properties)
    {
        Open("TextBox Box { Width = 1200 Height = 1500 TabIndex = 0 MultiLine = 1 Text = \"\" " + properties + " }");
    }
    controls::TextBox& Box() { return Get<controls::TextBox>("Box"); }
};

TEST_F(TextBoxText, Lines_AreThoseBetweenTheBreaksUnlessTheyAreWrapped)
{
    std::minstd_rand random(11);
    for (const char* const properties : {"ScrollBars = 3", "EnhacedLineComputing = 1", "EnhacedLineComputing = 1 ScrollBars = 2"}) {
        OpenBox(properties);
        for (int round = 0; round < 25; ++round) {
            const String text = RandomText(random);
            Box().Text(text);
            SCOPED_TRACE(std::string(properties) + ": " + Narrow(text));
            const auto lines = LinesOf(text);
            ASSERT_EQ(Box().LineCount(), static_cast<int>(lines.size()));
            EXPECT_FALSE(Box().ExistsLine(static_cast<int>(lines.size())));
            EXPECT_EQ(Box().GetLine(static_cast<int>(lines.size())), TEXT(""));
            EXPECT_EQ(Box().GetLineLength(static_cast<int>(lines.size())), -1);
            int index = 0;
            for (const auto& [start, length] : lines) {
                EXPECT_TRUE(Box().ExistsLine(index) && Box().GetPosStartFromLineIndex(index) == start) << index;
                EXPECT_EQ(Box().GetLineLength(index), length);
                EXPECT_EQ(Box().GetLine(index), text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length)));
                for (const int place : {start, start + length}) {
                    EXPECT_EQ(Box().GetLineIndexFromPos(place), index);
                    Box().SelStart(place);
                    EXPECT_EQ(Box().LineIndex(), index);
                    EXPECT_EQ(Box().GetCurrentPosInLine(), place - start);
                }
                Box().LineIndex(index++);
                EXPECT_EQ(Box().SelStart(), start);
            }
        }
    }
    OpenBox("");
    Box().Text(TEXT("a paragraph that is wider than the box"));
    EXPECT_GT(Box().LineCount(), 2) << "lines as they are shown";
}

TEST_F(TextBoxText, RemovedLine_TakesOneBreakAlongAndCanBeUndone)
{
    std::minstd_rand random(12);
    for (const char* const properties : {"ScrollBars = 3", "EnhacedLineComputing = 1"}) {
        OpenBox(properties);
        for (int round = 0; round < 25; ++round) {
            const String text = RandomText(random);
            const auto lines = LinesOf(text);
            const auto index = random() % lines.size();
            SCOPED_TRACE(std::string(properties) + ": line " + std::to_string(index) + " of " + Narrow(text));
            Box().Text(text);
            Box().SelStart(1);
            ASSERT_EQ(Box().RemoveLine(static_cast<int>(index)), !text.empty());
            EXPECT_FALSE(Box().RemoveLine(static_cast<int>(lines.size())));
            const auto start = static_cast<std::size_t>(lines[index].first), length = static_cast<std::size_t>(lines[index].second);
            String rest = text;
            if (index + 1 < lines.size())
                rest.erase(start, length + 2);
            else if (index > 0)
                rest.erase(start - 2);
            else
                rest.clear();
            EXPECT_EQ(Box().Text(), rest);
            EXPECT_EQ(Box().LineCount(), static_cast<int>(LinesOf(rest).size()));
            EXPECT_EQ(Box().SelStart(), rest.empty() ? 0 : 1);
            if (text != rest) {
                Box().UnDo();
                EXPECT_EQ(Box().Text(), text);
                EXPECT_EQ(Box().LineCount(), static_cast<int>(lines.size()));
            }
        }
    }
}

}  // namespace tests
