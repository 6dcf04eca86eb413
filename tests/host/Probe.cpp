#include "tests/host/Probe.h"

#include "host/MessageLoop.h"

namespace tests {

std::string Narrow(base::StringView text)
{
    return {text.begin(), text.end()};
}

void Log::Add(const std::string& line)
{
    lines.push_back(line);
    if (const auto found = on.find(line); found != on.end()) {
        const auto act = found->second;
        act();
    }
}

void Probe::NoteMouse(const char* what, std::int16_t button, std::int16_t shift, float x, float y)
{
    Note(std::string(what) + " " + std::to_string(button) + " " + std::to_string(shift) + " " + std::to_string(static_cast<int>(x)) + "," +
         std::to_string(static_cast<int>(y)));
}

void Probe::NoteKey(const char* what, std::int16_t& code, std::int16_t shift)
{
    Note(std::string(what) + " " + std::to_string(code) + (shift != 0 ? " " + std::to_string(shift) : ""));
    if (swallowsKeys)
        code = 0;
}

void Probe::UserControl_ReadProperties(const host::PropertyBag& bag)
{
    canGetFocus_ = bag.Read<bool>(TEXT("Focus"), true);
    isButton_ = bag.Read<bool>(TEXT("Button"), false);
    Input().AccessKey(bag.Read<base::String>(TEXT("Key"), {}));
    Note(OwnHandle() != nullptr ? "ReadProperties" : "ReadProperties without a window");
}

void Probe::UserControl_Resize()
{
    Note("Resize " + std::to_string(GetSurface().ScaleWidth()) + "x" + std::to_string(GetSurface().ScaleHeight()));
}

void ProbeForm::NoteKey(const char* what, std::int16_t& code, std::int16_t shift)
{
    log_.Add("Form." + std::string(what) + " " + std::to_string(code) + (shift != 0 ? " " + std::to_string(shift) : ""));
    if (changeKey)
        changeKey(code);
}

HostTest::HostTest() : form(std::make_unique<ProbeForm>(log))
{
    factory.Register(TEXT("Probe"), [this] { return std::make_unique<Probe>(log); });
}

HostTest::~HostTest()
{
    form.reset();
    // On Windows the queue outlives the test; the WM_QUIT of the last form must not meet the next one.
    host::MessageLoop::RunPending();
}

void HostTest::Open(std::string_view formText)
{
    ASSERT_TRUE(form->Load(formText, factory)) << form->LoadError();
    form->Show();
    // Keys go to the program that is in front, and after another test's window has gone nobody may be.
    SetForegroundWindow(form->hWnd());
    host::MessageLoop::RunPending();
    log.Take();
}

std::string HostTest::ActiveName() const
{
    const host::Control* const active = form->ActiveControl();
    return active != nullptr ? Narrow(active->GetExtender().Name()) : "none";
}

void HostTest::Press(int key, int shift)
{
    const auto send = [](int code, bool up) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = static_cast<WORD>(code);
        input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
        SendInput(1, &input, sizeof input);
        host::MessageLoop::RunPending();
    };
    constexpr struct {
        int bit, key;
    } shifts[] = {{1, VK_SHIFT}, {2, VK_CONTROL}, {4, VK_MENU}};
    for (const auto& held : shifts)
        if ((shift & held.bit) != 0)
            send(held.key, false);
    send(key, false);
    send(key, true);
    for (const auto& held : shifts)
        if ((shift & held.bit) != 0)
            send(held.key, true);
}

}  // namespace tests
