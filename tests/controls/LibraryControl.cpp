// What the four controls have in common, asked of each.
#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "controls/TextBox/TextBox.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/UserInput.h"

namespace tests {

class LibraryControl : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(Frame Box { Left = 4500 Width = 4500 Height = 3000 TabIndex = 9 }
            Frame Frame1 { Left = 150 Top = 300 Width = 1500 Height = 450 Tag = "t" TabIndex = 1 }
            CommandButton CommandButton1 { Left = 150 Top = 900 Width = 1500 Height = 450 Tag = "t" TabIndex = 2 }
            CheckBox CheckBox1 { Left = 150 Top = 1500 Width = 1500 Height = 450 Tag = "t" TabIndex = 3 }
            TextBox TextBox1 { Left = 150 Top = 2100 Width = 1500 Height = 450 Tag = "t" TabIndex = 4 }
            TextBox Anchor { Left = 150 Top = 3300 Width = 1500 Height = 450 TabIndex = 5 })");
        form->PropertyChanged.Connect(
            [this](host::Control& control, base::StringView name) { Note(Narrow(control.Kind()) + " " + Narrow(name)); });
    }
    template <class Test>
    void OnEach(Test test)
    {
        for (const char* const name : {"Frame1", "CommandButton1", "CheckBox1", "TextBox1"}) {
            SCOPED_TRACE(name);
            Take();
            test(Get<controls::LibraryControl>(name));
        }
    }
};

TEST_F(LibraryControl, Members_AreTheContainersProperties)
{
    EXPECT_FALSE(form->IsChanged()) << "by what is told while it loads";
    OnEach([&](controls::LibraryControl& control) {
        EXPECT_EQ(control.Name(), base::String(control.Kind()) + TEXT("1"));
        EXPECT_EQ(control.Tag(), TEXT("t"));
        control.Tag(TEXT("other"));
        EXPECT_EQ(control.GetExtender().Tag(), TEXT("other"));
        EXPECT_EQ(&control.Parent(), form.get());
        EXPECT_EQ(&control.Container(), form.get());
        EXPECT_EQ(control.Left(), 150);
        control.Left(300);
        control.Top(600);
        control.Width(900);
        control.Height(750);
        EXPECT_EQ(std::tuple(control.Top(), control.Width(), control.Height()), std::tuple(600, 900, 750));
        EXPECT_EQ(PlaceIn(control.hWnd(), form->hWnd()), (Place{20, 40, 80, 90}));
        EXPECT_TRUE(control.Visible());
        control.Visible(false);
        EXPECT_FALSE(IsWindowVisible(control.hWnd()));
        control.Visible(true);
        const HWND behind = control.OwnHandle() == control.hWnd() ? nullptr : control.OwnHandle();
        control.ZOrder();
        EXPECT_EQ(GetWindow(form->hWnd(), GW_CHILD), control.hWnd());
        EXPECT_TRUE(!behind || GetWindow(control.hWnd(), GW_HWNDNEXT) == behind);
        control.ZOrder(1);
        EXPECT_EQ(GetWindow(control.OwnHandle(), GW_HWNDNEXT), nullptr);
        EXPECT_TRUE(!behind || GetWindow(control.hWnd(), GW_HWNDNEXT) == behind);
    });
}

TEST_F(LibraryControl, GoldenSection_ChangesTheWidthAndTellsIt)
{
    OnEach([&](controls::LibraryControl& control) {
        control.GoldenSection(false);
        EXPECT_EQ(Take(), Lines{});
        control.GoldenSection(true);
        EXPECT_NEAR(control.Width(), 728.115, 0.001) << "450 by the golden ratio";
        EXPECT_EQ(Take(), Lines{Narrow(control.Kind()) + " Width"});
        EXPECT_FALSE(control.GoldenSection());
    });
}

TEST_F(LibraryControl, Font_IsCopiedAndToldAndNeverNone)
{
    const auto given = std::make_shared<host::Font>(host::FontDescription{.name = TEXT("Tahoma"), .size = 12});
    OnEach([&](controls::LibraryControl& control) {
        control.Font(nullptr);
        EXPECT_EQ(Take(), Lines{});
        ASSERT_NE(control.Font(), nullptr);
        control.Font(given);
        EXPECT_EQ(Take(), Lines{Narrow(control.Kind()) + " Font"});
        EXPECT_NE(control.Font(), given) << "a copy";
        EXPECT_EQ(control.Font()->Description(), given->Description());
    });
    given->Bold(true);
    OnEach([&](controls::LibraryControl& control) {
        EXPECT_FALSE(control.Font()->Bold());
        control.Font()->Italic(true);
        EXPECT_EQ(Take(), Lines{Narrow(control.Kind()) + " Font"}) << "what is changed in the control's own font is told";
    });
    for (const char* const name : {"CheckBox1", "TextBox1"}) {
        LOGFONTW shown{};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Any(name).hWnd(), WM_GETFONT, 0, 0)), sizeof shown, &shown);
        EXPECT_NE(shown.lfItalic, 0) << name << " hears of it although both were given one font";
    }
}

TEST_F(LibraryControl, Focus_ComesByCodeMouseAndTabUnlessDisabled)
{
    const std::pair<const char*, std::function<void(controls::LibraryControl&)>> ways[] = {
        {"code", [](auto& control) { control.SetFocus(); }},
        {"mouse",
         [](auto& control) {
             MoveMouse(control.OwnHandle(), 30, 10);
             ClickMouse();
         }},
        {"Tab", [this](auto& control) {
             do
                 PressKey(VK_TAB);
             while (Focused() != Narrow(control.Name()) && Focused() != "Anchor");
         }}};
    OnEach([&](controls::LibraryControl& control) {
        for (const auto& [way, act] : ways)
            for (const bool enabled : {false, true}) {
                control.Enabled(enabled);
                Any("Anchor").SetFocus();
                act(control);
                const bool takesIt = enabled && control.Kind() != TEXT("Frame");
                EXPECT_EQ(Focused(), takesIt ? Narrow(control.Name()) : "Anchor") << way << (enabled ? "" : " while disabled");
                EXPECT_EQ(form->ActiveControl(), takesIt ? &control : &Any("Anchor")) << way;
            }
    });
    EXPECT_EQ(Get<controls::CheckBox>("CheckBox1").Value(), 1) << "one click";
}

TEST_F(LibraryControl, Container_CanBeChanged)
{
    auto& box = Get<controls::Frame>("Box");
    OnEach([&](controls::LibraryControl& control) {
        control.Container(box);
        EXPECT_EQ(&control.Container(), &box);
        EXPECT_EQ(GetParent(control.hWnd()), box.hWnd());
        EXPECT_EQ(GetParent(control.OwnHandle()), box.hWnd());
        EXPECT_EQ(PlaceIn(control.hWnd(), box.hWnd())[0], 10);
        EXPECT_TRUE(IsWindowVisible(control.hWnd()));
    });
    EXPECT_EQ(box.ContainedControls().size(), 4U);
    EXPECT_EQ(form->ContainedControls().size(), 2U);
    Get<controls::CheckBox>("CheckBox1").Click.Connect([this] { Note("click"); });
    Any("CheckBox1").SetFocus();
    Take();
    Press(VK_SPACE);
    EXPECT_EQ(Take(), (Lines{"CheckBox Value", "click"})) << "it listens to its new window";
    Get<controls::Frame>("Frame1").Container(box);
    box.Container(Get<controls::Frame>("Frame1"));
    EXPECT_EQ(&box.Container(), form.get()) << "nothing stands in itself";
}

}  // namespace tests
