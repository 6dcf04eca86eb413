// What screen readers are told of each kind of control.
#include "host/Accessible.h"

#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "controls/TextBox/TextBox.h"
#include "host/MessageLoop.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/Reader.h"

namespace tests {

class Accessible : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(Label Prompt { Left = 150 Top = 150 Width = 900 Height = 300 Caption = "&Name:" TabIndex = 90 }
            TextBox Box { Left = 1500 Top = 150 Width = 1500 Height = 300 TabIndex = 0 Text = "Ann" ToolTipText = "Who it is" }
            TextBox Secret { Left = 1500 Top = 600 Width = 1500 Height = 300 TabIndex = 1 Text = "hidden" UseSystemPasswordChar = 1 }
            Label Prompt2 { Left = 150 Top = 1050 Width = 900 Height = 300 Caption = "Si&ze" TabIndex = 91 }
            ComboBox List { Left = 1500 Top = 1050 Width = 1500 Height = 300 TabIndex = 2 List = ["Small", "Large"] }
            Label Prompt3 { Left = 150 Top = 1400 Width = 900 Height = 90 Caption = "Beside" TabIndex = 92 }
            CheckBox Check { Left = 150 Top = 1500 Width = 1500 Height = 300 TabIndex = 3 Caption = "Sound && light" Value = 1 }
            CommandButton Push { Left = 150 Top = 2100 Width = 1500 Height = 450 TabIndex = 4 Caption = "Save && E&xit" Default = True }
            CommandButton Toggle { Left = 150 Top = 2700 Width = 1500 Height = 450 TabIndex = 5 Caption = "Toggle&" ButtonType = 1 Value = 1 }
            TextBox Plain { Left = 4500 Top = 2100 Width = 1500 Height = 300 TabIndex = 8 Text = "" }
            Frame Group { Left = 4500 Top = 150 Width = 3000 Height = 1500 TabIndex = 6 Caption = "&Options"
                CommandButton Inner { Left = 150 Top = 300 Width = 1500 Height = 450 TabIndex = 7 Caption = "Inner" Enabled = False } })");
    }
    static Reader ReaderOf(HWND window) { return Reader::Of(SendMessageW(window, WM_GETOBJECT, 0, OBJID_CLIENT)); }
    Reader ReaderOf(std::string_view name) { return ReaderOf(Any(name).hWnd()); }
    LONG StateOf(std::string_view name) { return ReaderOf(name).State(); }
};

TEST_F(Accessible, EachKind_SaysWhatItIs)
{
    Any("Box").SetFocus();
    const struct {
        const char* control;
        LONG role, state;
        const char *name, *action, *shortcut, *value, *description;
    } expected[] = {
        {"Prompt", 0x29, 0x40, "Name:", "", "Alt+N", "", ""},
        {"Box", 0x2A, 0x100004, "Name:", "", "Alt+N", "Ann", "Who it is"},
        {"Secret", 0x2A, 0x20100000, "", "", "", "", ""},
        {"List", 0x2E, 0x40100400, "Size", nullptr, "Alt+Z", "", ""},
        {"Check", 0x2C, 0x100010, "Sound & light", "Uncheck", "", "", ""},
        {"Push", 0x2B, 0x100100, "Save & Exit", "Press", "Alt+X", "", ""},
        {"Toggle", 0x2C, 0x100018, "Toggle", "Uncheck", "", "", ""},
        {"Plain", 0x2A, 0x100000, "", "", "", "", ""},
        {"Group", 0x14, 0, "Options", "", "Alt+O", "", ""},
        {"Inner", 0x2B, 1, "Inner", "Press", "", "", ""},
    };
    for (const auto& [control, role, state, name, action, shortcut, value, description] : expected) {
        SCOPED_TRACE(control);
        const Reader reader = ReaderOf(control);
        ASSERT_TRUE(reader);
        EXPECT_EQ(reader.Role(), role);
        EXPECT_EQ(reader.State(), state);
        EXPECT_EQ(reader.Name(), name);
        // What a system window of the stock does, Windows says.
        if (action) {
            EXPECT_EQ(reader.Action(), action);
        }
        EXPECT_EQ(reader.Shortcut(), shortcut);
        EXPECT_EQ(reader.Value(), value);
        EXPECT_EQ(reader.Description(), description);
    }
    BSTR secret = nullptr;
    EXPECT_EQ(ReaderOf("Secret")->get_accValue(itself, &secret), E_ACCESSDENIED);
    EXPECT_EQ(secret, nullptr);
    const Reader covered = ReaderOf(Any("Check").OwnHandle());
    EXPECT_EQ(covered.Name(), "Sound & light");
    EXPECT_EQ(covered.State(), 0x108010) << "hidden by the system's box";
    EXPECT_EQ(SendMessageW(Any("Push").hWnd(), WM_GETOBJECT, 0, 0), 0) << "the window's frame is Windows' own affair";
    EXPECT_TRUE(Reader::Of(SendMessageW(Any("Push").hWnd(), WM_GETOBJECT, 0, static_cast<LPARAM>(0xFFFFFFFC))))
        << "the number without its sign";
}

