// ComboList: the open list of a combo box, a window of its own above all others.
#include "platform/src/classes/ComboBox.h"
#include "platform/src/classes/SystemClasses.h"

#include <algorithm>

namespace platform {

namespace {

class ComboList : public Control {
public:
    using Control::Control;

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        switch (message) {
            case WM_NCCREATE:
                combo_ = static_cast<HWND>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
                return inner::DefWindowProc(window_, message, wParam, lParam);
            case WM_MOUSEACTIVATE:
                return MA_NOACTIVATE;  // The keyboard stays with the combo box.
            case WM_MOUSEMOVE:
                if (Inside(lParam))
                    Box()->Highlight(Box()->ItemAt(point.y));
                return 0;
            case WM_LBUTTONDOWN:
            case WM_LBUTTONDBLCLK:
                // The open list has the mouse to itself: a press anywhere else closes it.
                if (!Inside(lParam))
                    Box()->PressedOutside(inner::MapPoint(window_, nullptr, point));
                return 0;
            case WM_LBUTTONUP:
                if (Inside(lParam))
                    Box()->Pick(Box()->ItemAt(point.y));
                return 0;
            default:
                return HandleShared(message, wParam, lParam);
        }
    }

protected:
    void Paint(HDC dc) override
    {
        if (const auto box = Box())
            PaintComboList(dc, Client(), box->ListLook(), box->AskListColors(dc, window_));
    }

private:
    [[nodiscard]] std::shared_ptr<ComboBox> Box() const
    {
        return std::static_pointer_cast<ComboBox>(SimPc::Current().Get<ControlTable>().Find(combo_));
    }

    HWND combo_ = nullptr;
};

// What CB_SETMINVISIBLE begins with under visual styles.
constexpr int kMostVisibleItems = 30;

}  // namespace

LRESULT CALLBACK ComboListProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ControlProcedure<ComboList>(window, message, wParam, lParam);
}

int ComboBox::VisibleItems() const
{
    return std::clamp(static_cast<int>(items_.size()), 1, kMostVisibleItems);
}

int ComboBox::ItemAt(int y) const
{
    return std::clamp(firstVisible_ + y / ItemHeight(), 0, static_cast<int>(items_.size()) - 1);
}

ComboBox::Look ComboBox::ListLook() const
{
    return {items_, highlighted_, firstVisible_, ItemHeight(), true, true, true, Themed(), font_};
}

HBRUSH ComboBox::AskListColors(HDC dc, HWND list) const
{
    const auto brush = inner::SendMessage(Parent(), WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(list));
    return reinterpret_cast<HBRUSH>(brush);
}

void ComboBox::DropDown()
{
    Notify(CBN_DROPDOWN);
    if (!Alive())
        return;
    const RECT field = inner::GetWindowRect(window_);
    const int height = VisibleItems() * ItemHeight() + 2;
    if (!list_)
        list_ = inner::CreateWindowEx(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, TEXT("ComboLBox"), nullptr, WS_POPUP | WS_BORDER, 0, 0, 0, 0,
                                      window_, nullptr, nullptr, window_);
    if (!list_)
        return;
    dropped_ = true;
    highlighted_ = selected_;
    firstVisible_ = 0;
    ScrollList(std::max(selected_ - VisibleItems() + 1, 0));
    inner::SetWindowPos(list_, HWND_TOPMOST, field.left, field.bottom, field.right - field.left, height, SWP_NOACTIVATE | SWP_SHOWWINDOW);
    inner::SetCapture(list_);
    Repaint();
}

void ComboBox::Highlight(int item)
{
    if (std::exchange(highlighted_, item) == item)
        return;
    if (item < firstVisible_)
        firstVisible_ = item;
    else if (item >= firstVisible_ + VisibleItems())
        firstVisible_ = item - VisibleItems() + 1;
    inner::InvalidateRect(list_, nullptr, true);
}

void ComboBox::ScrollList(int items)
{
    firstVisible_ = std::clamp(firstVisible_ + items, 0, static_cast<int>(items_.size() + 1) - VisibleItems());
    inner::InvalidateRect(list_, nullptr, true);
}

void ComboBox::Pick(int item)
{
    const bool same = item == selected_;
    Highlight(item);
    RollUp(true);
    if (same && Alive())
        Notify(CBN_SELCHANGE);
}

void ComboBox::PressedOutside(POINT screen)
{
    const RECT field = inner::GetWindowRect(window_);
    RollUp(screen.x >= field.left && screen.x < field.right && screen.y >= field.top && screen.y < field.bottom);
}

void ComboBox::RollUp(bool accept)
{
    if (!std::exchange(dropped_, false))
        return;
    if (inner::GetCapture() == list_)
        inner::ReleaseCapture();
    inner::ShowWindow(list_, SW_HIDE);
    const bool changed = accept && highlighted_ != selected_;
    if (changed)
        selected_ = highlighted_;
    highlighted_ = selected_;
    Repaint();
    Notify(accept ? CBN_SELENDOK : CBN_SELENDCANCEL);
    if (Alive())
        Notify(CBN_CLOSEUP);
    if (Alive() && changed)
        Notify(CBN_SELCHANGE);
}

}  // namespace platform
