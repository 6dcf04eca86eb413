#include "app/helpers/Paths.h"

#include "tests/support/FreshCaches.h"
#include "tests/support/ScratchFolder.h"

using base::String;
using helpers::IsValidFileName;
using helpers::IsValidPath;

namespace {

class Paths : public tests::FreshCaches {};

TEST(PathsText, GetFolderFromPath_EndsBehindLastBackslash)
{
    const struct {
        const WCHAR* path;
        const WCHAR* folder;
    } cases[] = {
        {TEXT("C:\\A\\b.ini"), TEXT("C:\\A\\")},
        {TEXT("  C:\\A\\b.ini "), TEXT("C:\\A\\")},
        {TEXT("\\\\server\\share\\b"), TEXT("\\\\server\\share\\")},
        {TEXT("b.ini"), TEXT("b.ini")},
        {TEXT(""), TEXT("")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(helpers::GetFolderFromPath(c.path), c.folder);
}

TEST(PathsText, IsValidFileName_RejectsDotsAtTheEndsAndForbiddenCharacters)
{
    for (const WCHAR* name : {TEXT("a"), TEXT("Velmora"), TEXT("a.b"), TEXT("a b"), TEXT(" a ")})
        EXPECT_TRUE(IsValidFileName(name)) << String(name).size();
    for (const WCHAR* name : {TEXT(""), TEXT("  "), TEXT(".hidden"), TEXT("name."), TEXT("a:b"), TEXT("a\\b"), TEXT("a/b"), TEXT("a*"),
                              TEXT("a?"), TEXT("<a"), TEXT("a>"), TEXT("a|b"), TEXT("a\"b"), TEXT("a\nb"), TEXT("a\rb")})
        EXPECT_FALSE(IsValidFileName(name)) << "length " << String(name).size();
}

TEST(PathsText, IsValidPath_WantsARootAndAFileName)
{
    const struct {
        const WCHAR* path;
        bool valid;
    } cases[] = {
        {TEXT("C:\\a.ini"), true},
        {TEXT("  C:\\A b\\a.ini  "), true},
        {TEXT("\\a.ini"), true},
        {TEXT("\\\\server\\share\\a.ini"), true},
        {TEXT("\\\\?\\C:\\A\\a.ini"), true},
        {TEXT("\\\\?\\"), false},
        {TEXT(""), false},
        {TEXT("a.ini"), false},
        {TEXT("A\\a.ini"), false},
        {TEXT("C:a.ini"), false},
        {TEXT("C:\\"), false},
        {TEXT("C:\\A\\"), false},
        {TEXT("C:\\A\\.ini"), false},
        {TEXT("C:\\A\\a."), false},
        {TEXT(".\\C:\\a"), false},
        {TEXT("C:\\A?\\a"), false},
        {TEXT("C:\\A/a"), false},
        {TEXT("C:\\A|b"), false},
        {TEXT("C:\\A\n\\b"), false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(IsValidPath(c.path), c.valid) << &c - cases;
}

TEST_F(Paths, FileAndFolder_AreToldApart)
{
    tests::ScratchFolder scratch;
    const String file = scratch.Write(TEXT("a.txt"), "x");
    EXPECT_TRUE(helpers::FileExists(TEXT(" ") + file + TEXT(" ")));
    EXPECT_FALSE(helpers::FolderExists(file));
    EXPECT_TRUE(helpers::FolderExists(scratch.Path()));
    EXPECT_FALSE(helpers::FileExists(scratch.Path()));
    EXPECT_FALSE(helpers::FileExists(scratch.Path() + TEXT("b.txt")));
    EXPECT_FALSE(helpers::FileExists(TEXT("")));
    EXPECT_FALSE(helpers::FolderExists(TEXT(" ")));
}

TEST_F(Paths, AppPathAndExeName_MakeTheRunningModule)
{
    EXPECT_TRUE(helpers::FileExists(helpers::GetAppPath() + helpers::GetAppExeName() + TEXT(".exe")));
    EXPECT_EQ(helpers::GetAppPath().back(), TEXT('\\'));
    EXPECT_EQ(helpers::GetAppExeName().find(TEXT('.')), String::npos);
}

}  // namespace
