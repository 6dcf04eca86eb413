// UtilityScene: the utility in its folder C:\Tools on the stand-in PC, with its agent beside it.
#pragma once

#include "app/Form1.h"
#include "platform/sim/SimPc.h"
#include "tests/support/AgentProgram.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tests {

class UtilityScene {
public:
    UtilityScene();
    ~UtilityScene();
    UtilityScene(const UtilityScene&) = delete;
    UtilityScene& operator=(const UtilityScene&) = delete;

    /// Starts the utility as its main function does. False when it did not open its window.
    bool Open();
    /// Ends it from outside and forgets everything that its process kept.
    void Close();
    [[nodiscard]] bool IsOpen() const { return form_ && form_->IsLoaded(); }
    [[nodiscard]] app::Form1& Form() { return *form_; }

    template <class T>
    [[nodiscard]] T& Find(base::StringView name)
    {
        return *form_->Find<T>(name);
    }
    [[nodiscard]] controls::CommandButton& Button(base::StringView name) { return Find<controls::CommandButton>(name); }
    [[nodiscard]] controls::CheckBox& Check(base::StringView name) { return Find<controls::CheckBox>(name); }
    [[nodiscard]] controls::TextBox& Text(base::StringView name) { return Find<controls::TextBox>(name); }
    [[nodiscard]] host::ComboBox& Startup() { return Find<host::ComboBox>(TEXT("ComboStartup")); }
    [[nodiscard]] bool Enabled(base::StringView name) { return form_->Find(name)->Enabled(); }
    /// The names of all disabled controls in the order of the form, with blanks between them.
    [[nodiscard]] std::u16string Disabled();
    /// Presses the control with the mouse.
    void Click(base::StringView name);
    /// The password that the text box shows.
    [[nodiscard]] base::String Password() { return Text(TEXT("TextPassword")).Text(); }

    template <class Area>
    [[nodiscard]] Area& The()
    {
        return pc.Get<Area>();
    }
    /// The agent's settings file beside the utility; empty when there is none.
    [[nodiscard]] std::optional<std::string> Settings(std::u16string_view path = u"C:\\Tools\\Velmora.ini");
    void WriteSettings(std::string_view bytes);
    /// The auto-start value.
    [[nodiscard]] std::optional<std::u16string> AutoStart();
    void SetAutoStart(std::u16string_view text);

    platform::SimPc& pc;
    std::shared_ptr<AgentHabits> agent;

private:
    host::ControlFactory factory_;
    std::unique_ptr<app::Form1> form_;
};

}  // namespace tests
