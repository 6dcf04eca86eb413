// HostedWindow: making, placing and showing the window. The focus is in HostedWindowFocus.cpp.
#include "controls/HostedWindow.h"

#include "host/Form.h"

namespace controls {

using base::String;

HostedWindow::HostedWindow(host::UserControl& control) : control_(control) {}

void HostedWindow::Attach()
{
    container_ = control_.ContainerWindow();
    form_ = control_.ParentForm().hWnd();
}

/// The focus waits on the control's own window while there is no hosted one. Windows would give it to the container otherwise, and the
/// form would take that for a change of its active control. There it still waits when Windows refused the last one.
HostedWindow::Creation::Creation(HostedWindow& hosted) : hosted_(hosted)
{
    const HWND focus = GetFocus();
    hadFocus_ = focus && focus == (hosted_.window_ ? hosted_.window_ : hosted_.control_.OwnHandle());
    ++hosted_.creating_;
    if (hadFocus_)
        SetFocus(hosted_.control_.OwnHandle());
}

HostedWindow::Creation::~Creation()
{
    if (hadFocus_ && hosted_.window_)
        hosted_.TakeFocus();
    --hosted_.creating_;
}

bool HostedWindow::Create(const Shape& shape)
{
    const host::Extender& extender = control_.GetExtender();
    const RECT place = extender.PixelRect();
    DWORD style = WS_CHILD | WS_CLIPSIBLINGS | shape.style;
    if (extender.Visible())
        style |= WS_VISIBLE;
    if (!control_.Enabled())
        style |= WS_DISABLED;
    if (extender.TabStop())
        style |= WS_TABSTOP;
    window_ = CreateWindowExW(shape.extendedStyle, shape.className, shape.text.c_str(), style, place.left, place.top,
                              place.right - place.left, place.bottom - place.top, container_, nullptr, GetModuleHandleW(nullptr), nullptr);
    shown_ = window_ && extender.Visible();
    // A new child stands below its older siblings, among them the control's own window.
    Cover();
    return window_ != nullptr;
}

void HostedWindow::Subclass()
{
    if (!window_ || !control_.Ambient().UserMode())
        return;
    SubclassControl.TryEnable(window_);
    SubclassParent.TryEnable(container_);
    if (!ContainerIsForm())
        SubclassOwner.TryEnable(form_);
}

void HostedWindow::Destroy()
{
    SubclassControl.Release();
    SubclassParent.Release();
    SubclassOwner.Release();
    // Its container may have gone before it.
    if (window_ && IsWindow(window_))
        DestroyWindow(window_);
    window_ = nullptr;
    shown_ = false;
    windowFocused_ = false;
    keptFocusLook_ = false;
}

LRESULT HostedWindow::Send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageUnsubclassed(SubclassControl, window_, message, wParam, lParam);
}

void HostedWindow::SetStyleBits(DWORD mask, DWORD bits) const
{
    if (!window_)
        return;
    const auto style = static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE));
    SetWindowLongW(window_, GWL_STYLE, static_cast<LONG>((style & ~mask) | bits));
}

String HostedWindow::Text() const
{
    return WindowTextUnsubclassed(SubclassControl, window_);
}

void HostedWindow::Redraw()
{
    place_.Follow(window_, control_.GetExtender());
    if (window_)
        RedrawAll(window_);
}

void HostedWindow::ControlPainted()
{
    place_.Follow(window_, control_.GetExtender());
    ControlShown();
}

void HostedWindow::ControlShown()
{
    if (!window_ || shown_ || !control_.GetExtender().Visible())
        return;
    ShowWindow(window_, SW_SHOW);
    shown_ = true;
}

void HostedWindow::ControlHidden()
{
    if (!window_ || control_.GetExtender().Visible())
        return;
    ShowWindow(window_, SW_HIDE);
    shown_ = false;
}

void HostedWindow::Painted()
{
    if (firstPaintDone_)
        return;
    firstPaintDone_ = true;
    ControlHidden();
}

BorderBits BorderBitsOf(std::uint8_t borderStyle)
{
    switch (borderStyle) {
        case BorderSingle:
            return {WS_BORDER, 0};
        case BorderStatic:
            return {0, WS_EX_STATICEDGE};
        case BorderSunken:
            return {0, WS_EX_CLIENTEDGE};
        case BorderRaised:
            return {WS_DLGFRAME, WS_EX_WINDOWEDGE};
        default:
            return {0, 0};
    }
}

}  // namespace controls
