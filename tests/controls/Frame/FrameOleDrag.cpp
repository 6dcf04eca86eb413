// A frame's window among the drop targets of OLE.
#include "controls/Frame/Frame.h"
#include "host/OleDragTarget.h"
#include "tests/controls/FormFixture.h"

namespace tests {

class FrameOleDrag : public FormFixture {
protected:
    /// Whether anything may be dropped on the window: nobody else can register it then.
    [[nodiscard]] bool Takes(HWND window)
    {
        const host::OleSession session;
        const auto link = std::make_shared<host::OleDragLink>();
        const HRESULT result = RegisterDragDrop(window, host::MakeCom<host::OleDragTarget>(link, window).Get());
        EXPECT_TRUE(result == S_OK || result == DRAGDROP_E_ALREADYREGISTERED) << result;
        if (result != S_OK)
            return true;
        EXPECT_EQ(RevokeDragDrop(window), S_OK);
        return false;
    }
};

TEST_F(FrameOleDrag, DropMode1_MakesTheWindowADropTarget)
{
    Open(R"(Frame Box { Width = 3000 Height = 1500 OLEDropMode = 1 }
        Frame Other { Left = 3000 Width = 3000 Height = 1500 })");
    auto& other = Get<controls::Frame>("Other");
    EXPECT_TRUE(Takes(Any("Box").hWnd()));
    EXPECT_FALSE(Takes(other.hWnd()));
    for (const std::int16_t mode : {1, 1, 0, 0, 1, 2, -1}) {
        other.OLEDropMode(mode);
        EXPECT_EQ(Takes(other.hWnd()), mode == 1) << mode;
        EXPECT_EQ(other.OLEDropMode(), mode);
    }
    other.OLEDropMode(1);
    // Windows destroys the frames here before anybody unloads the form.
    DestroyWindow(other.hWnd());
    other.OLEDropMode(0);
    other.OLEDropMode(1);
    other.OLEDrag();
}

}  // namespace tests
