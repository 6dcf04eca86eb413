// Real input on and around the check box and the text box: what is off, what is left, what is let go elsewhere.
#include "controls/CheckBox/CheckBox.h"
#include "controls/TextBox/TextBox.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/UserInput.h"

namespace tests {

class HostedControl : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(Frame Box { Width = 6000 Height = 3000 TabIndex = 9
                TextBox First { Left = 150 Top = 300 Width = 1500 Height = 300 TabIndex = 0 Text = "one" }
                CheckBox Tick { Left = 150 Top = 900 Width = 1500 Height = 300 TabIndex = 1 Caption = "t" }
                TextBox Second { Left = 150 Top = 1500 Width = 1500 Height = 300 TabIndex = 2 Text = "two" }
            }
            TextBox Outside { Left = 6600 Top = 300 Width = 1500 Height = 300 TabIndex = 3 Text = "" })");
        Get<controls::CheckBox>("Tick").Click.Connect([this] { Note("Tick"); });
        Get<controls::TextBox>("First").Click.Connect([this] { Note("First"); });
    }

    /// Moves the mouse to a place of the control, counted from its corner.
    void Point(std::string_view name, int x = 20, int y = 10) { MoveMouse(Any(name).OwnHandle(), x, y); }
    static LRESULT Send(host::Control& control, UINT message) { return SendMessageW(control.hWnd(), message, 0, 0); }
    /// The colour that the container is asked for.
    static COLORREF Background(host::Control& control)
    {
        const HDC dc = GetDC(control.hWnd());
        const LRESULT brush = SendMessageW(GetParent(control.hWnd()), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc),
                                           reinterpret_cast<LPARAM>(control.hWnd()));
        LOGBRUSH description{};
        GetObjectW(reinterpret_cast<HBRUSH>(brush), sizeof description, &description);
        EXPECT_EQ(GetBkColor(dc), description.lbColor);
        ReleaseDC(control.hWnd(), dc);
        return description.lbColor;
    }
    /// What gives a control a new window leaves it over the one behind it, with the focus.
    void Renew(host::Control& control, const std::function<void()>& renew)
    {
        const HWND before = control.hWnd();
        int strayed = 0;
        controls::DSubclass watch;
        watch.WndProc.Connect([&](HWND, UINT message, WPARAM, LPARAM, LRESULT&, bool&) { strayed += message == WM_SETFOCUS; });
        watch.Enable(GetParent(before));
        renew();
        EXPECT_EQ(strayed, 0) << "Windows would give the container the focus of a window that goes";
        EXPECT_FALSE(IsWindow(before));
        EXPECT_EQ(PlaceIn(control.hWnd()), PlaceIn(control.OwnHandle()));
        EXPECT_EQ(GetFocus(), control.hWnd());
        EXPECT_EQ(form->ActiveControl(), &control);
    }
    static void OffAndOn(const std::function<void(bool)>& turn)
    {
        turn(false);
        turn(true);
    }
    /// The keyboard focus is on the window that is seen, not on the one behind it.
    bool HasKeys(std::string_view name) { return GetFocus() == Any(name).hWnd(); }
};

TEST_F(HostedControl, FocusOnTheWindowBehindADisabledOne_GoesOnWithTab)
{
    Any("Tick").SetFocus();
    Any("Tick").Enabled(false);
    EXPECT_TRUE(HasKeys("Second"));
    Any("Second").Enabled(false);
    EXPECT_EQ(Focused(), "Outside") << "the boxes had it one after the other";
    for (const char* const name : {"Tick", "Second"}) {
        SetFocus(Any(name).OwnHandle());
        PressKey('X');
        PressKey(VK_TAB);
        EXPECT_EQ(Focused(), "Outside") << name;
    }
    EXPECT_EQ(Get<controls::TextBox>("Second").Text(), TEXT("two"));
}

TEST_F(HostedControl, BoxThatNobodySees_IsNoStopForTab)
{
    ShowWindow(Any("Tick").hWnd(), SW_HIDE);
    Any("First").SetFocus();
    PressKey(VK_TAB);
    EXPECT_TRUE(HasKeys("Second"));
}

