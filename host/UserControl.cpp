// UserControl: its life and its picture. The input is in UserControlInput.cpp.
#include "host/UserControl.h"

#include "host/Form.h"
#include "host/TabOrder.h"

namespace host {

void UserControl::MakeWindow()
{
    surface_.Font(Ambient().Font());
    if (!ContainerWindow())
        return;
    WindowShape shape;
    shape.style = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    if (GetExtender().Visible())
        shape.style |= WS_VISIBLE;
    shape.place = GetExtender().PixelRect();
    shape.parent = ContainerWindow();
    if (!Make(shape))
        return;
    surface_.Attach(OwnHandle());
    input_.Attach(OwnHandle());
    Sized();
}

void UserControl::LoadNew()
{
    stage_ = Stage::Loading;
    UserControl_Initialize();
    MakeWindow();
    UserControl_InitProperties();
    stage_ = Stage::Loaded;
    UserControl_Resize();
}

void UserControl::LoadStored(const PropertyBag& bag)
{
    stage_ = Stage::Loading;
    UserControl_Initialize();
    MakeWindow();
    UserControl_ReadProperties(bag);
    stage_ = Stage::Loaded;
    UserControl_Resize();
}

void UserControl::Unload()
{
    if (stage_ == Stage::Made || stage_ == Stage::Unloaded)
        return;
    if (isShown_)
        Hidden();
    stage_ = Stage::Unloaded;
    UserControl_Terminate();
    surface_.Attach(nullptr);
    input_.Attach(nullptr);
    surface_.Release();
    Destroy();
}

void UserControl::Shown()
{
    if (!std::exchange(isShown_, true))
        UserControl_Show();
}

/// A control that is hidden before it was ever shown hears of it too: it may have a window that would be seen.
void UserControl::Hidden()
{
    isShown_ = false;
    if (stage_ == Stage::Loaded)
        UserControl_Hide();
}

void UserControl::Placed()
{
    const RECT place = GetExtender().PixelRect();
    if (OwnHandle())
        SetWindowPos(OwnHandle(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
}

void UserControl::ContainerChanged()
{
    if (!OwnHandle())
        return;
    SetParent(OwnHandle(), ContainerWindow());
    Placed();
    UserControl_ContainerChanged();
}

/// Gives the surface the window's client size. Windows reports a size also when it has not changed.
void UserControl::Sized()
{
    RECT client{};
    GetClientRect(OwnHandle(), &client);
    if (client.right == surface_.ScaleWidth() && client.bottom == surface_.ScaleHeight())
        return;
    surface_.Resize({client.right, client.bottom});
    if (stage_ == Stage::Loaded)
        UserControl_Resize();
}

void UserControl::Refresh()
{
    if (OwnHandle())
        InvalidateRect(OwnHandle(), nullptr, FALSE);
}

void UserControl::PropertyChanged(base::StringView name)
{
    ParentForm().OnPropertyChanged(*this, name);
    if (name == TEXT("Caption"))
        Announce(EVENT_OBJECT_NAMECHANGE);
}

void UserControl::Announce(DWORD event) const
{
    if (isShown_ && OwnHandle() && OwnHandle() == hWnd())
        NotifyWinEvent(event, OwnHandle(), OBJID_CLIENT, CHILDID_SELF);
}

void UserControl::SetFocus()
{
    if (!CanGetFocusNow(*this))
        return;
    Form& form = ParentForm();
    const HWND focus = GetFocus();
    if (form.ActiveControl() == this && focus && (focus == OwnHandle() || focus == hWnd()))
        return;
    // The control that is left must know so before its windows lose the keyboard focus.
    form.Activate(this);
    if (form.ActiveControl() == this && OwnHandle())
        ::SetFocus(OwnHandle());
}

/// What is drawn while painting marks the window for a repaint again, so the control draws before BeginPaint takes that mark away.
void UserControl::Paint()
{
    UserControl_Paint();
    if (!OwnHandle())
        return;
    const WindowPaint paint(OwnHandle());
    surface_.Painted();
    if (paint.Dc())
        surface_.CopyTo(paint.Dc());
}

}  // namespace host
