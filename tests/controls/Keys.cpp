// Keys of hosted windows on their way to the form and its buttons.
#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/TextBox/TextBox.h"
#include "host/MessageLoop.h"
#include "tests/controls/FormFixture.h"

#include <algorithm>

namespace tests {

class Keys : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(KeyPreview = True
            Frame Box { Width = 3000 Height = 3000 TabIndex = 9
                TextBox Text { Top = 300 Width = 900 Height = 300 TabIndex = 0 Text = "" }
                CheckBox Tick { Top = 900 Width = 900 Height = 300 TabIndex = 1 Caption = "t" }
            }
            ComboBox List { Top = 3600 Width = 900 Height = 315 TabIndex = 2 List = ["a"] }
            CommandButton Ok { Left = 3300 Width = 900 Height = 300 TabIndex = 3 Default = True }
            CommandButton No { Left = 3300 Top = 600 Width = 900 Height = 300 TabIndex = 4 Cancel = True }
            TextBox Outer { Left = 3300 Top = 1200 Width = 900 Height = 300 TabIndex = 5 Text = "" })");
        Get<controls::CommandButton>("Ok").Click.Connect([this] { Note("Ok"); });
        Get<controls::CommandButton>("No").Click.Connect([this] { Note("No"); });
    }
};

TEST_F(Keys, PreviewingForm_SeesThemFromEverywhere)
{
    for (const char* const name : {"Tick", "Ok", "List", "Outer", "Text"}) {
        Any(name).SetFocus();
        form->keys.clear();
        Press(VK_ESCAPE, 1);
        EXPECT_NE(std::ranges::find(form->keys, "down 27 1"), form->keys.end()) << name;
        form->keys.clear();
        Press(VK_F5, 4);
        EXPECT_NE(std::ranges::find(form->keys, "down 116 4"), form->keys.end()) << name;
    }
}

TEST_F(Keys, PublishedRoutine_IsCalledOnce)
{
    form->PublishRoutines();
    Any("Text").SetFocus();
    Press('A');
    EXPECT_EQ(form->keys, (std::vector<std::string>{"down 65 0", "press 97"}));
}

TEST_F(Keys, RoutinePublishedAfterTheFirstKey_IsNotLookedFor)
{
    Any("Text").SetFocus();
    Press('A');
    int called = 0;
    form->Publish(TEXT("Form_KeyDown"), [&](std::int16_t&, std::int16_t&) { ++called; });
    Press('A');
    EXPECT_EQ(called, 0) << "what is not there once gets messages for good";
    EXPECT_EQ(std::ranges::count(form->keys, "down 65 0"), 2);
}

TEST_F(Keys, EscapeThatUnloadsTheForm_IsSafeFromEverywhere)
{
    form->unloadsOnEscape = true;
    Any("Text").SetFocus();
    Press(VK_ESCAPE);
    EXPECT_FALSE(form->IsLoaded());
}

TEST_F(Keys, EnterAndEscape_PressTheFormsButtonsFromInsideAContainer)
{
    for (const char* const name : {"Text", "Tick"}) {
        Any(name).SetFocus();
        Press(VK_RETURN);
        EXPECT_EQ(Take(), Lines{"Ok"}) << name;
        Press(VK_ESCAPE);
        EXPECT_EQ(Take(), Lines{"No"}) << name;
    }
    Any("Outer").SetFocus();
    Press(VK_RETURN);
    EXPECT_EQ(Take(), Lines{}) << "directly on the form nothing is posted";
}

TEST_F(Keys, SwallowedKey_NeverReachesTheEdit)
{
    auto& text = Get<controls::TextBox>("Text");
    text.SetFocus();
    text.KeyPress.Connect([](std::int16_t& code) { code = code == 'a' ? std::int16_t{'b'} : std::int16_t{0}; });
    SendMessageW(text.hWnd(), WM_CHAR, 'a', 0);
    SendMessageW(text.hWnd(), WM_CHAR, 'x', 0);
    EXPECT_EQ(text.Text(), TEXT("b")) << "another code is typed, none at all is not";
}

TEST_F(Keys, DeactivatedForm_GivesTheFocusBackToItsControl)
{
    const HWND other =
        CreateWindowExW(0, TEXT("Static"), TEXT(""), WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    for (const char* const name : {"Tick", "Text", "Ok", "Outer"}) {
        SetForegroundWindow(form->hWnd());
        Any(name).SetFocus();
        SetForegroundWindow(other);
        host::MessageLoop::RunPending();
        EXPECT_EQ(Focused(), "none");
        SetForegroundWindow(form->hWnd());
        host::MessageLoop::RunPending();
        EXPECT_EQ(Focused(), name) << "and to none that had it before";
    }
    DestroyWindow(other);
}

}  // namespace tests