TEST_F(HostedControl, FocusThatWasTakenAway_ComesBackWhole)
{
    const std::pair<const char*, std::function<void()>> thieves[] = {
        {"the other's window takes it", [&] { SetFocus(Any("First").hWnd()); }},
        {"the window behind it takes it", [&] { SetFocus(Any("Tick").OwnHandle()); }},
        {"it is hidden", [&] { OffAndOn([&](bool on) { Any("Tick").GetExtender().Visible(on); }); }},
        {"its frame is hidden", [&] { OffAndOn([&](bool on) { Any("Box").GetExtender().Visible(on); }); }},
        {"it is disabled", [&] { OffAndOn([&](bool on) { Any("Tick").Enabled(on); }); }},
        {"nobody has it", [] { SetFocus(nullptr); }},
    };
    for (const auto& [how, steal] : thieves) {
        for (const char* const name : {"Tick", "Second"}) {
            Any("Tick").SetFocus();
            ASSERT_TRUE(HasKeys("Tick")) << how;
            steal();
            Any(name).SetFocus();
            EXPECT_TRUE(HasKeys(name)) << name << ": " << how;
        }
        Any("Tick").SetFocus();
        PressKey(VK_TAB);
        EXPECT_TRUE(HasKeys("Second")) << how;
    }
    // No look of it stays behind.
    Any("Tick").SetFocus();
    EXPECT_NE(SendMessageW(Any("Tick").hWnd(), BM_GETSTATE, 0, 0) & BST_FOCUS, 0);
    SetFocus(Any("First").hWnd());
    EXPECT_EQ(SendMessageW(Any("Tick").hWnd(), BM_GETSTATE, 0, 0) & BST_FOCUS, 0);
    EXPECT_EQ(form->ActiveControl(), &Any("First"));
}

TEST_F(HostedControl, ButtonLetGoElsewhere_IsNoClick)
{
    for (const char* const name : {"Tick", "First"}) {
        Point(name);
        MouseButton(MOUSEEVENTF_LEFTDOWN);
        MoveMouse(form->hWnd(), 580, 380);
        MouseButton(MOUSEEVENTF_LEFTUP);
        EXPECT_EQ(Take(), Lines{}) << name;
        Point(name);
        MouseButton(MOUSEEVENTF_LEFTDOWN);
        Point(name, 90, 14);
        MouseButton(MOUSEEVENTF_LEFTUP);
        EXPECT_EQ(Take(), Lines{name}) << "still on it";
    }
    EXPECT_EQ(Get<controls::CheckBox>("Tick").Value(), 1);
}

TEST_F(HostedControl, KeysOfARealKeyboard_AreFilteredAndPastingIsNot)
{
    auto& box = Get<controls::TextBox>("Second");
    const std::tuple<const char*, std::function<void(bool)>, const WCHAR*> rules[] = {
        {"letters", [&](bool on) { box.AllowOnlyAlphabetics(on); }, TEXT("ae ")},
        {"some", [&](bool on) { box.AllowOnlyChars(on ? TEXT("A1") : TEXT("")); }, TEXT("a1")},
        {"digits", [&](bool on) { box.AllowOnlyNumbers(on); }, TEXT("12")},
        {"none", [](bool) {}, TEXT("a1e2 ")}};
    Get<controls::TextBox>("First").Text(TEXT("-x3"));
    Any("First").SetFocus();
    Get<controls::TextBox>("First").SetSel(0, 3);
    Press('C', 2);
    for (const auto& [rule, set, typed] : rules) {
        SCOPED_TRACE(rule);
        Point("Second");
        ClickMouse();
        box.Text(TEXT(""));
        set(true);
        for (const char key : {'A', '1', 'E', '2', ' '})
            PressKey(static_cast<WORD>(key));
        EXPECT_EQ(box.Text(), typed);
        box.Text(TEXT("b"));
        box.SetSel(1, 0);
        Press('V', 2);
        EXPECT_EQ(box.Text(), TEXT("b-x3"));
        box.UnDo();
        EXPECT_EQ(box.Text(), TEXT("b"));
        set(false);
    }
}

