#include "host/PropertyBag.h"

#include <gtest/gtest.h>

namespace tests {

using namespace host;

TEST(PropertyBag, MissingKeyOrOtherType_GivesTheDefault)
{
    const ParsedForm form = ParseForm(R"(Form F {
    Flag = True
    Byte = 255
    Small = -32768
    Big = 0xFFFFFFFF
    Text = "1"
    Font = Font("Arial", 10, Bold)
})");
    const PropertyBag bag(form.root.properties);
    EXPECT_EQ(bag.Read<std::uint8_t>(TEXT("Byte"), 7), 255);
    EXPECT_EQ(bag.Read<std::uint8_t>(TEXT("byte"), 7), 7);
    EXPECT_EQ(bag.Read<std::uint8_t>(TEXT("Small"), 7), 7);
    EXPECT_EQ(bag.Read<std::int16_t>(TEXT("Small"), 7), -32768);
    EXPECT_EQ(bag.Read<std::int32_t>(TEXT("Big"), 7), 7);
    EXPECT_EQ(bag.Read<std::uint32_t>(TEXT("Big"), 7), 0xFFFFFFFFU);
    EXPECT_EQ(bag.Read<std::uint32_t>(TEXT("Small"), 7), 7U);
    EXPECT_EQ(bag.Read<bool>(TEXT("Text"), true), true);
    EXPECT_EQ(bag.Read<std::int32_t>(TEXT("Text"), 7), 7);
    const auto font = bag.Read<std::shared_ptr<Font>>(TEXT("Font"), nullptr);
    EXPECT_TRUE(font && font->Bold());
    EXPECT_EQ(bag.Read<std::shared_ptr<Font>>(TEXT("Text"), nullptr), nullptr);
}

TEST(PropertyBag, TruthValues_AreReadInEveryForm)
{
    const std::tuple<const char*, int, bool> forms[] = {{"True", 1, true}, {"False", 0, false}, {"1", 1, true},
                                                        {"0", 0, false},   {"-1", 1, true},     {"2", 2, true}};
    for (const auto& [text, byte, truth] : forms) {
        const ParsedForm form = ParseForm("Form F {\nFlag = " + std::string(text) + "\n}");
        const PropertyBag bag(form.root.properties);
        EXPECT_EQ(bag.Read<std::uint8_t>(TEXT("Flag"), 7), byte) << text;
        EXPECT_EQ(bag.Read<bool>(TEXT("Flag"), !truth), truth) << text;
    }
}

}  // namespace tests
