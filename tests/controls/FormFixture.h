// FormFixture: a form with controls, a user before it and a log of events.
#pragma once

#include "controls/RegisterControls.h"
#include "host/Form.h"
#include "tests/support/Place.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tests {

[[nodiscard]] std::string Narrow(base::StringView text);
[[nodiscard]] base::String Wide(std::string_view text);

/// A form whose keys can be seen and swallowed; it publishes its routines only when asked to.
class KeyForm final : public host::Form {
public:
    std::vector<std::string> keys;
    bool unloadsOnEscape = false;

    void PublishRoutines();

private:
    void Form_KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
    void Form_KeyPress(std::int16_t& keyAscii) override;
};

class FormFixture : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    FormFixture();
    ~FormFixture() override;

    /// Loads a new form with this text between its braces, 600 by 400 pixels, and shows it in the foreground, in place of the one before.
    void Open(std::string_view controls, bool userMode = true);
    /// A control by its name.
    template <class T>
    [[nodiscard]] T& Get(std::string_view name)
    {
        return *form->Find<T>(Wide(name));
    }
    [[nodiscard]] host::Control& Any(std::string_view name) { return *form->Find(Wide(name)); }
    /// Presses and releases a key with Shift, Ctrl, Alt held (1, 2, 4) and handles all that comes of it.
    void Press(int key, int shift = 0);
    void Click(HWND window);
    /// Name of the control whose window has the keyboard focus.
    [[nodiscard]] std::string Focused() const;
    void Note(const std::string& line) { log.push_back(line); }
    /// The lines since the last call.
    Lines Take() { return std::exchange(log, {}); }

    Lines log;
    host::ControlFactory factory;
    std::unique_ptr<KeyForm> form;
};

}  // namespace tests
