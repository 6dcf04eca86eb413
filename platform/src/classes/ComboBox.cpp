// ComboBox: the field of a combo box, its keys and its mouse.
#include "platform/src/classes/ComboBox.h"

#include "platform/src/classes/SystemClasses.h"
#include "platform/src/text/Case.h"

#include <algorithm>

namespace platform {

LRESULT CALLBACK ComboBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ControlProcedure<ComboBox>(window, message, wParam, lParam);
}

bool ComboBox::Create(const CREATESTRUCTW& create)
{
    if ((create.style & 3) != CBS_DROPDOWNLIST) {
        SimPc::Current().Unsupported("ComboBox: a style other than CBS_DROPDOWNLIST");
        return false;
    }
    openHeight_ = create.cy;
    // A scroll bar is asked for the list; the field has none.
    inner::SetStyle(window_, WS_VSCROLL | WS_HSCROLL, 0);
    return true;
}

LRESULT ComboBox::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_NCCREATE:
            return Create(*reinterpret_cast<const CREATESTRUCTW*>(lParam)) && inner::DefWindowProc(window_, message, wParam, lParam);
        case WM_CREATE:
            FitHeight();
            return 0;
        case WM_DESTROY:
            if (list_)
                inner::DestroyWindow(std::exchange(list_, nullptr));
            return 0;
        case WM_WINDOWPOSCHANGING:
            KeepHeight(*reinterpret_cast<WINDOWPOS*>(lParam));
            return inner::DefWindowProc(window_, message, wParam, lParam);
        case CB_SHOWDROPDOWN:
            if (wParam && !dropped_)
                DropDown();
            else if (!wParam && dropped_)
                RollUp(false);
            return TRUE;
        case CB_GETDROPPEDSTATE:
            return dropped_;
        case WM_GETTEXTLENGTH:
            return selected_ < 0 ? 0 : static_cast<LRESULT>(items_[static_cast<std::size_t>(selected_)].size());
        case WM_GETTEXT:
            return CopyText(selected_ < 0 ? u"" : items_[static_cast<std::size_t>(selected_)], wParam, reinterpret_cast<char16_t*>(lParam));
        case WM_SETTEXT:
            return CB_ERR;  // The field shows items only.
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            FocusMoved(message == WM_SETFOCUS);
            return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            if (!Focused())
                inner::SetFocus(window_);
            if (Alive() && Focused() && !dropped_)
                DropDown();
            return 0;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_MOUSEWHEEL:
            Turn(GET_WHEEL_DELTA_WPARAM(wParam));
            return 0;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return HandleKey(wParam, message == WM_SYSKEYDOWN) ? 0 : inner::DefWindowProc(window_, message, wParam, lParam);
        case WM_CHAR:
            TypeCharacter(static_cast<char16_t>(wParam));
            return 0;
        default:
            return message >= 0x0140 && message <= 0x0165 ? HandleItemMessage(message, wParam, lParam)
                                                          : HandleShared(message, wParam, lParam);
    }
}

void ComboBox::KeepHeight(WINDOWPOS& place)
{
    // Whatever height the window is given is the open one; closed it is as high as its field.
    if ((place.flags & SWP_NOSIZE) || place.cy == ClosedHeight())
        return;
    openHeight_ = place.cy;
    place.cy = ClosedHeight();
}

void ComboBox::FocusMoved(bool here)
{
    if (!here && dropped_)
        RollUp(false);
    Repaint();
    if (Alive())
        Notify(here ? CBN_SETFOCUS : CBN_KILLFOCUS);
}

void ComboBox::Turn(int wheel)
{
    if (dropped_)
        ScrollList(-3 * wheel / WHEEL_DELTA);
    else
        ChooseByKey(selected_ + (wheel > 0 ? -1 : 1));
}

void ComboBox::FontChanged()
{
    FitHeight();
}

int ComboBox::ItemHeight() const
{
    return TextRuler(font_).LineHeight();
}

int ComboBox::FieldHeight() const
{
    return TextRuler(font_).LineHeight() + 2;  // the frame that a chosen item has around it
}

void ComboBox::FitHeight() const
{
    const RECT now = inner::GetWindowRect(window_);
    if (now.bottom - now.top != ClosedHeight())
        inner::SetWindowPos(window_, nullptr, 0, 0, now.right - now.left, ClosedHeight(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool ComboBox::HandleKey(WPARAM key, bool alt)
{
    const int last = static_cast<int>(items_.size()) - 1;
    const int current = dropped_ ? highlighted_ : selected_;
    // One item of the page before stays in sight.
    const int page = std::max(VisibleItems() - 1, 1);
    if (key == VK_F4 || (alt && (key == VK_UP || key == VK_DOWN))) {
        if (dropped_)
            RollUp(true);
        else
            DropDown();
        return true;
    }
    if (alt)
        return false;
    switch (key) {
        case VK_UP:
        case VK_LEFT:
            ChooseByKey(current - 1);
            return true;
        case VK_DOWN:
        case VK_RIGHT:
            ChooseByKey(current + 1);
            return true;
        case VK_PRIOR:
            ChooseByKey(std::max(current - page, 0));
            return true;
        case VK_NEXT:
            ChooseByKey(std::min(current + page, last));
            return true;
        case VK_HOME:
            ChooseByKey(0);
            return true;
        case VK_END:
            ChooseByKey(last);
            return true;
        case VK_RETURN:
        case VK_ESCAPE:
            if (dropped_)
                RollUp(key == VK_RETURN);
            return true;
        default:
            return false;
    }
}

void ComboBox::TypeCharacter(char16_t character)
{
    if (character < u' ')
        return;
    const std::u16string wanted = UpperCase({&character, 1});
    const int count = static_cast<int>(items_.size());
    for (int step = 1; step <= count; ++step) {  // Round the end, back to where the search began.
        const int item = ((dropped_ ? highlighted_ : selected_) + step) % count;
        if (UpperCase(items_[static_cast<std::size_t>(item)]).starts_with(wanted))
            return ChooseByKey(item);
    }
}

void ComboBox::ChooseByKey(int item)
{
    const int current = dropped_ ? highlighted_ : selected_;
    if (item < 0 || item >= static_cast<int>(items_.size()) || item == current)
        return;
    // Keys choose at once, in the open list too; giving up there takes back only what the mouse passed over.
    if (dropped_)
        Highlight(item);
    selected_ = highlighted_ = item;
    Repaint();
    // The open list has its SELENDOK when it is rolled up.
    if (!dropped_)
        Notify(CBN_SELENDOK);
    if (Alive())
        Notify(CBN_SELCHANGE);
}

void ComboBox::Paint(HDC dc)
{
    const HBRUSH background = AskColors(Enabled() ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC, dc);
    PaintComboField(dc, Client(), {items_, selected_, 0, ItemHeight(), Enabled(), Focused(), dropped_, Themed(), font_}, background);
}

}  // namespace platform
