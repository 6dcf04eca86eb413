// Facts about private profiles: what is read, what a write leaves alone, which bytes end up in the file.
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

BOOL Write(const String& file, LPCWSTR key, LPCWSTR value)
{
    return WritePrivateProfileStringW(TEXT("Settings"), key, value, file.c_str());
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
    EXPECT_EQ(Read(folder.Path() + TEXT("absent.ini"), TEXT("Pwd")), TEXT("default"));
}

TEST(IniFiles, LongValue_IsCutToOneLessThanTheBuffer)
{
    ScratchFolder folder;
    const String file = folder.Write(TEXT("long.ini"), "[Settings]\r\nPwd=" + std::string(300, 'x') + "\r\n");
    EXPECT_EQ(Read(file, TEXT("Pwd"), TEXT(""), 256).size(), 255u);
    EXPECT_EQ(Read(file, TEXT("Pwd"), TEXT(""), 301).size(), 300u);
    EXPECT_EQ(Read(file, TEXT("None"), TEXT("default"), 5), TEXT("defa")) << "the default is cut as well";
}

TEST(IniFiles, Write_ChangesOneLineAndLeavesTheRest)
{
    ScratchFolder folder;
    const String file = folder.Write(TEXT("write.ini"), "; kept\r\n[Settings]\r\nPwd=old\r\n; kept too\r\nPort=1\r\n[Last]\r\nEnd=1\r\n");
    EXPECT_TRUE(Write(file, TEXT("Pwd"), TEXT("new")));
    EXPECT_EQ(BytesOf(file), "; kept\r\n[Settings]\r\nPwd=new\r\n; kept too\r\nPort=1\r\n[Last]\r\nEnd=1\r\n");
    EXPECT_TRUE(Write(file, TEXT("Added"), TEXT("yes")));
    EXPECT_EQ(Read(file, TEXT("Added")), TEXT("yes"));
    EXPECT_EQ(BytesOf(file).find("Added=yes") < BytesOf(file).find("[Last]"), true);
    EXPECT_TRUE(Write(file, TEXT("Port"), nullptr));
    EXPECT_EQ(Read(file, TEXT("Port")), TEXT("default"));
    EXPECT_TRUE(Write(file, TEXT("Pwd"), TEXT("")));
    EXPECT_EQ(Read(file, TEXT("Pwd")), TEXT(""));
}

TEST(IniFiles, Encoding_IsTheAnsiCodePageUnlessTheFileHasTheWideMark)
{
    ScratchFolder folder;
    const String fresh = folder.Expect(TEXT("fresh.ini"));
    EXPECT_TRUE(Write(fresh, TEXT("Pwd"), TEXT("\u20AC\u00E9\u4E2D")));
    EXPECT_NE(BytesOf(fresh).find("Pwd=\x80\xE9?"), std::string::npos) << "characters that the code page lacks are lost";
    EXPECT_EQ(Read(fresh, TEXT("Pwd")), TEXT("\u20AC\u00E9?"));

    const String wide = folder.Write(TEXT("wide.ini"), "\xFF\xFE" + tests::WideBytes(TEXT("[Settings]\r\nPwd=\u4E2D\r\n")));
    EXPECT_EQ(Read(wide, TEXT("Pwd")), TEXT("\u4E2D"));
    EXPECT_TRUE(Write(wide, TEXT("Pwd"), TEXT("\u6587")));
    EXPECT_EQ(BytesOf(wide), "\xFF\xFE" + tests::WideBytes(TEXT("[Settings]\r\nPwd=\u6587\r\n")));
}

TEST(IniFiles, Write_FailsInAMissingFolder)
{
    ScratchFolder folder;
    EXPECT_FALSE(Write(folder.Path() + TEXT("absent\\file.ini"), TEXT("Pwd"), TEXT("x")));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
}

}  // namespace
