// Facts about the shell's path functions.
#include "base/String.h"

#include <gtest/gtest.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <functional>

namespace {

using base::String;

/// What a function that works in place makes of a path.
String After(const String& path, const std::function<void(LPWSTR)>& change)
{
    WCHAR buffer[MAX_PATH] = {};
    path.copy(buffer, MAX_PATH - 1);
    change(buffer);
    return buffer;
}

std::string Narrow(const String& text)
{
    return std::string(text.begin(), text.end());
}

TEST(PathFunctions, FileName_IsWhatFollowsTheLastSeparatorThatHasANameBehindIt)
{
    const String cases[][2] = {{TEXT("C:\\A\\b.ini"), TEXT("b.ini")},
                               {TEXT("b.ini"), TEXT("b.ini")},
                               {TEXT("C:\\A\\"), TEXT("A\\")},
                               {TEXT("C:\\"), TEXT("C:\\")},
                               {TEXT("C:b"), TEXT("b")},
                               {TEXT("A/b"), TEXT("b")},
                               {TEXT(""), TEXT("")},
                               {TEXT("\\\\server\\share"), TEXT("share")}};
    for (const auto& [path, name] : cases)
        EXPECT_EQ(String(PathFindFileNameW(path.c_str())), name) << Narrow(path);
}

TEST(PathFunctions, InPlaceChanges)
{
    const auto extension = [](LPWSTR path) { PathRemoveExtensionW(path); };
    const auto add = [](LPWSTR path) { PathAddBackslashW(path); };
    const auto remove = [](LPWSTR path) { PathRemoveBackslashW(path); };
    const auto quote = [](LPWSTR path) { PathQuoteSpacesW(path); };
    const auto unquote = [](LPWSTR path) { PathUnquoteSpacesW(path); };
    const struct {
        std::function<void(LPWSTR)> change;
        String before, after;
    } cases[] = {
        {extension, TEXT("Velmora Setup Utility.exe"), TEXT("Velmora Setup Utility")},
        {extension, TEXT("a.b.exe"), TEXT("a.b")},
        {extension, TEXT("C:\\a.b\\c"), TEXT("C:\\a.b\\c")},
        {extension, TEXT("a.b c"), TEXT("a.b c")},
        {add, TEXT("C:\\A"), TEXT("C:\\A\\")},
        {add, TEXT("C:\\A\\"), TEXT("C:\\A\\")},
        {add, TEXT(""), TEXT("")},
        {remove, TEXT("C:\\A\\"), TEXT("C:\\A")},
        {remove, TEXT("C:\\A"), TEXT("C:\\A")},
        {remove, TEXT("C:\\"), TEXT("C:\\")},
        {quote, TEXT("C:\\A B\\c.exe"), TEXT("\"C:\\A B\\c.exe\"")},
        {quote, TEXT("C:\\A\\c.exe"), TEXT("C:\\A\\c.exe")},
        {unquote, TEXT("\"C:\\A B\\c.exe\""), TEXT("C:\\A B\\c.exe")},
        {unquote, TEXT("\"half"), TEXT("\"half")},
    };
    for (const auto& test : cases)
        EXPECT_EQ(After(test.before, test.change), test.after) << Narrow(test.before);
}

TEST(PathFunctions, SpecialFolders_ExistAndEndWithoutABackslash)
{
    WCHAR path[MAX_PATH] = {};
    EXPECT_TRUE(SHGetSpecialFolderPathW(nullptr, path, CSIDL_APPDATA, FALSE));
    EXPECT_NE(PathIsDirectoryW(path), FALSE);
    EXPECT_NE(String(path).back(), TEXT('\\'));
    WCHAR windows[MAX_PATH] = {};
    const UINT length = GetWindowsDirectoryW(windows, MAX_PATH);
    EXPECT_EQ(length, String(windows).size());
    EXPECT_EQ(GetWindowsDirectoryW(windows, 3), length + 1) << "too small a buffer: the size needed, zero included";
    GetTempPathW(MAX_PATH, path);
    EXPECT_EQ(String(path).back(), TEXT('\\'));
}

}  // namespace
