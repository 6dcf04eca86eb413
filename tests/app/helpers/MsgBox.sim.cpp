#include "app/helpers/MsgBox.h"

#include "platform/sim/MessageBoxes.h"
#include "platform/sim/Processes.h"
#include "tests/app/FreshCaches.h"

using namespace platform;

namespace {

class MsgBox : public tests::FreshCaches {};

TEST_F(MsgBox, BelongsToTheRightWindow)
{
    const auto make = [] {
        return CreateWindowExW(0, TEXT("Static"), TEXT("w"), WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    };
    SimPc& pc = SimPc::Current();
    auto& boxes = pc.Get<MessageBoxes>();
    boxes.Answer(IDYES);
    EXPECT_EQ(helpers::MsgBoxEx(TEXT("text"), MB_YESNO, TEXT("")), IDYES);
    EXPECT_EQ(boxes.Last().caption, u"Velmora Setup Utility") << "the program's name";
    EXPECT_EQ(boxes.Last().owner, nullptr);

    const HWND own = make();
    SetForegroundWindow(own);
    helpers::MsgBoxEx(TEXT("text"), 48, TEXT("title"));
    EXPECT_EQ(boxes.Last().owner, own);

    HWND others = nullptr;
    auto& processes = pc.Get<Processes>();
    pc.ActAs(processes.Find(processes.Launch(u"C:\\a.exe"))->MainActor(), [&] { others = make(); });
    SetForegroundWindow(others);
    helpers::MsgBoxEx(TEXT("text"), 48, TEXT("title"));
    EXPECT_EQ(boxes.Last().owner, nullptr) << "the foreground window is a stranger's";
    helpers::MsgBoxEx(TEXT("text"), MB_ICONHAND | MB_OKCANCEL, TEXT("title"), own, TEXT("AAA"));
    EXPECT_EQ(boxes.Last().owner, own);
    EXPECT_EQ(boxes.Last().style, static_cast<DWORD>(MB_USERICON | MB_OKCANCEL));
    EXPECT_EQ(boxes.Last().icon, u"AAA");
    EXPECT_EQ(boxes.Last().iconModule, GetModuleHandleW(nullptr));
    EXPECT_EQ(boxes.Last().caption, u"title");
    DestroyWindow(own);
}

}  // namespace
