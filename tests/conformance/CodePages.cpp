// Facts about text as bytes: the ANSI code page 1252 and UTF-8.
#include "base/String.h"

#include <gtest/gtest.h>

namespace {

using base::String;

String Widen(UINT page, const std::string& bytes, DWORD flags = 0)
{
    String text(64, TEXT('#'));
    const INT length = MultiByteToWideChar(page, flags, bytes.data(), static_cast<INT>(bytes.size()), text.data(), 64);
    return text.substr(0, static_cast<std::size_t>(length));
}

std::string Narrow(UINT page, const String& text, DWORD flags = 0)
{
    std::string bytes(64, '#');
    const INT length = WideCharToMultiByte(page, flags, text.data(), static_cast<INT>(text.size()), bytes.data(), 64, nullptr, nullptr);
    return bytes.substr(0, static_cast<std::size_t>(length));
}

TEST(CodePages, Ansi_IsCodePage1252InBothDirections)
{
    EXPECT_EQ(Widen(CP_ACP, "\x80\x8A\x9F\xA0\xFF"), TEXT("\u20AC\u0160\u0178\u00A0\u00FF"));
    EXPECT_EQ(Widen(CP_ACP, "\x81\x8D\x8F\x90\x9D"), TEXT("\u0081\u008D\u008F\u0090\u009D")) << "numbers that the page leaves open";
    for (int byte = 1; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        EXPECT_EQ(Narrow(CP_ACP, Widen(CP_ACP, one)), one) << byte;
    }
    EXPECT_EQ(Narrow(CP_ACP, TEXT("a\u4E2Db")), "a?b");
}

TEST(CodePages, Utf8_CoversSurrogatesAndReplacesWhatIsBroken)
{
    const String text = TEXT("a\u00E9\u20AC\U0001F600");
    const std::string bytes = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
    EXPECT_EQ(Narrow(CP_UTF8, text), bytes);
    EXPECT_EQ(Widen(CP_UTF8, bytes), text);
    EXPECT_EQ(Widen(CP_UTF8, "a\xFF"), TEXT("a\uFFFD"));
    EXPECT_EQ(Widen(CP_UTF8, "a\xFF", MB_ERR_INVALID_CHARS), TEXT(""));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_UNICODE_TRANSLATION));
}

TEST(CodePages, Sizes_AreAskedForAndHeld)
{
    EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, TEXT("abc"), -1, nullptr, 0, nullptr, nullptr), 4) << "with the zero";
    WCHAR two[2] = {};
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "abc", 3, two, 2), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, TEXT("abc"), 0, nullptr, 0, nullptr, nullptr), 0) << "no text is a mistake";
}

TEST(MulDiv, RoundsHalfAwayFromZero)
{
    const int cases[][4] = {{7, 1, 2, 4}, {-7, 1, 2, -4}, {7, 1, -2, -4}, {1440, 96, 1440, 96}, {1, 1, 0, -1}, {0x7FFFFFFF, 2, 1, -1}};
    for (const auto& [number, numerator, denominator, result] : cases)
        EXPECT_EQ(MulDiv(number, numerator, denominator), result) << number << " * " << numerator << " / " << denominator;
}

}  // namespace
