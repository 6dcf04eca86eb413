// Facts about private profiles: what is read, which bytes end up in the file.
#include "base/String.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace {

using base::String;
using tests::BytesOf;
using tests::ScratchFolder;

/// A value read with a buffer of `size` characters.
String Read(const String& file, LPCWSTR key, LPCWSTR fallback = TEXT("default"), DWORD size = 256)
{
    String buffer(size, TEXT('#'));
    const DWORD length = GetPrivateProfileStringW(TEXT("Settings"), key, fallback, buffer.data(), size, file.c_str());
    EXPECT_EQ(buffer[length], 0) << "the returned length does not count the zero";
    return buffer.substr(0, length);
}

TEST(IniFiles, Read_FindsValuesAsPeopleWriteThem)
{
    ScratchFolder folder;
    const String file = folder.Write(
        TEXT("read.ini"),
        "; Pwd=comment\r\n[Other]\r\nPwd=elsewhere\r\n[settings]\r\n;Pwd=off\r\n  pWD = plain text  \r\n"
        "Quoted=\" in quotes \"\r\nApostrophes='two'\r\nHalf=\"open\r\nTwice=\"\"x\"\"\r\nEmpty=\r\nEquals=a=b\r\n[Next]\r\nLate=x\r\n");
    const struct {
        LPCWSTR key;
        String value;
    } cases[] = {{TEXT("Pwd"), TEXT("plain text")}, {TEXT("Quoted"), TEXT(" in quotes ")}, {TEXT("Apostrophes"), TEXT("two")},
                 {TEXT("Half"), TEXT("\"open")},    {TEXT("Twice"), TEXT("\"x\"")},        {TEXT("Empty"), TEXT("")},
                 {TEXT("Equals"), TEXT("a=b")},     {TEXT("Late"), TEXT("default")},       {TEXT("Missing"), TEXT("default")}};
    for (const auto& test : cases)
        EXPECT_EQ(Read(file, test.key), test.value) << String(test.key).size();
    EXPECT_EQ(Read(file, TEXT("Pwd"), TEXT(""), 6), TEXT("plain")) << "cut to one less than the buffer";
    EXPECT_EQ(Read(file, TEXT("None"), TEXT("default"), 5), TEXT("defa"));
}

TEST(IniFiles, Encoding_IsTheAnsiCodePageUnlessTheFileHasTheWideMark)
{
    ScratchFolder folder;
    const String fresh = folder.Expect(TEXT("fresh.ini"));
    EXPECT_TRUE(WritePrivateProfileStringW(TEXT("Settings"), TEXT("Pwd"), TEXT("\u20AC\u00E9\u4E2D"), fresh.c_str()));
    EXPECT_NE(BytesOf(fresh).find("Pwd=\x80\xE9?"), std::string::npos) << "characters that the code page lacks are lost";
    EXPECT_EQ(Read(fresh, TEXT("Pwd")), TEXT("\u20AC\u00E9?"));

    const String wide = folder.Write(TEXT("wide.ini"), "\xFF\xFE" + tests::WideBytes(TEXT("[Settings]\r\nPwd=\u4E2D\r\n")));
    EXPECT_EQ(Read(wide, TEXT("Pwd")), TEXT("\u4E2D"));
    EXPECT_TRUE(WritePrivateProfileStringW(TEXT("Settings"), TEXT("Pwd"), TEXT("\u6587"), wide.c_str()));
    EXPECT_EQ(BytesOf(wide), "\xFF\xFE" + tests::WideBytes(TEXT("[Settings]\r\nPwd=\u6587\r\n")));
}

}  // namespace
