#include "host/Extender.h"

#include "tests/host/Probe.h"

namespace tests {

class Extender : public HostTest {
protected:
    Place At(base::StringView name) { return PlaceIn(WindowOf(name), GetParent(WindowOf(name))); }
};

TEST_F(Extender, Twips_MoveTheWindowAtOnce)
{
    Open("Form F { ClientWidth = 4500 ClientHeight = 3000 Probe P { Left = 30 Top = 45 Width = 900 Height = 300 TabIndex = 0 } }");
    auto& extender = ExtenderOf(TEXT("P"));
    EXPECT_EQ(At(TEXT("P")), (Place{2, 3, 62, 23}));
    extender.Left(150);
    extender.Top(75);
    EXPECT_EQ(log.Take(), Lines{});
    extender.Width(1500);
    extender.Height(450);
    EXPECT_EQ(log.Take(), (Lines{"P.Resize 100x20", "P.Resize 100x30"}));
    EXPECT_EQ(At(TEXT("P")), (Place{10, 5, 110, 35}));
    extender.Move(37, 38, 293, 157);
    EXPECT_EQ(At(TEXT("P")), (Place{2, 3, 22, 13})) << "to the nearest pixel";
    EXPECT_EQ(log.Take(), Lines{"P.Resize 20x10"});
}

TEST_F(Extender, FormInPixels_PlacesItsOwnControlsInPixelsAndInnerOnesInTwips)
{
    Open(R"(Form F { ClientWidth = 4500 ClientHeight = 3000 ScaleMode = 3
        Probe P { Left = 7 Top = 9 Width = 100 Height = 50 TabIndex = 0
            Probe Q { Left = 300 Top = 150 Width = 300 Height = 150 TabIndex = 1 } } })");
    EXPECT_EQ(At(TEXT("P")), (Place{7, 9, 107, 59}));
    EXPECT_EQ(At(TEXT("Q")), (Place{20, 10, 40, 20}));
    EXPECT_EQ(ProbeNamed(TEXT("Q")).ContainerScale(), host::ScaleMode::Twips);
    EXPECT_NE(form->Write().find("ScaleMode = 3\n"), std::string::npos);
}

}  // namespace tests
