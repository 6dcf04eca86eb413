// Each control while one Windows call after another fails: without a window, a heap, a device context, a font or a theme it neither
// crashes nor leaks.
#include "controls/CheckBox/CheckBox.h"
#include "controls/RegisterControls.h"
#include "controls/TextBox/TextBox.h"
#include "controls/ThemeState.h"
#include "host/Accessible.h"
#include "host/Form.h"
#include "host/MessageLoop.h"
#include "platform/sim/Desktop.h"
#include "tests/support/FaultSweep.h"
#include "tests/support/Reader.h"

#include <gtest/gtest.h>

using tests::FaultSweep;

namespace {

struct Kind {
    const char* name;
    const char* control;
};

constexpr const char* tip = R"(ToolTipTextW = "A tip" Tooltiptitle = "Title" Left = 150 Top = 150 Width = 900 Height = 450 )";

class FormWithOneControl : public testing::Test {
protected:
    /// The control alone on its form. The version of the common controls is asked for anew.
    bool Load(host::Form& form, const std::string& control)
    {
        controls::ThemeState::OfProcess().AskVersionWith({});
        controls::RegisterControls(factory_);
        platform::SimPc::Current().OnPump([] { host::MessageLoop::RunPending(); });
        const std::size_t brace = control.find('{') + 1;
        return form.Load(
            "Form F { ClientWidth = 1800 ClientHeight = 1200\n" + control.substr(0, brace) + tip + control.substr(brace) + "\n}", factory_);
    }
    ~FormWithOneControl() override { controls::ThemeState::OfProcess().AskVersionWith({}); }

private:
    host::ControlFactory factory_;
};

class ControlFaults : public FormWithOneControl, public testing::WithParamInterface<Kind> {};

TEST_P(ControlFaults, Creation)
{
    FaultSweep([this](const auto& arm) {
        host::Form form;
        arm();
        const bool isLoaded = Load(form, GetParam().control);
        EXPECT_EQ(isLoaded, form.LoadError().empty()) << form.LoadError();
        EXPECT_EQ(isLoaded, IsWindow(form.hWnd()) != FALSE);
        form.Show();
        platform::SimPc::Current().Settle();
        form.Unload();
        EXPECT_EQ(form.hWnd(), nullptr);
    });
}

/// A reader gets an answer or none, and the next time the whole of it.
TEST_P(ControlFaults, ReadOut)
{
    FaultSweep([this](const auto& arm) {
        host::Form form;
        ASSERT_TRUE(Load(form, GetParam().control)) << form.LoadError();
        form.Show();
        const HWND window = form.Controls().front()->hWnd();
        const auto ask = [window] { return SendMessageW(window, WM_GETOBJECT, 0, OBJID_CLIENT); };
        const auto readOut = [](const tests::Reader& reader) {
            LONG left = -1, width = 0;
            reader->accLocation(&left, &left, &width, &width, tests::itself);
            return std::to_string(reader.Role()) + reader.Name() + reader.Value() + reader.Description() + std::to_string(width);
        };
        const tests::Reader reader(new host::Accessible(window));
        reader->AddRef();
        const std::string whole = readOut(reader);
        EXPECT_NE(whole.find("A tip"), std::string::npos);
        arm();
        const LRESULT answer = ask();
        readOut(reader);
        platform::SimPc::Current().GetFaults().Clear();
        if (answer > 0) {
            EXPECT_EQ(readOut(tests::Reader::Of(answer)), whole);
        }
        EXPECT_EQ(readOut(tests::Reader::Of(ask())), whole);
    });
}

/// A form with one of the two controls that show a system window, and what the user and the program know of it.
class HostedFaults : public FormWithOneControl {
protected:
    template <class Control>
    Control& Show(host::Form& form, const std::string& control)
    {
        EXPECT_TRUE(Load(form, control)) << form.LoadError();
        form.Show();
        SetForegroundWindow(form.hWnd());
        platform::SimPc::Current().Settle();
        auto& shown = dynamic_cast<Control&>(*form.Controls().front());
        shown.SetFocus();
        return shown;
    }
    /// After the fault the control is whole again at the next new window, and takes keys.
    template <class Control>
    static void ExpectWhole(host::Form& form, Control& control)
    {
        platform::SimPc::Current().GetFaults().Clear();
        control.BorderStyle(2);
        control.SetFocus();
        ASSERT_TRUE(IsWindow(control.hWnd()));
        EXPECT_EQ(GetFocus(), control.hWnd());
        EXPECT_EQ(form.ActiveControl(), &control);
        EXPECT_TRUE(IsWindowVisible(control.hWnd()) && IsWindowEnabled(control.hWnd()));
        EXPECT_EQ(GetWindowLongW(control.hWnd(), GWL_EXSTYLE) & WS_EX_STATICEDGE, WS_EX_STATICEDGE);
    }
};

/// What was typed is lost at no call: a window that cannot be made anew leaves its text to the next one.
TEST_F(HostedFaults, TextOfATextBox)
{
    FaultSweep([this](const auto& arm) {
        auto& desktop = platform::SimPc::Current().Get<platform::Desktop>();
        host::Form form;
        auto& box = Show<controls::TextBox>(form, R"(TextBox C { Text = "text" EnhacedLineComputing = 1 })");
        base::String known = box.Text();
        arm();
        desktop.Type(u"ab");
        if (box.hWnd())
            known = box.Text();
        const std::function<void()> renewals[] = {[&] { box.MultiLine(true); },
                                                  [&] { box.ScrollBars(2); },
                                                  [&] { box.WordWrap(1); },
                                                  [&] { box.HideSelection(false); },
                                                  [&] { box.MultiLine(false); },
                                                  [&] { box.BorderStyle(4); },
                                                  [&] { box.UseSystemPasswordChar(true); },
                                                  [&] { desktop.AnnounceThemeChange(); },
                                                  [&] { box.UseSystemPasswordChar(false); }};
        for (const auto& renew : renewals) {
            SCOPED_TRACE(&renew - renewals);
            renew();
            EXPECT_EQ(box.Text(), known);
            EXPECT_EQ(form.ActiveControl(), &box);
        }
        box.Font(std::make_shared<host::Font>(host::FontDescription{.name = TEXT("Tahoma"), .size = 12}));
        box.MaxLength(50);
        box.Locked(true);
        box.Locked(false);
        EXPECT_EQ(box.Text(), known);
        ExpectWhole(form, box);
        EXPECT_EQ(box.Text(), known);
        EXPECT_EQ(box.Font()->Name(), TEXT("Tahoma"));
        EXPECT_EQ(SendMessageW(box.hWnd(), EM_GETLIMITTEXT, 0, 0), 50);
        box.SetSel(0, INT32_MAX);
        desktop.Type(u"z");
        EXPECT_EQ(box.Text(), TEXT("z"));
    });
}

TEST_F(HostedFaults, ValueOfACheckBox)
{
    FaultSweep([this](const auto& arm) {
        auto& desktop = platform::SimPc::Current().Get<platform::Desktop>();
        host::Form form;
        auto& box = Show<controls::CheckBox>(form, R"(CheckBox C { BackStyle = 1 Caption = "A &check box" })");
        box.Value(2);
        arm();
        const std::function<void()> renewals[] = {[&] { box.Style(1); },       [&] { box.AlignRight(true); },
                                                  [&] { box.BorderStyle(4); }, [&] { desktop.AnnounceThemeChange(); },
                                                  [&] { box.Style(0); },       [&] { box.BackStyle(0); }};
        for (const auto& renew : renewals) {
            SCOPED_TRACE(&renew - renewals);
            renew();
            EXPECT_EQ(box.Value(), 2);
            EXPECT_EQ(box.Caption(), TEXT("A &check box"));
            EXPECT_EQ(form.ActiveControl(), &box);
        }
        box.FontAutoSize(true);
        box.Caption(TEXT("A caption that is far too wide for the box"));
        box.MultiLine(true);
        box.Alignment(2);
        ExpectWhole(form, box);
        EXPECT_EQ(box.Caption(), TEXT("A caption that is far too wide for the box"));
        EXPECT_EQ(GetWindowLongW(box.hWnd(), GWL_STYLE) & (BS_MULTILINE | BS_CENTER), BS_MULTILINE | BS_CENTER);
        EXPECT_EQ(SendMessageW(box.hWnd(), BM_GETCHECK, 0, 0), 2);
        desktop.Press(VK_SPACE);
        EXPECT_EQ(box.Value(), 0);
    });
}

/// What happens to a control in its life: the mouse rests on it and leaves, it is told to look and stand otherwise, and draws each time.
TEST_P(ControlFaults, Life)
{
    FaultSweep([this](const auto& arm) {
        auto& pc = platform::SimPc::Current();
        auto& desktop = pc.Get<platform::Desktop>();
        host::Form form;
        ASSERT_TRUE(Load(form, GetParam().control)) << form.LoadError();
        form.Show();
        pc.Settle();
        host::Control& control = *form.Controls().front();
        arm();
        desktop.Hover(control.OwnHandle(), 20, 10);
        desktop.Hover(control.OwnHandle(), 22, 10);
        pc.Advance(700);
        desktop.MouseDown();
        desktop.MouseUp();
        desktop.Press(VK_SPACE);
        desktop.Hover(form.hWnd(), 110, 75);
        pc.Advance(200);
        control.Enabled(false);
        control.GetExtender().Move(300, 300, 1200, 600);
        control.Enabled(true);
        form.BackColor(0x8080FF);
        desktop.AnnounceThemeChange();
        desktop.AnnounceColorChange();
        pc.Settle();
        EXPECT_TRUE(IsWindow(form.hWnd()));
        form.Unload();
    });
}

const Kind kinds[] = {
    {"ThemedFrame", R"(Frame C { ForceTrueType = 1 DragDropEnabled = 1 EnableDisableChilds = 1 Caption = "A &frame" Font = Font("Symbol", 8)
        Label L { Left = 150 Top = 225 Width = 450 Height = 210 Caption = "text" } })"},
    {"RoundFrame", "Frame C { UseClassicTheme = 1 BackStyle = 1 BorderRound = 8 BorderColorDark = 0x000000FF }"},
    {"SquareFrame", "Frame C { UseClassicTheme = 1 BorderColorDark = 0x000000FF }"},
    {"ThemedButton", R"(CommandButton C { Style = 7 Caption = "A &button" ShowFocus = 1 ForceTrueType = 1 Font = Font("Symbol", 8) })"},
    {"SoftRoundButton", R"(CommandButton C { Style = 10 Caption = "A &button" ShowFocus = 1 FontAutoSize = 1 CaptionFx = 1 })"},
    {"ClassicButton", R"(CommandButton C { Style = 0 Caption = "A &button" ButtonType = 1 FontAutoSize = 2 USeCustomColors = 1 })"},
    {"CheckBox", R"(CheckBox C { AutoSize = 1 ForceTrueType = 1 Caption = "A &check box" Font = Font("Symbol", 8) })"},
    {"TransparentCheckBox", R"(CheckBox C { Transparent = 1 UseClassicTheme = 1 BackStyle = 1 Caption = "A &check box" })"},
    {"TextBox", R"(TextBox C { Text = "text" ForceTrueType = 1 DragDropEnabled = 1 UseSystemPasswordChar = 1 Font = Font("Symbol", 8) })"},
    {"MultiLineTextBox", R"(TextBox C { Text = "one two" MultiLine = 1 ScrollBars = 2 WordWrap = 2 UseClassicTheme = 1 })"}};

INSTANTIATE_TEST_SUITE_P(EachOf, ControlFaults, testing::ValuesIn(kinds), [](const auto& kind) { return std::string(kind.param.name); });

}  // namespace
