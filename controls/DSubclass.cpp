#include "controls/DSubclass.h"

#include "controls/OutOfMemory.h"
#include "controls/SubclassHeap.h"

#include <commctrl.h>

#include <new>
#include <unordered_map>

namespace controls {

/// What stands behind a DSubclass. It outlives its owner while a delivery is in progress.
class DSubclass::Link : public std::enable_shared_from_this<Link> {
public:
    explicit Link(DSubclass& owner) : owner_(&owner) {}
    ~Link();

    bool Enable(HWND window);
    bool Disable();
    /// The owner lets go. Its events end here; deliveries in progress hold the link until the outermost one has its result.
    void Release();

    HWND window_ = nullptr;
    bool isPaused_ = false;

private:
    /// The routing entry that lies in the block of the window's heap.
    struct Route {
        UINT_PTR identifier;
        Link* link;
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR identifier, DWORD_PTR) noexcept;
    static std::unordered_map<UINT_PTR, Route*>& Routes();

    void WriteRoute(HWND window);
    LRESULT Deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool Raise(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) noexcept;
    Route* RouteOf() const { return static_cast<Route*>(block_.Get()); }

    DSubclass* owner_;
    SubclassBlock block_;
};

/// All links that may hear messages, by subclass identifier. Identifiers are never used twice: a window that kept an identifier
/// beyond its link (RemoveWindowSubclass can fail) finds nothing here, where an object's address might have been taken by another.
std::unordered_map<UINT_PTR, DSubclass::Link::Route*>& DSubclass::Link::Routes()
{
    static std::unordered_map<UINT_PTR, Route*> routes;
    return routes;
}

void DSubclass::Link::WriteRoute(HWND window)
{
    static UINT_PTR lastIdentifier = 0;
    if (block_)
        return;
    block_.Allocate(window, sizeof(Route));
    Route* const route = new (block_.Get()) Route{++lastIdentifier, this};
    try {
        Routes()[route->identifier] = route;
    } catch (...) {
        block_.Free();
        throw;
    }
}

DSubclass::Link::~Link()
{
    if (!block_)
        return;
    Routes().erase(RouteOf()->identifier);
}

bool DSubclass::Link::Enable(HWND window)
{
    if (window_ && !Disable())
        return false;
    if (!window || !IsWindow(window))
        return false;
    WriteRoute(window);
    if (!SetWindowSubclass(window, &Link::Procedure, RouteOf()->identifier, 0))
        return false;
    window_ = window;
    return true;
}

bool DSubclass::Link::Disable()
{
    if (!window_)
        return false;
    const bool removed = RemoveWindowSubclass(window_, &Link::Procedure, RouteOf()->identifier) != FALSE;
    if (!removed && IsWindow(window_))
        return false;
    window_ = nullptr;
    isPaused_ = false;
    return removed;
}

void DSubclass::Link::Release()
{
    owner_ = nullptr;
    Disable();
}

LRESULT CALLBACK DSubclass::Link::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR identifier,
                                            DWORD_PTR) noexcept
{
    const auto found = Routes().find(identifier);
    if (found == Routes().end())
        return DefSubclassProc(window, message, wParam, lParam);
    // Holds the link until its result is out, also when the owner lets go of it meanwhile. The last of nested deliveries to end frees it.
    const std::shared_ptr<Link> self = found->second->link->shared_from_this();
    return self->Deliver(window, message, wParam, lParam);
}

LRESULT DSubclass::Link::Deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!isPaused_ && Raise(window, message, wParam, lParam, result))
        return result;
    // A handler that took the object off has the last word on this message; one that put it on another window has not.
    if (window_)
        result = DefSubclassProc(window, message, wParam, lParam);
    if (message == WM_DESTROY && window_ == window)
        Disable();
    return result;
}

/// Asks the owner; true when it handled the message. No exception of a handler gets into Windows: the message then counts as not handled.
bool DSubclass::Link::Raise(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) noexcept
{
    bool handled = false;
    if (!owner_)
        return false;
    try {
        owner_->WndProc.Raise(window, message, wParam, lParam, result, handled);
    } catch (...) {
        handled = false;
    }
    return handled;
}

void DSubclass::Release()
{
    if (const std::shared_ptr<Link> link = std::exchange(link_, nullptr))
        link->Release();
}

bool DSubclass::Enable(HWND window)
{
    try {
        if (!link_)
            link_ = std::make_shared<Link>(*this);
        return link_->Enable(window);
    } catch (const std::bad_alloc&) {
        throw OutOfMemory();
    }
}

bool DSubclass::TryEnable(HWND window) noexcept
{
    try {
        return Enable(window);
    } catch (const OutOfMemory&) {
        return false;
    }
}

bool DSubclass::Disable()
{
    return link_ && link_->Disable();
}

bool DSubclass::PauseSubclass()
{
    if (!IsSubclassed() || link_->isPaused_)
        return false;
    link_->isPaused_ = true;
    return true;
}

bool DSubclass::ResumeSubclass()
{
    if (!IsSubclassed() || !link_->isPaused_)
        return false;
    link_->isPaused_ = false;
    return true;
}

bool DSubclass::IsSubclassed() const
{
    return hWnd() != nullptr;
}

bool DSubclass::IsPaused() const
{
    return link_ && link_->isPaused_;
}

HWND DSubclass::hWnd() const
{
    return link_ ? link_->window_ : nullptr;
}

LRESULT DSubclass::CallOriginalProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool& handled)
{
    if (!IsSubclassed())
        return 0;
    handled = true;
    return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT SendMessageUnsubclassed(DSubclass& subclass, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!window)
        return 0;
    const SubclassPause pause(subclass);
    return SendMessageW(window, message, wParam, lParam);
}

base::String WindowTextUnsubclassed(DSubclass& subclass, HWND window)
{
    const auto ask = [&](UINT message, std::size_t room, WCHAR* text) {
        return static_cast<std::size_t>(SendMessageUnsubclassed(subclass, window, message, room, reinterpret_cast<LPARAM>(text)));
    };
    base::String text(ask(WM_GETTEXTLENGTH, 0, nullptr) + 1, TEXT('\0'));
    text.resize(ask(WM_GETTEXT, text.size(), text.data()));
    return text;
}

}  // namespace controls
