#include "app/Base64.h"

#include <gtest/gtest.h>

using namespace app;
using base::String;

namespace {

TEST(Base64, KnownTexts_EncodeAndDecode)
{
    const std::pair<const WCHAR*, const WCHAR*> cases[] = {{TEXT(""), TEXT("")},
                                                           {TEXT("f"), TEXT("Zg==")},
                                                           {TEXT("fo"), TEXT("Zm8=")},
                                                           {TEXT("foo"), TEXT("Zm9v")},
                                                           {TEXT("foobar"), TEXT("Zm9vYmFy")}};
    for (const auto& [text, encoded] : cases) {
        EXPECT_EQ(Base64Encode(text, Base64Narrow), encoded);
        EXPECT_EQ(Base64Decode(encoded, Base64Narrow), text);
    }
}

TEST(Base64, PrefixedForm_TellsNarrowFromWide)
{
    const String euro(1, static_cast<WCHAR>(0x20AC));
    const String umlaut(1, static_cast<WCHAR>(0xFF));
    EXPECT_EQ(Base64Encode(TEXT("abc"), Base64Prefixed), TEXT("AYWJj"));
    EXPECT_EQ(Base64Encode(umlaut, Base64Prefixed), TEXT("A/w=="));
    EXPECT_EQ(Base64Encode(euro, Base64Prefixed), TEXT("WrCA="));
    EXPECT_EQ(Base64Encode(TEXT("abc"), 7), TEXT("AYWJj")) << "every other mode is the prefixed one";
    EXPECT_EQ(Base64Encode(euro, Base64Narrow), TEXT("Pw==")) << "a question mark";
    EXPECT_EQ(Base64Encode(TEXT("a"), Base64Wide), TEXT("YQA="));
    EXPECT_EQ(Base64Decode(TEXT("AYWJj"), Base64Prefixed), TEXT("abc"));
    EXPECT_EQ(Base64Decode(TEXT("A/w=="), Base64Prefixed), umlaut);
    EXPECT_EQ(Base64Decode(TEXT("WYQCsIGIA"), Base64Prefixed), TEXT("a") + euro + TEXT("b"));
    EXPECT_EQ(Base64Decode(TEXT("rCA="), Base64Wide), euro);
}

TEST(Base64, Alphabet_IsTheUsualOne)
{
    const std::vector<std::uint8_t> bytes = {0x00, 0x10, 0x83, 0x10, 0x51, 0x87, 0x20, 0x92, 0x8B, 0x30, 0xD3, 0x8F,
                                             0x41, 0x14, 0x93, 0x51, 0x55, 0x97, 0x61, 0x96, 0x9B, 0x71, 0xD7, 0x9F,
                                             0x82, 0x18, 0xA3, 0x92, 0x59, 0xA7, 0xA2, 0x9A, 0xAB, 0xB2, 0xDB, 0xAF,
                                             0xC3, 0x1C, 0xB3, 0xD3, 0x5D, 0xB7, 0xE3, 0x9E, 0xBB, 0xF3, 0xDF, 0xBF};
    const String text = TEXT("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/");
    EXPECT_EQ(Base64EncodeBytes(bytes), text);
    EXPECT_EQ(Base64DecodeBytes(text), bytes);
    EXPECT_EQ(Base64EncodeBytes(bytes, 1), TEXT("AA=="));
    EXPECT_EQ(Base64EncodeBytes(bytes, 0), TEXT(""));
}

TEST(Base64, InvalidText_DecodesToNothing)
{
    for (const WCHAR* text :
         {TEXT("YWJ"), TEXT("YWJjZ"), TEXT("YW=j"), TEXT("YWJj\r\n  "), TEXT("YW j"), TEXT("YW-_"), TEXT("\x00C0WJj"), TEXT("\x20ACWJj")})
        EXPECT_TRUE(Base64DecodeBytes(text).empty()) << testing::PrintToString(String(text));
    for (const WCHAR* text : {TEXT(""), TEXT("A"), TEXT("W"), TEXT("YWJj"), TEXT("aYWJj"), TEXT("AYWJ"), TEXT("AYW=j")})
        EXPECT_EQ(Base64Decode(text, Base64Prefixed), TEXT("")) << testing::PrintToString(String(text));
}

TEST(Base64, SurplusPadding_IsDropped)
{
    EXPECT_EQ(Base64Decode(TEXT("===="), Base64Narrow), TEXT(""));
    EXPECT_EQ(Base64Decode(TEXT("Z==="), Base64Narrow), TEXT("")) << "six bits are no byte";
    EXPECT_EQ(Base64Decode(TEXT("Zm9vZ==="), Base64Narrow), TEXT("foo"));
}

}  // namespace
