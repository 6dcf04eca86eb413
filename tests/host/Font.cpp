#include "host/Font.h"

#include "base/String.h"

#include <gtest/gtest.h>

namespace tests {

TEST(Font, EachPart_IsToldOnceAndReachesWindows)
{
    const struct {
        const char* what;
        void (*set)(host::Font&);
        LONG (*of)(const LOGFONTW&);
        LONG before, after;
    } parts[] = {
        {"size", [](auto& font) { font.Size(9.75F); }, [](const LOGFONTW& logical) { return logical.lfHeight; }, -11, -13},
        {"bold", [](auto& font) { font.Bold(true); }, [](const LOGFONTW& logical) { return logical.lfWeight; }, 400, 700},
        {"weight", [](auto& font) { font.Weight(551); }, [](const LOGFONTW& logical) { return logical.lfWeight; }, 400, 551},
        {"italic", [](auto& font) { font.Italic(true); }, [](const LOGFONTW& logical) { return LONG{logical.lfItalic}; }, 0, 1},
        {"underline", [](auto& font) { font.Underline(true); }, [](const LOGFONTW& logical) { return LONG{logical.lfUnderline}; }, 0, 1},
        {"strikethrough", [](auto& font) { font.Strikethrough(true); }, [](const LOGFONTW& logical) { return LONG{logical.lfStrikeOut}; },
         0, 1},
        {"charset", [](auto& font) { font.Charset(178); }, [](const LOGFONTW& logical) { return LONG{logical.lfCharSet}; }, 1, 178},
        {"name", [](auto& font) { font.Name(base::String(40, TEXT('n'))); },
         [](const LOGFONTW& logical) { return static_cast<LONG>(base::StringView(logical.lfFaceName).size()); }, 13, 31}};
    for (const auto& [what, set, of, before, after] : parts) {
        SCOPED_TRACE(what);
        host::Font font;
        int told = 0;
        font.FontChanged.Connect([&] { ++told; });
        EXPECT_EQ(of(font.LogicalFont()), before);
        const HFONT former = font.Handle();
        EXPECT_EQ(font.Handle(), former);
        const auto kept = font.Share();
        for (int again = 0; again < 2; ++again)
            set(font);
        EXPECT_EQ(told, 1);
        LOGFONTW logical{};
        GetObjectW(font.Handle(), sizeof logical, &logical);
        EXPECT_EQ(of(logical), after);
        GetObjectW(kept->Get(), sizeof logical, &logical);
        EXPECT_EQ(of(logical), before) << "who holds the former one keeps it";
    }
}

TEST(Font, Bold_IsAWeightAboveTheMiddle)
{
    host::Font font;
    for (const std::int16_t weight : {300, 550, 551, 900}) {
        font.Weight(weight);
        EXPECT_EQ(font.Bold(), weight > 550) << weight;
    }
}

}  // namespace tests
