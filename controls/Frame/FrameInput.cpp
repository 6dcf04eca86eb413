// FrameInput: the messages that a frame watches on its own window.
#include "controls/DroppedFiles.h"
#include "controls/Frame/Frame.h"

#include "base/Handles.h"

namespace controls {

void Frame::SubclassControl_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM, LRESULT&, bool& handled)
{
    switch (message) {
        case WM_MOUSEMOVE:
            MouseMovedOver(window);
            break;
        case WM_MOUSELEAVE:
            MouseLeft();
            break;
        case WM_THEMECHANGED:
        case WM_SYSCOLORCHANGE:
            DrawFrame();
            break;
        case WM_CONTEXTMENU:
            ContextMenu.Raise();
            break;
        case WM_TIMER:
            if (fixPending_) {
                KillTimer(window, 0);
                fixPending_ = false;
            }
            FixBlackLine();
            break;
        case WM_PAINT:
            FixBlackLine();
            FixBlackLineRetard();
            break;
        case WM_NCPAINT:
        case WM_DRAWITEM:
        case WM_CTLCOLORSTATIC:
        case WM_NOTIFY:
            FixBlackLine();
            break;
        case WM_DROPFILES:
            if (dragDropEnabled_) {
                handled = true;
                OnDropFiles(wParam);
            }
            break;
        default:
            break;
    }
}

void Frame::OnDropFiles(WPARAM drop)
{
    std::vector<base::String> paths = TakeDroppedFiles(reinterpret_cast<HDROP>(drop));
    auto count = static_cast<std::int16_t>(paths.size());
    if (count > 0)
        DragDropFile.Raise(paths, count);
}

void Frame::FixBlackLine()
{
    const HDC dc = windowDc_.Get();
    const base::PenHandle pen(CreatePen(PS_SOLID, 1, TranslateOleColor(BackColor())));
    if (!dc || !pen)
        return;
    const HGDIOBJ former = SelectObject(dc, pen.Get());
    MoveToEx(dc, 0, 0, nullptr);
    LineTo(dc, GetSurface().ScaleWidth(), 0);
    SelectObject(dc, former);
}

void Frame::FixBlackLineRetard()
{
    if (!fixPending_)
        fixPending_ = SetTimer(hWnd(), 0, 10, nullptr) != 0;
}

}  // namespace controls
