// Message boxes of the stand-in PC: what is kept of them, and their answers.
#include "platform/sim/MessageBoxes.h"
#include "platform/sim/SimPc.h"

#include <gtest/gtest.h>

namespace {

TEST(MessageBoxes, Box_IsKeptAndAnsweredWithoutWaiting)
{
    auto& boxes = platform::SimPc::Current().Get<platform::MessageBoxes>();
    boxes.Answer(IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, TEXT("Really?"), TEXT("Question"), MB_YESNO | MB_ICONQUESTION), IDNO);
    EXPECT_EQ(boxes.Last().text, TEXT("Really?"));
    EXPECT_EQ(MessageBoxW(nullptr, TEXT("Broken"), nullptr, MB_OK), IDOK);
    EXPECT_EQ(boxes.Last().caption, TEXT("Error")) << "the title of a box that was given none";
    MSGBOXPARAMSW parameters{};
    parameters.cbSize = sizeof parameters;
    parameters.lpszText = TEXT("Text");
    parameters.lpszCaption = TEXT("Caption");
    parameters.dwStyle = MB_USERICON;
    parameters.lpszIcon = MAKEINTRESOURCEW(17);
    EXPECT_EQ(MessageBoxIndirectW(&parameters), IDOK);
    EXPECT_EQ(boxes.Last().icon, TEXT("#17"));
    EXPECT_EQ(boxes.All().size(), 3u);
}

TEST(MessageBoxes, Box_WithAWrongRecordOrOwnerIsNotShown)
{
    MSGBOXPARAMSW parameters{};
    EXPECT_EQ(MessageBoxIndirectW(&parameters), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(MessageBoxW(reinterpret_cast<HWND>(0x1234), TEXT("Text"), TEXT("Caption"), MB_OK), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
    EXPECT_TRUE(platform::SimPc::Current().Get<platform::MessageBoxes>().All().empty());
}

}  // namespace
