#include "host/TabOrder.h"

#include "controls/CommandButton/CommandButton.h"
#include "controls/TextBox/TextBox.h"
#include "tests/controls/FormFixture.h"

namespace tests {

class TabOrder : public FormFixture {};

constexpr const char* threeButtons = R"(
    CommandButton One { Width = 900 Height = 300 TabIndex = 1 }
    Label Text { Top = 300 Width = 900 Height = 300 TabIndex = 2 Caption = "x" }
    CommandButton Four { Top = 600 Width = 900 Height = 300 TabIndex = 4 }
    CommandButton Seven { Top = 900 Width = 900 Height = 300 TabIndex = 7 }
    Frame Box { Top = 1500 Width = 3000 Height = 1500 TabIndex = 5
        CommandButton Inside { Top = 300 Width = 900 Height = 300 TabIndex = 6 }
    })";

TEST_F(TabOrder, Buttons_StayInTheirContainerAndWrap)
{
    Open(threeButtons);
    EXPECT_EQ(Focused(), "One");
    for (const char* const next : {"Four", "Seven", "One"}) {
        Press(VK_TAB);
        EXPECT_EQ(Focused(), next);
    }
    for (const char* const next : {"Seven", "Four"}) {
        Press(VK_LEFT);
        EXPECT_EQ(Focused(), next);
    }
    Press(VK_TAB, 1);
    EXPECT_EQ(Focused(), "One");
    Any("Four").Enabled(false);
    Press(VK_DOWN);
    EXPECT_EQ(Focused(), "Seven") << "a disabled control is passed over";
    Any("One").GetExtender().Visible(false);
    Press(VK_RIGHT);
    EXPECT_EQ(Focused(), "Seven") << "alone, it keeps the focus";
}

constexpr const char* mixed = R"(
    TextBox Name { Width = 900 Height = 300 TabIndex = 0 Text = "" }
    Frame Box { Top = 600 Width = 3000 Height = 2400 TabIndex = 9
        CheckBox Tick { Top = 300 Width = 900 Height = 300 TabIndex = 1 Caption = "t" }
        ComboBox List { Top = 900 Width = 1500 Height = 315 TabIndex = 2 List = ["a", "b"] }
        TextBox Inner { Top = 1500 Width = 900 Height = 300 TabIndex = 3 Text = "" }
    }
    CommandButton Last { Top = 3300 Width = 900 Height = 300 TabIndex = 4 })";

TEST_F(TabOrder, Tab_GoesThroughAllKindsInAllContainers)
{
    Open(mixed);
    EXPECT_EQ(Focused(), "Name");
    for (const char* const next : {"Tick", "List", "Inner", "Last"}) {
        Press(VK_TAB);
        EXPECT_EQ(Focused(), next);
    }
    Any("Inner").SetFocus();
    for (const char* const next : {"List", "Tick", "Name", "Last"}) {
        Press(VK_TAB, 1);
        EXPECT_EQ(Focused(), next);
    }
}

TEST_F(TabOrder, Arrows_StayInTheContainerOfACheckBox)
{
    Open(mixed);
    Any("Tick").SetFocus();
    Press(VK_UP);
    EXPECT_EQ(Focused(), "Inner");
    Any("Tick").SetFocus();
    Press(VK_RIGHT);
    EXPECT_EQ(Focused(), "List");
}

TEST_F(TabOrder, DisabledContainer_IsPassedOver)
{
    Open(mixed);
    Any("Box").Enabled(false);
    Press(VK_TAB);
    EXPECT_EQ(Focused(), "Last");
}

}  // namespace tests
