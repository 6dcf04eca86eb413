// A drag from one frame to another through the drag loop of Windows itself, with real input.
#include "controls/Frame/Frame.h"
#include "host/MessageLoop.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/UserInput.h"

namespace tests {

class FrameOleDragLoop : public FormFixture {
protected:
    void TearDown() override
    {
        KillTimer(nullptr, timer);
        current = nullptr;
    }
    void Begin()
    {
        current = this;
        timer = SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR, DWORD) { current->NextStep(); });
        MoveMouse(Any("From").hWnd(), 20, 20);
        MouseButton(MOUSEEVENTF_LEFTDOWN);
    }
    /// The drag loop handles timers, so the user's hand is one. A drag that will not end loses its form.
    void NextStep()
    {
        if (++step == 50)
            form->Unload();
        if (step > 4)
            return;
        INPUT input{};
        input.type = INPUT_MOUSE;
        if (step == 4) {
            input.mi.dwFlags = MOUSEEVENTF_LEFTUP;
        } else {
            RECT place{};
            GetWindowRect(Any("To").hWnd(), &place);
            input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
            input.mi.dx = ((place.left + 30 + step) * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
            input.mi.dy = ((place.top + 40) * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
        }
        SendInput(1, &input, sizeof input);
    }

    static inline FrameOleDragLoop* current = nullptr;
    UINT_PTR timer = 0;
    int step = 0;
};

TEST_F(FrameOleDragLoop, Text_GoesFromFrameToFrame)
{
    Open(R"(Frame From { Width = 3000 Height = 1500 }
        Frame To { Left = 3000 Width = 3000 Height = 1500 OLEDropMode = 1 })");
    auto& from = Get<controls::Frame>("From");
    auto& to = Get<controls::Frame>("To");
    from.MouseDown.Connect([&](std::int16_t&, std::int16_t&, float&, float&) { from.OLEDrag(); });
    from.OLEStartDrag.Connect([](host::DataObject& data, std::int32_t& allowed) {
        data.SetData({}, CF_TEXT);
        allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    });
    from.OLESetData.Connect([](host::DataObject& data, std::int16_t& format) { data.SetData(base::String(TEXT("late")), format); });
    bool fedBack = false;
    from.OLEGiveFeedback.Connect([&](std::int32_t& effect, bool&) { fedBack = fedBack || effect == DROPEFFECT_MOVE; });
    from.OLECompleteDrag.Connect([&](std::int32_t& effect) { Note("complete " + std::to_string(effect)); });
    to.OLEDragOver.Connect([&](host::DataObject&, std::int32_t& effect, std::int16_t& button, std::int16_t&, float& x, float& y,
                               std::int16_t& state) {
        if (state == 0)
            Note("enter " + std::to_string(button) + " " + std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y)));
        effect = DROPEFFECT_MOVE;
    });
    to.OLEDragDrop.Connect([&](host::DataObject& data, std::int32_t& effect, std::int16_t& button, std::int16_t&, float&, float&) {
        const host::DataObject::Value value = data.GetData(CF_UNICODETEXT);
        const base::String* const text = std::get_if<base::String>(&value);
        Note("drop " + std::to_string(button) + " " + (text != nullptr ? Narrow(*text) : "nothing"));
        effect = DROPEFFECT_MOVE;
    });
    Begin();
    for (int tries = 0; tries < 100 && (log.empty() || log.back().front() != 'c'); ++tries) {
        host::MessageLoop::RunPending();
        Sleep(10);
    }
    EXPECT_EQ(Take(), (Lines{"enter 1 31,40", "drop 1 late", "complete 2"}));
    EXPECT_TRUE(fedBack);
    EXPECT_GE(GetKeyState(VK_LBUTTON), 0);
}

}  // namespace tests
