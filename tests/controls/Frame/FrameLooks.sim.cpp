// Every look of the frame, to the pixel.
#include "controls/Frame/Frame.h"
#include "platform/sim/Desktop.h"
#include "platform/sim/Theme.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/Golden.h"

namespace tests {

class FrameLooks : public FormFixture {};

TEST_F(FrameLooks, OfEachFrame_AreLikeItsPicture)
{
    Open("Frame Box { Width = 1800 Height = 600 }");
    form->BackColor(0xE0C0A0);
    form->ForeColor(0x104080);
    controls::Frame& box = Get<controls::Frame>("Box");
    Golden golden("Frame");
    const auto show = [&](const std::string& name) {
        for (const bool enabled : {true, false})
            for (const bool captioned : {true, false}) {
                box.Enabled(enabled);
                box.Caption(captioned ? TEXT("A &frame && more") : TEXT(""));
                golden.Expect(name + (enabled ? "" : ", disabled") + (captioned ? "" : ", no caption"), box.GetSurface().Dc());
            }
    };
    auto& pc = platform::SimPc::Current();
    show("themed");
    box.BackStyle(1);
    show("themed, container's colours");
    box.BackStyle(0);
    box.BackColor(host::SystemColor(COLOR_BTNFACE));
    box.ForeColor(host::SystemColor(COLOR_BTNTEXT));
    pc.Get<platform::Desktop>().KeyboardCues(true);
    show("themed, keyboard cues");
    box.BorderStyle(0);
    show("themed, no border");
    box.UseClassicTheme(true);
    show("classic, no border");
    box.BorderStyle(1);
    for (const bool custom : {false, true}) {
        box.BorderColorDark(custom ? 0x0000C0 : host::SystemColor(COLOR_BTNSHADOW));
        box.BorderColorLight(custom ? 0xFF8080 : host::SystemColor(COLOR_BTNHIGHLIGHT));
        for (const int round : {0, 8})
            for (const std::uint8_t appearance : {0, 1, 2}) {
                box.BorderRound(round);
                box.Appearance(appearance);
                const char* const looks[] = {"flat", "etched", "inverted"};
                show(std::string("classic, ") + looks[appearance] + ", round " + std::to_string(round) + (custom ? ", own colours" : ""));
            }
    }
    box.BackStyle(1);
    show("classic, container's colours");
    box.Invisible(true);
    show("invisible");
    box.UseClassicTheme(false);
    show("themed, invisible");
}

}  // namespace tests