TEST_F(HostedControl, RightClick_GivesTheEditTheFocusAndAsksForAMenu)
{
    for (const char* const name : {"Second", "Outside"}) {
        auto& box = Get<controls::TextBox>(name);
        box.ContextMenu.Connect([&](bool& cancel) {
            Note(name);
            cancel = true;
        });
        Any("First").SetFocus();
        Point(name);
        MouseButton(MOUSEEVENTF_RIGHTDOWN);
        MouseButton(MOUSEEVENTF_RIGHTUP);
        EXPECT_EQ(Take(), Lines{name});
        // The menu that was called off leaves the keyboard to whoever is given it.
        for (const char* const next : {"First", name}) {
            Any(next).SetFocus();
            PressKey('Y');
            EXPECT_NE(Get<controls::TextBox>(next).Text().find(TEXT('y')), base::String::npos) << next;
        }
    }
}

TEST_F(HostedControl, BackgroundOfATextBox_DependsOnFocusAndEnabled)
{
    auto& box = Get<controls::TextBox>("Second");
    box.BackColor(1);
    box.BackColorSelected(2);
    box.BackColorDisabled(3);
    EXPECT_EQ(Background(box), 1U);
    EXPECT_EQ(box.GetSurface().BackColor(), 1U) << "what stands behind the edit";
    box.SetFocus();
    EXPECT_EQ(Background(box), 2U);
    Any("First").SetFocus();
    EXPECT_EQ(Background(box), 1U);
    box.Enabled(false);
    EXPECT_EQ(Background(box), 3U);
}

TEST_F(HostedControl, StoredProperties_AreStylesOfItsWindow)
{
    const struct {
        const char *kind, *properties;
        DWORD style, extendedStyle;
    } cases[] = {{"CheckBox", "", 0x54014105, 0},
                 {"CheckBox", "TabStop = False", 0x54004105, 0},
                 {"CheckBox", "Enabled = 0", 0x5C014105, 0},
                 {"CheckBox", "Alignment = 1", 0x54014205, 0},
                 {"CheckBox", "Alignment = 2", 0x54014305, 0},
                 {"CheckBox", "AlignRight = 1", 0x54014125, 0},
                 {"CheckBox", "Style = 1", 0x54015105, 0},
                 {"CheckBox", "MultiLine = 1", 0x54016105, 0},
                 {"CheckBox", "BorderStyle = 1", 0x54814105, 0},
                 {"CheckBox", "BorderStyle = 2", 0x54014105, 0x20000},
                 {"CheckBox", "BorderStyle = 3", 0x54014105, 0x200},
                 {"CheckBox", "BorderStyle = 4", 0x54414105, 0x100},
                 {"TextBox", "", 0x54010080, 0x200},
                 {"TextBox", "TabStop = False", 0x54000080, 0x200},
                 {"TextBox", "BorderStyle = 4", 0x54410080, 0x100},
                 {"TextBox", "CaseStyle = 1", 0x54010088, 0x200},
                 {"TextBox", "CaseStyle = 2", 0x54010090, 0x200},
                 {"TextBox", "UseSystemPasswordChar = 1", 0x540100A0, 0x200},
                 {"TextBox", "PasswordChar = 42", 0x540100A0, 0x200},
                 {"TextBox", "HideSelection = 0", 0x54010180, 0x200},
                 {"TextBox", "Locked = 1", 0x54010880, 0x200},
                 {"TextBox", "AllowOnlyNumbers = 1", 0x54012080, 0x200},
                 {"TextBox", "DragDropEnabled = 1", 0x54010080, 0x210},
                 {"TextBox", "ScrollBars = 3", 0x54010080, 0x200},
                 {"TextBox", "MultiLine = 1", 0x54010044, 0x200},
                 {"TextBox", "MultiLine = 1 ScrollBars = 1", 0x541100C4, 0x200},
                 {"TextBox", "MultiLine = 1 ScrollBars = 2", 0x54210044, 0x200},
                 {"TextBox", "MultiLine = 1 ScrollBars = 3", 0x543100C4, 0x200}};
    for (const auto& [kind, properties, style, extendedStyle] : cases) {
        Open(std::string(kind) + " C { Width = 1500 Height = 900 " + properties + " }");
        EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(Any("C").hWnd(), GWL_STYLE)), style) << kind << " " << properties;
        EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(Any("C").hWnd(), GWL_EXSTYLE)), extendedStyle) << kind << " " << properties;
    }
}

