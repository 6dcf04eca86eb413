// CheckBoxLayout: the box is as wide as a menu's check mark, with edges around it.
#include "controls/CheckBox/CheckBoxLayout.h"

#include <windows.h>

namespace controls {

int AutoSizeWidth(int textWidth)
{
    return textWidth + GetSystemMetrics(SM_CXMENUCHECK) + 4 * GetSystemMetrics(SM_CXEDGE);
}

int RoomForCaption(int width)
{
    return width - (GetSystemMetrics(SM_CXMENUCHECK) + 3 * GetSystemMetrics(SM_CXEDGE));
}

}  // namespace controls
