#include "host/TabOrder.h"

#include "controls/CommandButton/CommandButton.h"
#include "controls/TextBox/TextBox.h"
#include "tests/controls/FormFixture.h"

namespace tests {

class TabOrder : public FormFixture {
protected:
    /// Presses the key for each of these, which has the focus then.
    void Walk(int key, int shift, std::initializer_list<const char*> names)
    {
        for (const char* const next : names) {
            Press(key, shift);
            EXPECT_EQ(Focused(), next);
        }
    }
};

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
    Walk(VK_TAB, 0, {"Four", "Seven", "One"});
    Walk(VK_LEFT, 0, {"Seven", "Four"});
    Walk(VK_TAB, 1, {"One"});
    // A disabled control is passed over; one that is alone keeps the focus.
    Any("Four").Enabled(false);
    Walk(VK_DOWN, 0, {"Seven"});
    Any("One").GetExtender().Visible(false);
    Walk(VK_RIGHT, 0, {"Seven"});
}

constexpr const char* mixed = R"(
    TextBox Name { Width = 900 Height = 300 TabIndex = 0 Text = "" }
    Frame Box { Top = 600 Width = 3000 Height = 2400 TabIndex = 9
        CheckBox Tick { Top = 300 Width = 900 Height = 300 TabIndex = 1 Caption = "t" }
        ComboBox List { Top = 900 Width = 1500 Height = 315 TabIndex = 2 List = ["a", "b"] }
        TextBox Inner { Top = 1500 Width = 900 Height = 300 TabIndex = 3 Text = "" }
    }
    CommandButton Last { Top = 3300 Width = 900 Height = 300 TabIndex = 4 })";

TEST_F(TabOrder, Tab_GoesThroughAllKindsInAllContainersUnlessDisabled)
{
    Open(mixed);
    EXPECT_EQ(Focused(), "Name");
    Walk(VK_TAB, 0, {"Tick", "List", "Inner", "Last"});
    Any("Inner").SetFocus();
    Walk(VK_TAB, 1, {"List", "Tick", "Name", "Last"});
    Any("Tick").SetFocus();
    Walk(VK_TAB, 2, {"List"});
    Any("Name").SetFocus();
    Any("Box").Enabled(false);
    Walk(VK_TAB, 0, {"Last"});
}

TEST_F(TabOrder, Arrows_StayInTheContainerOfACheckBox)
{
    Open(mixed);
    for (const auto& [key, next] : {std::pair{VK_UP, "Inner"}, {VK_RIGHT, "List"}}) {
        Any("Tick").SetFocus();
        Walk(key, 0, {next});
    }
}

}  // namespace tests
