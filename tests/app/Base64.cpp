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
    for (const String& text : {String(TEXT("abc")), umlaut, euro, String(TEXT("a")) + euro + TEXT("b")}) {
        EXPECT_EQ(Base64Decode(Base64Encode(text, Base64Prefixed), Base64Prefixed), text);
        EXPECT_EQ(Base64Decode(Base64Encode(text, Base64Wide), Base64Wide), text);
    }
}

TEST(Base64, AllBytes_ComeBack)
{
    std::vector<std::uint8_t> bytes;
    for (int i = 0; i < 256; ++i) {
        bytes.push_back(static_cast<std::uint8_t>(i * 7));
        EXPECT_EQ(Base64DecodeBytes(Base64EncodeBytes(bytes)), bytes);
    }
    EXPECT_EQ(Base64EncodeBytes(bytes, 1), TEXT("AA=="));
    EXPECT_EQ(Base64EncodeBytes(bytes, 0), TEXT(""));
}

TEST(Base64, InvalidText_DecodesToNothing)
{
    for (const WCHAR* text :
         {TEXT("YWJ"), TEXT("YWJjZ"), TEXT("YW=j"), TEXT("YWJj\r\n  "), TEXT("YW j"), TEXT("YW-_"), TEXT("\x00C0WJj"), TEXT("\x20ACWJj")})
        EXPECT_TRUE(Base64DecodeBytes(text).empty());
    for (const WCHAR* text : {TEXT(""), TEXT("A"), TEXT("W"), TEXT("YWJj"), TEXT("aYWJj"), TEXT("AYWJ"), TEXT("AYW=j")})
        EXPECT_EQ(Base64Decode(text, Base64Prefixed), TEXT(""));
}

TEST(Base64, SurplusPadding_IsDropped)
{
    EXPECT_EQ(Base64Decode(TEXT("===="), Base64Narrow), TEXT(""));
    EXPECT_EQ(Base64Decode(TEXT("Z==="), Base64Narrow), TEXT("")) << "six bits are no byte";
    EXPECT_EQ(Base64Decode(TEXT("Zm9vZ==="), Base64Narrow), TEXT("foo"));
}

}  // namespace