TEST_F(HostedControl, NewWindow_KeepsAllButItself)
{
    auto& text = Get<controls::TextBox>("Second");
    auto& tick = Get<controls::CheckBox>("Tick");
    text.BackColorSelected(2);
    text.MouseEnter.Connect([this] { Note("enter"); });
    tick.ToolTipTextW(TEXT("tip"));
    const std::function<void()> ofText[] = {
        [&] { text.HideSelection(false); }, [&] { text.MultiLine(true); },        [&] { text.ScrollBars(2); },
        [&] { text.WordWrap(1); },          [&] { text.BorderStyle(4); },         [&] { text.UseSystemPasswordChar(true); },
        [&] { text.Container(*form); },     [&] { Send(text, WM_THEMECHANGED); }, [&] { Send(text, WM_SYSCOLORCHANGE); }};
    const std::function<void()> ofTick[] = {
        [&] { tick.Style(1); },       [&] { tick.BackStyle(1); },           [&] { tick.AlignRight(true); },
        [&] { tick.BorderStyle(2); }, [&] { Send(tick, WM_THEMECHANGED); }, [&] { Send(tick, WM_SYSCOLORCHANGE); }};
    for (const auto& renew : ofText) {
        text.SetFocus();
        text.Text(TEXT(""));
        SendMessageW(text.hWnd(), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(TEXT("typed")));
        text.SetSel(1, 3);
        Send(text, WM_MOUSEMOVE);
        SCOPED_TRACE(&renew - ofText);
        Renew(text, renew);
        EXPECT_EQ(text.Text(), TEXT("typed"));
        EXPECT_EQ(text.SelText(), TEXT("ype"));
        EXPECT_EQ(Background(text), 2U);
        Take();
        Send(text, WM_MOUSEMOVE);
        EXPECT_EQ(Take(), Lines{"enter"});
    }
    for (const auto& renew : ofTick) {
        tick.SetFocus();
        tick.Value(2);
        Send(tick, WM_MOUSEMOVE);
        const HWND tip = tick.ToolTipWindow();
        SCOPED_TRACE(&renew - ofTick);
        Renew(tick, renew);
        EXPECT_FALSE(IsWindow(tip));
        EXPECT_EQ(tick.Value(), 2);
        EXPECT_EQ(tick.Caption(), TEXT("t"));
        EXPECT_NE(Send(tick, BM_GETSTATE) & BST_FOCUS, 0);
        Send(tick, WM_MOUSEMOVE);
        EXPECT_NE(tick.ToolTipWindow(), nullptr);
    }
    text.Enabled(false);
    text.BorderStyle(0);
    EXPECT_FALSE(IsWindowEnabled(text.hWnd()));
}

TEST_F(HostedControl, HiddenBeforeTheForm_IsNeverSeen)
{
    form = std::make_unique<KeyForm>();
    ASSERT_TRUE(form->Load("Form F { TextBox T { Width = 900 Height = 300 } CheckBox C { Width = 900 Height = 300 } }", factory));
    for (host::Control* const control : form->Controls()) {
        control->GetExtender().Visible(false);
        EXPECT_EQ(GetWindowLongW(control->hWnd(), GWL_STYLE) & WS_VISIBLE, 0);
        control->GetExtender().Visible(true);
    }
    form->Show();
    for (host::Control* const control : form->Controls())
        EXPECT_TRUE(IsWindowVisible(control->hWnd()));
}

}  // namespace tests
