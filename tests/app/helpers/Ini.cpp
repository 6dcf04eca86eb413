#include "app/helpers/Ini.h"

#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <string>

using base::String;
using helpers::ReadIniString;
using helpers::ReadIniStringEx;
using helpers::WriteIniString;
using namespace std::string_literals;

namespace {

class Ini : public testing::Test {
protected:
    tests::ScratchFolder scratch;
};

/// A settings file as single bytes or as UTF-16LE with its mark.
std::string Bytes(const String& text, bool wide)
{
    return wide ? "\xFF\xFE"s + tests::WideBytes(text) : std::string(text.begin(), text.end());
}

TEST_F(Ini, ValuesOfEveryLength_AreReadWhole)
{
    for (const bool wide : {false, true}) {
        for (const std::size_t length : {1u, 253u, 254u, 255u, 300u, 5000u}) {
            SCOPED_TRACE(testing::Message() << length << " characters, wide " << wide);
            String value;
            for (std::size_t i = 0; i < length; ++i)
                value += static_cast<WCHAR>(TEXT('A') + i % 26);
            const String text = TEXT("[Other]\r\nPwd=wrong\r\n\r\n[Settings]\r\nSound=1\r\nPwd=") + value + TEXT("\r\nLast=2\r\n");
            const String file = scratch.Write(TEXT("a.ini"), Bytes(text, wide));
            EXPECT_EQ(ReadIniString(file, TEXT("Settings"), TEXT("Pwd"), TEXT("none")), value);
            EXPECT_EQ(ReadIniStringEx(file, TEXT("Settings"), TEXT("Pwd"), TEXT("none")), value);
        }
    }
}

TEST_F(Ini, Reading_TrimsAndIgnoresCaseOfSectionAndKey)
{
    const String file = scratch.Write(TEXT("a.ini"), "[settings]\r\npwd=  abc  \r\n");
    for (const auto read : {ReadIniString, ReadIniStringEx})
        EXPECT_EQ(read(TEXT(" ") + file + TEXT(" "), TEXT(" Settings "), TEXT(" Pwd "), TEXT("")), TEXT("abc"));
}

TEST_F(Ini, WhatIsMissing_GivesTheDefault)
{
    const String file = scratch.Write(TEXT("a.ini"), "[A]\r\nk=1\r\n[B]\r\n[C]\r\nk=3");
    for (const auto read : {ReadIniString, ReadIniStringEx}) {
        EXPECT_EQ(read(file, TEXT("B"), TEXT("k"), TEXT("none")), TEXT("none")) << "the key of another section";
        EXPECT_EQ(read(file, TEXT("D"), TEXT("k"), TEXT("none")), TEXT("none")) << "no such section";
        EXPECT_EQ(read(file, TEXT("C"), TEXT("k"), TEXT("none")), TEXT("3")) << "the last line has no end";
        EXPECT_EQ(read(scratch.Path() + TEXT("b.ini"), TEXT("A"), TEXT("k"), TEXT("none")), TEXT("none")) << "no such file";
        EXPECT_EQ(read(TEXT("a.ini"), TEXT("A"), TEXT("k"), TEXT("none")), TEXT("none")) << "no full path";
    }
}

TEST_F(Ini, OwnParser_GivesTheDefaultForAnEmptyValueAndAnEmptyFile)
{
    const String file = scratch.Write(TEXT("a.ini"), "[A]\r\nk=\r\n");
    EXPECT_EQ(ReadIniStringEx(file, TEXT("A"), TEXT("k"), TEXT("none")), TEXT("none"));
    for (const char* bytes : {"", "\xFF", "\xFF\xFE", "\r\n"})
        EXPECT_EQ(ReadIniStringEx(scratch.Write(TEXT("a.ini"), bytes), TEXT("A"), TEXT("k"), TEXT("none")), TEXT("none"))
            << testing::PrintToString(bytes);
}

TEST_F(Ini, OwnParser_FindsLinesThatEndAtAChunksEnd)
{
    for (const bool wide : {false, true}) {
        for (std::size_t length = 500; length <= 1030; ++length) {
            if (length == 520)
                length = 1010;
            const String text = TEXT("[A]\r\nx=") + String(length, TEXT('y')) + TEXT("\r\nk=found\r\n");
            const String file = scratch.Write(TEXT("a.ini"), Bytes(text, wide));
            ASSERT_EQ(ReadIniStringEx(file, TEXT("A"), TEXT("k"), TEXT("")), TEXT("found")) << length << ", wide " << wide;
        }
    }
}

TEST_F(Ini, WideText_IsNotSplitInsideItsCharacters)
{
    // Between these two characters stand the bytes 0D 00 0A 00, which would be a line's end one byte further on.
    const String value = {static_cast<WCHAR>(0x0D41), static_cast<WCHAR>(0x0A00), static_cast<WCHAR>(0x4100)};
    const String file = scratch.Write(TEXT("a.ini"), Bytes(TEXT("[A]\r\nk=") + value + TEXT("\r\n"), true));
    EXPECT_EQ(ReadIniStringEx(file, TEXT("A"), TEXT("k"), TEXT("")), value);
}

TEST_F(Ini, Writing_KeepsTheRestOfTheFile)
{
    const String file = scratch.Write(TEXT("a.ini"), "[Other]\r\nx=1\r\n[Settings]\r\nSound=1\r\nPwd=old\r\n");
    EXPECT_NE(WriteIniString(TEXT(" ") + file, TEXT(" Settings "), TEXT(" Pwd"), TEXT(" new ")), 0);
    EXPECT_EQ(tests::BytesOf(file), "[Other]\r\nx=1\r\n[Settings]\r\nSound=1\r\nPwd=new\r\n");
}

TEST_F(Ini, Writing_MakesTheFileButNotTheFolder)
{
    const String file = scratch.Expect(TEXT("new.ini"));
    EXPECT_NE(WriteIniString(file, TEXT("Settings"), TEXT("Pwd"), TEXT("AYWJj")), 0);
    EXPECT_EQ(tests::BytesOf(file), "[Settings]\r\nPwd=AYWJj\r\n");
    EXPECT_EQ(WriteIniString(scratch.Path() + TEXT("missing\\new.ini"), TEXT("Settings"), TEXT("Pwd"), TEXT("x")), 0);
    EXPECT_EQ(WriteIniString(TEXT("new.ini"), TEXT("Settings"), TEXT("Pwd"), TEXT("x")), 0) << "Windows would put it into its own folder";
}

}  // namespace
