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
    EXPECT_EQ(bag.Read<std::uint8_t>(TEXT("Flag"), 7), 7);
    EXPECT_EQ(bag.Read<std::int16_t>(TEXT("Small"), 7), -32768);
    EXPECT_EQ(bag.Read<std::int32_t>(TEXT("Big"), 7), 7);
    EXPECT_EQ(bag.Read<std::uint32_t>(TEXT("Big"), 7), 0xFFFFFFFFU);
    EXPECT_EQ(bag.Read<std::uint32_t>(TEXT("Small"), 7), 7U);
    EXPECT_EQ(bag.Read<bool>(TEXT("Byte"), false), false);
    EXPECT_EQ(bag.Read<std::int32_t>(TEXT("Text"), 7), 7);
    const auto font = bag.Read<std::shared_ptr<Font>>(TEXT("Font"), nullptr);
    EXPECT_TRUE(font && font->Bold());
    EXPECT_EQ(bag.Read<std::shared_ptr<Font>>(TEXT("Text"), nullptr), nullptr);
}

TEST(PropertyBag, Write_LeavesOutDefaultsAndKeepsTheOrder)
{
    PropertyBag bag;
    bag.Write(TEXT("Always"), std::uint8_t{0});
    bag.Write(TEXT("Same"), std::int32_t{5}, 5);
    bag.Write(TEXT("Color"), std::uint32_t{0x800000}, 0);
    bag.Write(TEXT("Twice"), std::int32_t{1}, 0);
    bag.Write(TEXT("Twice"), std::int16_t{0}, 1);
    const auto plain = std::make_shared<Font>();
    bag.Write(TEXT("EqualFont"), plain, plain->Copy());
    const auto changed = plain->Copy();
    changed->Name(TEXT("Arial"));
    bag.Write(TEXT("Font"), changed, plain);
    EXPECT_EQ(WriteForm({TEXT("A"), TEXT("B"), bag.Properties(), {}}),
              "A B {\n    Always = 0\n    Color = 0x00800000\n    Twice = 1\n    Twice = 0\n    Font = Font(\"Arial\", 8.25)\n}\n");
    EXPECT_EQ(bag.Read<std::int16_t>(TEXT("Twice"), 9, 1), 0);
    EXPECT_EQ(bag.Read<std::int16_t>(TEXT("Twice"), 9, 2), 9);
}

}  // namespace tests