TEST_F(Accessible, States_FollowTheControl)
{
    auto& push = Get<controls::CommandButton>("Push");
    push.SetFocus();
    EXPECT_EQ(StateOf("Push"), 0x100104) << "default, focused";
    SendMessageW(push.hWnd(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(StateOf("Push"), 0x100184) << "hot";
    SendMessageW(push.hWnd(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(StateOf("Push"), 0x10010C) << "pressed";
    push.Enabled(false);
    EXPECT_EQ(StateOf("Push"), 0x101) << "disabled";
    push.GetExtender().Default(false);
    push.Enabled(true);
    push.GetExtender().Visible(false);
    EXPECT_EQ(StateOf("Push"), 0x8000) << "invisible";

    Get<controls::CommandButton>("Toggle").Value(0);
    EXPECT_EQ(StateOf("Toggle"), 0x100000);
    EXPECT_EQ(ReaderOf("Toggle").Action(), "Check");
    auto& check = Get<controls::CheckBox>("Check");
    check.Value(controls::Grayed);
    EXPECT_EQ(StateOf("Check"), 0x100020) << "mixed";
    check.Value(controls::Unchecked);
    EXPECT_EQ(StateOf("Check"), 0x100000);
    EXPECT_EQ(ReaderOf("Check").Action(), "Check");
    check.Enabled(false);
    EXPECT_EQ(StateOf("Check"), 1);

    Get<controls::TextBox>("Box").Locked(true);
    EXPECT_EQ(StateOf("Box") & ~4, 0x100040) << "read-only";
    Get<controls::TextBox>("Box").PasswordChar(TEXT("*"));
    EXPECT_EQ(StateOf("Box") & ~4, 0x20100040) << "a password now";
    SendMessageW(Any("List").hWnd(), CB_SETCURSEL, 1, 0);
    SendMessageW(Any("List").hWnd(), CB_SHOWDROPDOWN, TRUE, 0);
    EXPECT_EQ(StateOf("List") & 0x600, 0x200) << "dropped down";
    Get<controls::Frame>("Group").Enabled(false);
    Any("Inner").Enabled(true);
    EXPECT_EQ(StateOf("Group"), 1);
    EXPECT_EQ(StateOf("Inner"), 1) << "what it stands on is disabled";
}

TEST_F(Accessible, ButtonsTexts_AreThoseForReaders)
{
    auto& push = Get<controls::CommandButton>("Push");
    push.ScreenReaderCaption(TEXT("Save all && leave"));
    EXPECT_EQ(ReaderOf("Push").Name(), "Save all & leave");
    push.CaptionHide(false);
    EXPECT_EQ(ReaderOf("Push").Name(), "Save & Exit");
    push.CaptionHide(true);
    push.Caption(TEXT("Hi&dden&"));
    EXPECT_EQ(ReaderOf("Push").Name(), "Hidden");
    push.ToolTipTextW(TEXT("Tip"));
    EXPECT_EQ(ReaderOf("Push").Description(), "Tip");
    push.GetExtender().ToolTipText(TEXT("Newer tip"));
    EXPECT_EQ(ReaderOf("Push").Description(), "Newer tip");
}

TEST_F(Accessible, Place_IsTheWindows)
{
    const Reader reader = ReaderOf("Push");
    RECT place{};
    GetWindowRect(Any("Push").hWnd(), &place);
    LONG left = 0, top = 0, width = 0, height = 0;
    ASSERT_EQ(reader->accLocation(&left, &top, &width, &height, itself), S_OK);
    EXPECT_EQ(std::tuple(left, top, width, height), std::tuple(place.left, place.top, 100, 30));
    VARIANT hit{};
    ASSERT_EQ(reader->accHitTest(left + 50, top + 15, &hit), S_OK);
    EXPECT_EQ(hit.vt, VT_I4);
    EXPECT_EQ(hit.lVal, CHILDID_SELF);
    LONG count = -1;
    EXPECT_EQ(reader->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(ReaderOf("Group")->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 1);
    void* dispatch = nullptr;
    EXPECT_EQ(reader->QueryInterface(IID_IDispatch, &dispatch), S_OK);
    EXPECT_EQ(dispatch, reader.operator->());
    reader->Release();
    BSTR name = nullptr;
    EXPECT_EQ(reader->get_accName(Child(7), &name), E_INVALIDARG) << "it has no seventh child";
}

TEST_F(Accessible, DefaultAction_IsDoneOnceAndLater)
{
    auto& check = Get<controls::CheckBox>("Check");
    Get<controls::CommandButton>("Push").Click.Connect([this] { Note("push"); });
    Get<controls::CommandButton>("Toggle").Click.Connect([this] { Note("toggle"); });
    Get<controls::CommandButton>("Inner").Click.Connect([this] { Note("inner"); });
    check.Click.Connect([this] { Note("check"); });
    for (const char* const name : {"Push", "Toggle", "Check"})
        EXPECT_EQ(ReaderOf(name)->accDoDefaultAction(itself), S_OK) << name;
    EXPECT_EQ(ReaderOf("Inner")->accDoDefaultAction(itself), E_FAIL) << "disabled";
    EXPECT_TRUE(FAILED(ReaderOf("Group")->accDoDefaultAction(itself))) << "nothing to press";
    EXPECT_EQ(Take(), Lines{});
    host::MessageLoop::RunPending();
    EXPECT_EQ(Take(), (Lines{"push", "toggle", "check"}));
    EXPECT_EQ(check.Value(), 0);
    EXPECT_EQ(Get<controls::CommandButton>("Toggle").Value(), 0);
    EXPECT_EQ(StateOf("Push") & 8, 0) << "it is up again";
}

TEST_F(Accessible, Object_OutlivesItsControl)
{
    const auto expectEnd = [](const Reader& reader) {
        BSTR text = nullptr;
        VARIANT number{};
        LONG place = 0;
        IDispatch* parent = nullptr;
        EXPECT_EQ(reader->get_accName(itself, &text), CO_E_OBJNOTCONNECTED);
        EXPECT_EQ(reader->get_accDefaultAction(itself, &text), CO_E_OBJNOTCONNECTED);
        EXPECT_EQ(text, nullptr);
        EXPECT_EQ(reader->get_accState(itself, &number), CO_E_OBJNOTCONNECTED);
        EXPECT_EQ(reader->accLocation(&place, &place, &place, &place, itself), CO_E_OBJNOTCONNECTED);
        EXPECT_EQ(reader->get_accParent(&parent), CO_E_OBJNOTCONNECTED);
        EXPECT_EQ(reader->accDoDefaultAction(itself), CO_E_OBJNOTCONNECTED);
    };
    const Reader box = ReaderOf("Box"), push = ReaderOf("Push"), group = ReaderOf("Group"), list = ReaderOf("List");
    Get<controls::TextBox>("Box").MultiLine(true);
    expectEnd(box);
    EXPECT_EQ(ReaderOf("Box").Value(), "Ann") << "another window";
    form->Unload();
    for (const Reader* const reader : {&push, &group, &list})
        expectEnd(*reader);
    form.reset();
    expectEnd(push);
}

}  // namespace tests
