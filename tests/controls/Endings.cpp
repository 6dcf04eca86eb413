// Controls that end in every order with their tip up: the form, the control or one of its windows first, also from inside an event.
#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "controls/TextBox/TextBox.h"
#include "tests/controls/FormFixture.h"
#include "tests/controls/PlainWindow.h"
#include "tests/support/UserInput.h"

namespace tests {

class Endings : public FormFixture {};

TEST_F(Endings, InEveryOrder_LeaveNoWindowAndNoHeap)
{
    const struct {
        const char* first;
        void (*end)(KeyForm& form, host::Control& control);
        /// With it the control's own window goes at once.
        bool takesTheControl = true;
    } endings[] = {
        {"form", [](KeyForm& form, host::Control&) { form.Unload(); }},
        {"window of the form", [](KeyForm& form, host::Control&) { DestroyWindow(form.hWnd()); }},
        {"control's own window", [](KeyForm&, host::Control& control) { DestroyWindow(control.OwnHandle()); }},
        {"window that it shows", [](KeyForm&, host::Control& control) { DestroyWindow(control.hWnd()); }, false},
        {"tip", [](KeyForm&, host::Control& control) { DestroyWindow(dynamic_cast<controls::ToolTip&>(control).ToolTipWindow()); }, false},
        {"form, in an event", [](KeyForm& form, host::Control& control) {
             form.PropertyChanged.Connect([&form](host::Control&, base::StringView) { form.Unload(); });
             control.Enabled(false);
         }}};
    const auto hasHeap = [](HWND window) { return Published(window).find_first_not_of(TEXT('0')) != base::String::npos; };
    for (const std::string kind : {"Frame", "CommandButton", "CheckBox", "TextBox"})
        for (const auto& ending : endings) {
            SCOPED_TRACE(kind + ": first the " + ending.first);
            Open(kind + R"( C { Width = 1500 Height = 450 TabIndex = 1 ToolTipTextW = "tip" })");
            host::Control& control = Any("C");
            const HWND own = control.OwnHandle(), shown = control.hWnd();
            SendMessageW(shown, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
            const HWND tip = dynamic_cast<controls::ToolTip&>(control).ToolTipWindow();
            ASSERT_NE(tip, nullptr);
            EXPECT_TRUE(hasHeap(shown));
            ending.end(*form, control);
            if (ending.takesTheControl) {
                EXPECT_FALSE(IsWindow(own));
            }
            control.Enabled(true);
            control.GetExtender().Move(0, 0, 900, 900);
            form->Unload();
            for (const HWND window : {own, shown, tip}) {
                EXPECT_FALSE(IsWindow(window));
                EXPECT_FALSE(hasHeap(window)) << "while the control's object lives on";
            }
        }
}

TEST_F(Endings, InItsOwnEvents_AreSafe)
{
    int number = 0;
    const auto end = [&]<class Control, class Event>(const std::string& kind, Event Control::*event) {
        SCOPED_TRACE(kind + " is unloaded in event " + std::to_string(++number) + " of its line");
        Open(kind + R"( C { Left = 150 Top = 150 Width = 1500 Height = 450 TabIndex = 1 })");
        const HWND own = Any("C").OwnHandle();
        bool raised = false;
        (Get<Control>("C").*event).Connect([&](auto&&...) {
            raised = true;
            form->Unload();
        });
        Any("C").SetFocus();
        MoveMouse(own, 200, 100);
        // The right button comes last: the menu of an edit has a loop of its own that waits for the user.
        for (const auto& act : std::initializer_list<std::function<void()>>{
                 [&] { MoveMouse(own, 20, 10); }, [] { ClickMouse(); }, [] { ClickMouse(); }, [] { PressKey('A'); },
                 [] { PressKey(VK_SPACE); }, [] { MouseButton(MOUSEEVENTF_RIGHTDOWN); }, [] { MouseButton(MOUSEEVENTF_RIGHTUP); }})
            if (!raised)
                act();
        EXPECT_TRUE(raised);
        EXPECT_FALSE(IsWindow(own));
    };
    const auto endIn = [&](const char* kind, auto... events) {
        number = 0;
        (end(kind, events), ...);
    };
    using controls::CheckBox, controls::CommandButton, controls::Frame, controls::TextBox;
    endIn("Frame", &Frame::Click, &Frame::DblClick, &Frame::ContextMenu, &Frame::MouseDown, &Frame::MouseMove, &Frame::MouseUp);
    endIn("CommandButton", &CommandButton::Click, &CommandButton::MouseEnter, &CommandButton::DblClick, &CommandButton::ContextMenu,
          &CommandButton::MouseDown, &CommandButton::MouseMove, &CommandButton::MouseUp, &CommandButton::KeyPress, &CommandButton::KeyDown,
          &CommandButton::KeyUp);
    endIn("CheckBox", &CheckBox::Click, &CheckBox::KeyDown, &CheckBox::KeyUp, &CheckBox::KeyPress, &CheckBox::ContextMenu);
    endIn("TextBox", &TextBox::Click, &TextBox::DblClick, &TextBox::Change, &TextBox::KeyPress, &TextBox::KeyDown, &TextBox::KeyUp,
          &TextBox::ContextMenu, &TextBox::MouseEnter);
}

}  // namespace tests
