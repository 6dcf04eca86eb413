#include "host/ComboBox.h"
#include "host/Label.h"
#include "host/MessageLoop.h"
#include "host/Timer.h"
#include "tests/host/Probe.h"
#include "tests/support/MessageLog.h"
#include "tests/support/SentMessages.h"

namespace tests {

constexpr const char* stock = R"(Form F { ClientWidth = 4500 ClientHeight = 3000
    Probe Group { Left = 0 Top = 0 Width = 4500 Height = 3000 TabIndex = 0 Focus = False
        Label Caption { Left = 150 Top = 150 Width = 900 Height = 255 TabIndex = 1 Caption = "A && &b" Enabled = False Font = Font("Arial", 9.75, Bold) }
        ComboBox Combo { Left = 150 Top = 600 Width = 1500 Height = 315 TabIndex = 2 List = ["Automatic", "Manual", "Disabled"] }
        Timer Clock { Interval = 20 Enabled = False }
    }
})";

class StockControls : public HostTest {
protected:
    void SetUp() override { Open(stock); }

    template <class T>
    T& Get(base::StringView name)
    {
        return *form->Find<T>(name);
    }
    LRESULT Ask(base::StringView name, UINT message, WPARAM wParam = 0) { return SendMessageW(WindowOf(name), message, wParam, 0); }
};

TEST_F(StockControls, Label_ShowsItsCaptionInItsFont)
{
    auto& label = Get<host::Label>(TEXT("Caption"));
    EXPECT_EQ(label.AccessKey(), TEXT("b"));
    EXPECT_EQ(GetParent(label.hWnd()), WindowOf(TEXT("Group")));
    EXPECT_FALSE(IsWindowEnabled(label.hWnd()));
    const auto font = [&] {
        LOGFONTW shown{};
        GetObjectW(reinterpret_cast<HFONT>(Ask(TEXT("Caption"), WM_GETFONT)), sizeof shown, &shown);
        return std::pair(base::String(shown.lfFaceName), shown.lfWeight);
    };
    EXPECT_EQ(font(), std::pair(base::String(TEXT("Arial")), LONG{FW_BOLD}));
    label.Enabled(true);
    label.Caption(TEXT("Plain &&"));
    label.Font(std::make_shared<host::Font>());
    EXPECT_TRUE(IsWindowEnabled(label.hWnd()));
    EXPECT_EQ(label.AccessKey(), TEXT(""));
    EXPECT_EQ(TextOf(label.hWnd()), TEXT("Plain &&"));
    EXPECT_EQ(font(), std::pair(base::String(TEXT("MS Sans Serif")), LONG{FW_NORMAL}));
}

TEST_F(StockControls, Label_ShowsWholeLinesOnly)
{
    auto& label = Get<host::Label>(TEXT("Caption"));
    host::Extender& extender = label.GetExtender();
    const auto sized = [&](float points) {
        label.Font(std::make_shared<host::Font>(host::FontDescription{.size = points}));
        RECT client{};
        GetClientRect(label.hWnd(), &client);
        return client.bottom;
    };
    // 17 pixels are enough for 11 and one line's leading, not for 32: the window grows and the place that is stored does not.
    EXPECT_EQ(sized(8.25F), 17);
    EXPECT_GE(sized(24), 32);
    EXPECT_EQ(extender.Height(), 255);
    EXPECT_EQ(sized(8.25F), 17);
    // There is no room for the second word beside the first, nor for its line below.
    extender.Width(600);
    const auto picture = [&](base::StringView caption) {
        label.Caption(caption);
        ProbeNamed(TEXT("Group")).GetSurface().Clear();
        const HDC paper = ProbeNamed(TEXT("Group")).GetSurface().Dc();
        SendMessageW(label.hWnd(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(paper), 0);
        std::vector<COLORREF> pixels;
        for (int place = 0; place < 40 * 17; ++place)
            pixels.push_back(GetPixel(paper, place % 40, place / 40));
        return pixels;
    };
    EXPECT_EQ(picture(TEXT("Two lines")), picture(TEXT("Two")));
    EXPECT_NE(picture(TEXT("Two")), picture(TEXT("")));
}

TEST_F(StockControls, Combo_RaisesClickWhenTheSelectionChanges)
{
    auto& combo = Get<host::ComboBox>(TEXT("Combo"));
    int clicks = 0;
    combo.Click.Connect([&] { ++clicks; });
    combo.ListIndex(1);
    combo.ListIndex(1);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(Ask(TEXT("Combo"), CB_GETCURSEL), 1);
    SendMessageW(form->hWnd(), WM_COMMAND, MAKEWPARAM(0, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo.hWnd()));
    EXPECT_EQ(clicks, 1) << "the same one again";
    combo.ListIndex(7);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(Ask(TEXT("Combo"), CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(clicks, 2);

    // The user's choice arrives through the container's window.
    combo.ListIndex(0);
    combo.SetFocus();
    Press(VK_DOWN);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(combo.Text(), TEXT("Manual"));
    EXPECT_EQ(clicks, 4);
}

TEST_F(StockControls, MovedOne_StaysAsDeep)
{
    const HWND combo = WindowOf(TEXT("Combo"));
    const HWND before = GetWindow(combo, GW_HWNDPREV);
    EXPECT_NE(before, nullptr);
    ExtenderOf(TEXT("Combo")).Top(900);
    EXPECT_EQ(GetWindow(combo, GW_HWNDPREV), before);
}

TEST_F(StockControls, Combo_OffersItsKeysToAHandlerThatMayKeepThem)
{
    auto& combo = Get<host::ComboBox>(TEXT("Combo"));
    std::string seen;
    combo.KeyDown.Connect([&](std::int16_t& code, std::int16_t&) {
        seen += std::to_string(code) + " ";
        if (code == VK_DOWN)
            code = 0;
    });
    combo.ListIndex(1);
    combo.SetFocus();
    Press(VK_DOWN);
    EXPECT_EQ(combo.ListIndex(), 1);
    Press(VK_UP);
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_EQ(seen, "40 38 ");
}

TEST_F(StockControls, Timer_TicksOnlyWhileItRuns)
{
    auto& timer = Get<host::Timer>(TEXT("Clock"));
    int ticks = 0;
    timer.Tick.Connect([&] {
        if (++ticks == 2)
            timer.Enabled(false);
    });
    PumpMessages(100);
    EXPECT_EQ(ticks, 0);
    timer.Enabled(true);
    PumpMessages(300);
    EXPECT_EQ(ticks, 2);
    timer.Interval(0);
    timer.Enabled(true);
    PumpMessages(100);
    EXPECT_EQ(ticks, 2);
    form->UserMode(false);
    timer.Interval(10);
    PumpMessages(100);
    EXPECT_EQ(ticks, 2) << "not in a designer";
}

}  // namespace tests
