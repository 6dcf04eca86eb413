// Controls that end in every order with their tip up: the form, the control or one of its windows first, also from inside an event.
#include "controls/SubclassHeap.h"
#include "controls/ToolTip.h"
#include "tests/controls/FormFixture.h"

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

}  // namespace tests
