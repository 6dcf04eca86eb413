// Starting the exe: what it refuses, and what its name decides.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

namespace {

/// Waits for the process's message box, checks its words, presses Enter and waits for the end.
void ExpectMessageAndEnd(Utility& utility, base::StringView text)
{
    ASSERT_TRUE(Eventually([&] { return utility.MessageBox() != nullptr; }));
    const HWND box = utility.MessageBox();
    EXPECT_TRUE(Eventually([&] { return tests::TextOf(box) == TEXT("Velmora Setup Utility"); }));
    bool found = false;
    for (HWND child = nullptr; (child = FindWindowExW(box, child, TEXT("Static"), nullptr)) != nullptr;)
        found = found || tests::TextOf(child) == text;
    EXPECT_TRUE(found) << "the box says something else";
    EXPECT_TRUE(FindWindowExW(box, nullptr, TEXT("Button"), nullptr));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(utility.Ended());
    EXPECT_EQ(utility.ExitCode(), 0u);
}

}  // namespace

TEST_F(EndToEnd, SecondCopy_EndsWithoutAWord)
{
    Utility first(exe_);
    ASSERT_TRUE(first.Opened());
    Utility second(exe_);
    bool boxSeen = false;
    EXPECT_TRUE(Eventually([&] {
        boxSeen = boxSeen || second.MessageBox();
        return second.Ended(Milliseconds(0));
    }));
    EXPECT_FALSE(boxSeen);
    EXPECT_EQ(second.ExitCode(), 0u);
    EXPECT_TRUE(first.Responds());
    first.Enter("TextPassword", TEXT("dropped"));
    first.Press({VK_MENU, VK_F5});
    EXPECT_TRUE(first.Ended());
    EXPECT_EQ(GetFileAttributesW(settings_.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(EndToEnd, NameWithBlank_NamesTheAgentAndItsSettings)
{
    const base::String renamed = PutUtility(TEXT("Foo Bar.exe"));
    {
        Utility utility(renamed);
        ExpectMessageAndEnd(utility, TEXT("\"Foo.exe\" needs to be on this directory."));
    }
    const base::String fooAgent = PutAgent(TEXT("Foo.exe"));
    Utility utility(renamed);
    ASSERT_TRUE(utility.Opened());
    utility.Click("cmdInstall");
    EXPECT_TRUE(Eventually([] { return InstalledService().has_value(); }));
    EXPECT_EQ(InstalledService().value_or(ServiceFacts{}).binaryPath, TEXT("\"") + fooAgent + TEXT("\""));
    ASSERT_TRUE(Eventually([&] { return utility.Enabled("cmdInstall") && utility.Enabled("cmdStart"); }));
    utility.Click("cmdInstall");
    ASSERT_TRUE(Eventually([&] { return utility.Enabled("CheckAutoStart"); }));

    utility.Click("CheckAutoStart");
    ASSERT_TRUE(Eventually([&] { return utility.Checked("CheckAutoStart"); }));
    utility.Enter("TextPassword", TEXT("abc"));
    utility.Click("CommandOk");
    ASSERT_TRUE(utility.Ended());
    EXPECT_EQ(tests::BytesOf(folder_.Expect(TEXT("Foo.ini"))), "[Settings]\r\nPwd=AYWJj\r\n");
    EXPECT_EQ(tests::BytesOf(settings_), "");
    EXPECT_EQ(AutoStartValue(), TEXT("\"") + fooAgent + TEXT("\""));
}

}  // namespace e2e
