#include "host/KeyRouting.h"

#include "host/ComboBox.h"
#include "host/Label.h"
#include "tests/host/Probe.h"

namespace tests {

class KeyRouting : public HostTest {
protected:
    /// Which controls are told of their access key by this press, each with a blank behind it.
    std::string AccessKeysOf(int key, int shift = 0)
    {
        log.Take();
        Press(key, shift);
        std::string told;
        for (const std::string& line : log.Take())
            if (line.find("AccessKeyPress") != std::string::npos)
                told += line.substr(0, line.find('.')) + " ";
        return told;
    }
};

constexpr const char* keyboard = R"(Form F {
    ClientWidth = 4500
    ClientHeight = 4500
    KeyPreview = True
    Probe Plain { Left = 0 Top = 0 Width = 900 Height = 300 TabIndex = 0 }
    Probe Press { Left = 0 Top = 600 Width = 900 Height = 300 TabIndex = 1 Button = True Key = "p" }
    Probe Ok { Left = 0 Top = 1200 Width = 900 Height = 300 TabIndex = 4 Default = True Button = True Key = "o" }
    Probe Leave { Left = 0 Top = 1800 Width = 900 Height = 300 TabIndex = 5 Cancel = True Button = True }
    Label Caption { Left = 1500 Top = 0 Width = 900 Height = 300 TabIndex = 2 Caption = "Save && &list" }
    ComboBox Combo { Left = 1500 Top = 600 Width = 1500 Height = 315 TabIndex = 3 List = ["a", "b"] }
    Probe Group { Left = 1500 Top = 1800 Width = 900 Height = 300 TabIndex = 6 Key = "o" Focus = False }
})";

TEST_F(KeyRouting, Preview_SeesKeysFirstAndMayChangeOrSwallowThem)
{
    Open(keyboard);
    Press('A');
    EXPECT_EQ(log.Take(),
              (Lines{"Form.KeyDown 65", "Plain.KeyDown 65", "Form.KeyPress 97", "Plain.KeyPress 97", "Form.KeyUp 65", "Plain.KeyUp 65"}));
    form->changeKey = [](std::int16_t& code) { code = code == 65 ? std::int16_t{66} : code; };
    Press('A');
    EXPECT_EQ(log.Take(),
              (Lines{"Form.KeyDown 65", "Plain.KeyDown 66", "Form.KeyPress 98", "Plain.KeyPress 98", "Form.KeyUp 65", "Plain.KeyUp 66"}));
    form->changeKey = [](std::int16_t& code) { code = 0; };
    Press('A');
    EXPECT_EQ(log.Take(), (Lines{"Form.KeyDown 65", "Form.KeyUp 65"}));
    form->changeKey = nullptr;
    form->KeyPreview(false);
    ProbeNamed(TEXT("Plain")).swallowsKeys = true;
    Press('A');
    EXPECT_EQ(log.Take(), (Lines{"Plain.KeyDown 65", "Plain.KeyPress 97", "Plain.KeyUp 65"}));
}

TEST_F(KeyRouting, EnterAndEsc_PressTheButtonsThatTheFormNames)
{
    Open(keyboard);
    form->KeyPreview(false);
    const auto pressedBy = [&](base::StringView focused, int key, int shift = 0) {
        form->Find(focused)->SetFocus();
        return AccessKeysOf(key, shift);
    };
    EXPECT_EQ(pressedBy(TEXT("Plain"), VK_RETURN), "Ok ");
    EXPECT_EQ(pressedBy(TEXT("Combo"), VK_RETURN), "Ok ");
    EXPECT_EQ(pressedBy(TEXT("Press"), VK_RETURN), "");
    EXPECT_EQ(pressedBy(TEXT("Press"), VK_ESCAPE), "Leave ");
    EXPECT_EQ(pressedBy(TEXT("Combo"), VK_ESCAPE), "Leave ");
    EXPECT_EQ(pressedBy(TEXT("Plain"), VK_RETURN, 2), "");
    EXPECT_EQ(ActiveName(), "Plain");
    ProbeNamed(TEXT("Ok")).Enabled(false);
    EXPECT_EQ(pressedBy(TEXT("Plain"), VK_RETURN), "");
    // Enter and Esc belong to a list that is dropped down.
    SendMessageW(WindowOf(TEXT("Combo")), CB_SHOWDROPDOWN, TRUE, 0);
    EXPECT_EQ(pressedBy(TEXT("Combo"), VK_ESCAPE), "");
    EXPECT_EQ(SendMessageW(WindowOf(TEXT("Combo")), CB_GETDROPPEDSTATE, 0, 0), FALSE);
}

TEST_F(KeyRouting, AltAndALetter_GoToTheControlWithThatKey)
{
    Open(keyboard);
    const auto afterAlt = [&](int key) {
        const std::string told = AccessKeysOf(key, 4);
        return told + ActiveName();
    };
    EXPECT_EQ(afterAlt('P'), "Press Press");
    // A label's key is for the control that follows it.
    EXPECT_EQ(afterAlt('L'), "Combo");
    // Two controls with one letter take turns; the group can't have the focus and hands it on.
    EXPECT_EQ(afterAlt('O'), "Ok Ok");
    EXPECT_EQ(afterAlt('O'), "Group Plain");
    ProbeNamed(TEXT("Press")).Enabled(false);
    EXPECT_EQ(afterAlt('P'), "Plain");
}

TEST_F(KeyRouting, F6_GoesRoundTheContainers)
{
    Open(R"(Form F {
    ClientWidth = 4500
    ClientHeight = 4500
    Probe Upper {
        Left = 0 Top = 0 Width = 2000 Height = 900 TabIndex = 8 Focus = False
        Probe A { Left = 0 Top = 0 Width = 900 Height = 300 TabIndex = 0 }
        Probe B { Left = 0 Top = 300 Width = 900 Height = 300 TabIndex = 1 }
    }
    Probe Lower {
        Left = 0 Top = 1000 Width = 2000 Height = 900 TabIndex = 9 Focus = False
        ComboBox C { Left = 0 Top = 0 Width = 1500 Height = 315 TabIndex = 2 List = ["a"] }
        Probe D { Left = 0 Top = 400 Width = 900 Height = 300 TabIndex = 3 }
    }
    Probe E { Left = 0 Top = 3000 Width = 900 Height = 300 TabIndex = 4 }
})");
    form->Find(TEXT("A"))->SetFocus();
    std::string way, back;
    for (int i = 0; i < 3; ++i)
        Press(VK_F6), way += ActiveName();
    for (int i = 0; i < 3; ++i)
        Press(VK_F6, 1), back += ActiveName();
    EXPECT_EQ(way, "CEA");
    EXPECT_EQ(back, "EDB");
    log.Take();
    Press(VK_F6, 2);
    EXPECT_EQ(log.Take(), (Lines{"B.KeyDown 17 2", "B.KeyDown 117 2", "B.KeyUp 117 2", "B.KeyUp 17"})) << "with Ctrl it is a key";
}

}  // namespace tests
