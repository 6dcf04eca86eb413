// Probe: a user control and a form that write down what the host tells them.
#pragma once

#include "host/Form.h"
#include "host/UserControl.h"
#include "tests/support/Place.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tests {

std::string Narrow(base::StringView text);

/// What happened, one line each, and what to do when it happens: `on["Button.Click"] = [&] { form.Unload(); };`
struct Log {
    std::vector<std::string> lines;
    std::map<std::string, std::function<void()>> on;

    void Add(const std::string& line);
    /// The lines since the last call.
    std::vector<std::string> Take() { return std::exchange(lines, {}); }
};

/// A user control that logs every call as "name.Call". Properties that it reads: Focus (can take the focus, True), Button (False), Key (its
/// access key). Its paints and mouse moves are left out: Windows decides how many there are.
class Probe final : public host::UserControl {
public:
    explicit Probe(Log& log) : log_(log) {}

    [[nodiscard]] base::StringView Kind() const override { return TEXT("Probe"); }
    [[nodiscard]] bool CanGetFocus() const override { return canGetFocus_; }
    [[nodiscard]] bool IsButton() const override { return isButton_; }

    int paints = 0;
    std::function<void()> whenPainting;
    bool swallowsKeys = false;

private:
    void Note(const std::string& what) { log_.Add(Narrow(GetExtender().Name()) + "." + what); }
    void NoteMouse(const char* what, std::int16_t button, std::int16_t shift, float x, float y);
    void NoteKey(const char* what, std::int16_t& code, std::int16_t shift);

    void UserControl_Initialize() override { Note("Initialize"); }
    void UserControl_InitProperties() override { Note("InitProperties"); }
    void UserControl_ReadProperties(const host::PropertyBag& bag) override;
    void UserControl_Terminate() override { Note("Terminate"); }
    void UserControl_Show() override { Note("Show"); }
    void UserControl_Hide() override { Note("Hide"); }
    void UserControl_Paint() override
    {
        ++paints;
        if (whenPainting)
            whenPainting();
    }
    void UserControl_Resize() override;
    void UserControl_EnterFocus() override { Note("EnterFocus"); }
    void UserControl_GotFocus() override { Note("GotFocus"); }
    void UserControl_LostFocus() override { Note("LostFocus"); }
    void UserControl_ExitFocus() override { Note("ExitFocus"); }
    void UserControl_MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override
    {
        NoteMouse("MouseDown", button, shift, x, y);
    }
    void UserControl_MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override
    {
        NoteMouse("MouseUp", button, shift, x, y);
    }
    void UserControl_Click() override { Note("Click"); }
    void UserControl_DblClick() override { Note("DblClick"); }
    void UserControl_KeyDown(std::int16_t& keyCode, std::int16_t& shift) override { NoteKey("KeyDown", keyCode, shift); }
    void UserControl_KeyUp(std::int16_t& keyCode, std::int16_t& shift) override { NoteKey("KeyUp", keyCode, shift); }
    void UserControl_KeyPress(std::int16_t& keyAscii) override { NoteKey("KeyPress", keyAscii, 0); }
    void UserControl_AccessKeyPress(std::int16_t key) override { Note("AccessKeyPress " + std::to_string(key)); }
    void UserControl_AmbientChanged(base::StringView name) override { Note("AmbientChanged " + Narrow(name)); }

    Log& log_;
    bool canGetFocus_ = true;
    bool isButton_ = false;
};

/// A form that logs its own calls as "Form.Call" and may change the codes of the keys that it sees.
class ProbeForm final : public host::Form {
public:
    explicit ProbeForm(Log& log) : log_(log) {}
    std::function<void(std::int16_t&)> changeKey;

private:
    void NoteKey(const char* what, std::int16_t& code, std::int16_t shift);

    void Form_Initialize() override { log_.Add("Form.Initialize"); }
    void Form_Load() override { log_.Add("Form.Load"); }
    void Form_Unload() override { log_.Add("Form.Unload"); }
    void Form_KeyDown(std::int16_t& keyCode, std::int16_t& shift) override { NoteKey("KeyDown", keyCode, shift); }
    void Form_KeyUp(std::int16_t& keyCode, std::int16_t& shift) override { NoteKey("KeyUp", keyCode, shift); }
    void Form_KeyPress(std::int16_t& keyAscii) override { NoteKey("KeyPress", keyAscii, 0); }

    Log& log_;
};

/// A form of probes and stock controls, loaded from text.
class HostTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    HostTest();
    ~HostTest() override;

    /// Loads the text and shows the form; the log then begins empty.
    void Open(std::string_view formText);
    [[nodiscard]] Probe& ProbeNamed(base::StringView name) { return *form->Find<Probe>(name); }
    [[nodiscard]] HWND WindowOf(base::StringView name) { return form->Find(name)->OwnHandle(); }
    [[nodiscard]] host::Extender& ExtenderOf(base::StringView name) { return form->Find(name)->GetExtender(); }
    [[nodiscard]] std::string ActiveName() const;

    /// Presses and releases a key on the keyboard, with Shift, Ctrl, Alt held (1, 2, 4), and handles all that comes of it.
    void Press(int key, int shift = 0);

    Log log;
    host::ControlFactory factory;
    std::unique_ptr<ProbeForm> form;
};

}  // namespace tests
