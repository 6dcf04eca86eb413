#include "app/helpers/Paths.h"

#include "tests/support/ScratchFolder.h"

using base::String;
using helpers::IsValidFileName;
using helpers::IsValidPath;

namespace {

TEST(Paths, GetFolderFromPath_EndsBehindLastBackslash)
{
    const std::pair<const WCHAR*, const WCHAR*> cases[] = {{TEXT("C:\\A\\b.ini"), TEXT("C:\\A\\")},
                                                           {TEXT("  C:\\A\\b.ini "), TEXT("C:\\A\\")},
                                                           {TEXT("\\\\server\\share\\b"), TEXT("\\\\server\\share\\")},
                                                           {TEXT("b.ini"), TEXT("b.ini")},
                                                           {TEXT(""), TEXT("")}};
    for (const auto& [path, folder] : cases)
        EXPECT_EQ(helpers::GetFolderFromPath(path), folder) << testing::PrintToString(String(path));
}

TEST(Paths, IsValidFileName_RejectsDotsAtTheEndsAndForbiddenCharacters)
{
    for (const WCHAR* name : {TEXT("a"), TEXT("Velmora"), TEXT("a.b"), TEXT("a b"), TEXT(" a ")})
        EXPECT_TRUE(IsValidFileName(name)) << testing::PrintToString(String(name));
    for (const WCHAR* name : {TEXT(""), TEXT("  "), TEXT(".hidden"), TEXT("name."), TEXT("a:b"), TEXT("a\\b"), TEXT("a/b"), TEXT("a*"),
                              TEXT("a?"), TEXT("<a"), TEXT("a>"), TEXT("a|b"), TEXT("a\"b"), TEXT("a\nb"), TEXT("a\rb")})
        EXPECT_FALSE(IsValidFileName(name)) << testing::PrintToString(String(name));
}

TEST(Paths, IsValidPath_WantsARootAndAFileName)
{
    for (const WCHAR* path :
         {TEXT("C:\\a.ini"), TEXT("  C:\\A b\\a.ini  "), TEXT("\\a.ini"), TEXT("\\\\server\\share\\a.ini"), TEXT("\\\\?\\C:\\A\\a.ini")})
        EXPECT_TRUE(IsValidPath(path)) << testing::PrintToString(String(path));
    for (const WCHAR* path :
         {TEXT("\\\\?\\"), TEXT(""), TEXT("a.ini"), TEXT("A\\a.ini"), TEXT("C:a.ini"), TEXT("C:\\"), TEXT("C:\\A\\"), TEXT("C:\\A\\.ini"),
          TEXT("C:\\A\\a."), TEXT(".\\C:\\a"), TEXT("C:\\A/a"), TEXT("C:\\A?\\a"), TEXT("C:\\A|\\a"), TEXT("C:\\A*\\a"), TEXT("C:\\A<\\a"),
          TEXT("C:\\A>\\a"), TEXT("C:\\A\"\\a"), TEXT("C:\\A\n\\a"), TEXT("C:\\A\r\\a")})
        EXPECT_FALSE(IsValidPath(path)) << testing::PrintToString(String(path));
}

TEST(Paths, FileAndFolder_AreToldApart)
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

}  // namespace
