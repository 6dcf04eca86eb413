// Controls that end in every order with their tip up: the form, the control or one of its windows first, also from inside an event.
#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "controls/SubclassHeap.h"
#include "controls/TextBox/TextBox.h"
#include "host/MessageLoop.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/MessageLog.h"
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
    const auto hasHeap = [](HWND window) {
        WCHAR heap[9] = {};
        GetEnvironmentVariableW(controls::HeapName(window).c_str(), heap, 9);
        return base::StringView(heap).find_first_not_of(TEXT('0')) != base::StringView::npos;
    };
    for (const std::string kind : {"Frame", "CommandButton", "CheckBox", "TextBox"})
        for (const auto& ending : endings) {
            SCOPED_TRACE(kind + ": first the " + ending.first);
            form = std::make_unique<KeyForm>();
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
    PumpWith(host::MessageLoop::Dispatch);
    const auto endIn = [this]<class Control, class Event>(const char* kind, const char* name, Event Control::*event) {
        SCOPED_TRACE(std::string(kind) + " is unloaded in " + name);
        form = std::make_unique<KeyForm>();
        Open(std::string(kind) + R"( C { Left = 150 Top = 150 Width = 1500 Height = 450 TabIndex = 1 })");
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
    using controls::CheckBox, controls::CommandButton, controls::Frame, controls::TextBox;
    endIn("Frame", "Click", &Frame::Click);
    endIn("Frame", "DblClick", &Frame::DblClick);
    endIn("Frame", "ContextMenu", &Frame::ContextMenu);
    endIn("Frame", "MouseDown", &Frame::MouseDown);
    endIn("Frame", "MouseMove", &Frame::MouseMove);
    endIn("Frame", "MouseUp", &Frame::MouseUp);
    endIn("CommandButton", "Click", &CommandButton::Click);
    endIn("CommandButton", "MouseEnter", &CommandButton::MouseEnter);
    endIn("CommandButton", "DblClick", &CommandButton::DblClick);
    endIn("CommandButton", "ContextMenu", &CommandButton::ContextMenu);
    endIn("CommandButton", "MouseDown", &CommandButton::MouseDown);
    endIn("CommandButton", "MouseMove", &CommandButton::MouseMove);
    endIn("CommandButton", "MouseUp", &CommandButton::MouseUp);
    endIn("CommandButton", "KeyPress", &CommandButton::KeyPress);
    endIn("CommandButton", "KeyDown", &CommandButton::KeyDown);
    endIn("CommandButton", "KeyUp", &CommandButton::KeyUp);
    endIn("CheckBox", "Click", &CheckBox::Click);
    endIn("CheckBox", "KeyDown", &CheckBox::KeyDown);
    endIn("CheckBox", "KeyUp", &CheckBox::KeyUp);
    endIn("CheckBox", "KeyPress", &CheckBox::KeyPress);
    endIn("CheckBox", "ContextMenu", &CheckBox::ContextMenu);
    endIn("TextBox", "Click", &TextBox::Click);
    endIn("TextBox", "DblClick", &TextBox::DblClick);
    endIn("TextBox", "Change", &TextBox::Change);
    endIn("TextBox", "KeyPress", &TextBox::KeyPress);
    endIn("TextBox", "KeyDown", &TextBox::KeyDown);
    endIn("TextBox", "KeyUp", &TextBox::KeyUp);
    endIn("TextBox", "ContextMenu", &TextBox::ContextMenu);
    endIn("TextBox", "MouseEnter", &TextBox::MouseEnter);
    PumpWith(nullptr);
}

}  // namespace tests
