#include "tests/controls/FormFixture.h"

#include "controls/ThemeState.h"
#include "host/MessageLoop.h"
#include "tests/support/MessageLog.h"
#include "tests/support/UserInput.h"

namespace tests {

std::string Narrow(base::StringView text)
{
    return {text.begin(), text.end()};
}

base::String Wide(std::string_view text)
{
    return {text.begin(), text.end()};
}

void KeyForm::Form_KeyDown(std::int16_t& keyCode, std::int16_t& shift)
{
    keys.push_back("down " + std::to_string(keyCode) + " " + std::to_string(shift));
    if (unloadsOnEscape && keyCode == VK_ESCAPE)
        Unload();
}

void KeyForm::Form_KeyPress(std::int16_t& keyAscii)
{
    keys.push_back("press " + std::to_string(keyAscii));
}

void KeyForm::PublishRoutines()
{
    Publish(TEXT("Form_KeyDown"), [this](std::int16_t& code, std::int16_t& shift) { Form_KeyDown(code, shift); });
    Publish(TEXT("Form_KeyPress"), [this](std::int16_t& code, std::int16_t&) { Form_KeyPress(code); });
}

FormFixture::FormFixture()
{
    // An earlier test may have left it where the form will be.
    ParkMouse();
    PumpWith(host::MessageLoop::Dispatch);
    controls::RegisterControls(factory);
    controls::ThemeState::OfProcess().AskVersionWith([] { return DWORD{6}; });
}

FormFixture::~FormFixture()
{
    form.reset();
    host::MessageLoop::RunPending();
    controls::ThemeState::OfProcess().AskVersionWith({});
    PumpWith(nullptr);
}

void FormFixture::Open(std::string_view controls, bool userMode)
{
    form = std::make_unique<KeyForm>();
    form->UserMode(userMode);
    const std::string text = "Form F {\nClientWidth = 9000\nClientHeight = 6000\n" + std::string(controls) + "\n}";
    ASSERT_TRUE(form->Load(text, factory)) << form->LoadError();
    form->Show();
    SetForegroundWindow(form->hWnd());
    host::MessageLoop::RunPending();
}

void FormFixture::Press(int key, int shift)
{
    const auto hold = [shift](DWORD flags) {
        constexpr WORD held[] = {VK_SHIFT, VK_CONTROL, VK_MENU};
        for (int bit = 0; bit < 3; ++bit)
            if ((shift & 1 << bit) != 0)
                SendKey(held[bit], flags);
    };
    hold(0);
    PressKey(static_cast<WORD>(key));
    hold(KEYEVENTF_KEYUP);
}

/// As a click arrives from the queue, hovering included.
void FormFixture::Click(HWND window)
{
    const LPARAM middle = MAKELPARAM(5, 5);
    PostMessageW(window, WM_MOUSEMOVE, 0, middle);
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    PostMessageW(window, WM_LBUTTONUP, 0, middle);
    host::MessageLoop::RunPending();
}

std::string FormFixture::Focused() const
{
    const HWND focus = GetFocus();
    for (host::Control* const control : form->Controls())
        if (focus && control->hWnd() == focus)
            return Narrow(control->GetExtender().Name());
    return focus == form->hWnd() ? "form" : "none";
}

}  // namespace tests
