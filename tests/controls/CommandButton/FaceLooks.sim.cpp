// Every face, to the pixel. Pictures of them all lie beside the hashes, in tests/golden/CommandButton: to the left without, to the right
// with colours of their own, made by `./dev gallery --native --sheet 0 18 113x33 BackColor=0x406080 ...`.
#include "controls/CommandButton/ThemeButton.h"
#include "tests/controls/CommandButton/ButtonPaper.h"
#include "tests/support/Golden.h"

#include <gtest/gtest.h>

#include <string>

namespace tests {

TEST(FaceLooks, OfEachStyle_AreLikeItsPicture)
{
    using namespace controls;
    const char* const states[] = {"normal", "hot", "pressed", "disabled", "defaulted"};
    Golden golden("CommandButton");
    for (const SIZE size : {SIZE{60, 23}, SIZE{113, 33}, SIZE{300, 80}}) {
        for (std::int32_t style = 0; style < 19; ++style) {
            for (const bool own : {false, true}) {
                for (std::int32_t state = StateNormal; state <= StateDefaulted; ++state) {
                    ButtonPaper paper(size.cx, size.cy);
                    const ButtonLook look = ButtonPaper::Look(state, own);
                    paper.Draw(style, look, look.IsDisabled() ? look.ground : GetSysColor(COLOR_BTNFACE));
                    Canvas canvas(paper.Dc(), size.cx, size.cy);
                    EXPECT_TRUE(style != ThemeStyle || PaintThemeButton(canvas, nullptr, state, nullptr));
                    golden.Expect(std::string(ButtonStyleOf(style).name) + ", " + std::to_string(size.cx) + " by " +
                                      std::to_string(size.cy) + (own ? ", own colours, " : ", ") + states[state - 1],
                                  paper.Dc());
                }
            }
        }
    }
}

}  // namespace tests
