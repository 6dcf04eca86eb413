// Objects on their way from a window to a screen reader, and what Windows itself says of any window.
#include "platform/src/core/Gate.h"
#include "platform/src/ole/Counted.h"
#include "platform/src/window/Window.h"

#include <oleacc.h>
#include <windows.h>

#include <algorithm>

namespace platform {

namespace {

/// An answer to WM_GETOBJECT that nobody has taken yet.
struct Answer : Object {
    explicit Answer(IUnknown* what) : object(what) { object->AddRef(); }
    ~Answer() override { object->Release(); }
    IUnknown* object;
};

HRESULT Refuse(const char* member)
{
    SimPc::Current().Unsupported(std::string("the window's own accessible object: ") + member);
    return E_NOTIMPL;
}

/// Its place and what is inside; of what a window means Windows knows nothing, and says what it says of one of no known class.
class WindowAccessible final : public Counted<IAccessible, &IID_IAccessible> {
public:
    explicit WindowAccessible(HWND window) : window_(window) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return Refuse("GetTypeInfoCount"); }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return Refuse("GetTypeInfo"); }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return Refuse("GetIDsOfNames"); }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return Refuse("Invoke");
    }
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch**) override { return Refuse("get_accParent"); }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override
    {
        const WindowPtr window = WindowOf(window_);
        if (!window)
            return E_INVALIDARG;
        *count = static_cast<LONG>(WindowTree::Children(*window).size());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT, IDispatch**) override { return Refuse("get_accChild"); }
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT, BSTR*) override { return E_INVALIDARG; }  // It has no children of its own making.
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT, BSTR*) override { return Refuse("get_accValue"); }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT, BSTR*) override { return Refuse("get_accDescription"); }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT, VARIANT*) override { return E_INVALIDARG; }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT, VARIANT*) override { return Refuse("get_accState"); }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR*) override { return Refuse("get_accHelp"); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR*, VARIANT, LONG*) override { return Refuse("get_accHelpTopic"); }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT, BSTR*) override { return Refuse("get_accKeyboardShortcut"); }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT*) override { return Refuse("get_accFocus"); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT*) override { return Refuse("get_accSelection"); }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE accSelect(LONG, VARIANT) override { return Refuse("accSelect"); }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT) override
    {
        const WindowPtr window = WindowOf(window_);
        if (!window)
            return E_INVALIDARG;
        *left = window->client.left;
        *top = window->client.top;
        *width = window->client.right - window->client.left;
        *height = window->client.bottom - window->client.top;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG, VARIANT, VARIANT*) override { return Refuse("accNavigate"); }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* child) override
    {
        const WindowPtr window = WindowOf(window_);
        if (!window)
            return E_INVALIDARG;
        const POINT point{x, y};
        const auto inside = WindowTree::Children(*window);
        if (std::ranges::any_of(inside, [=](const WindowPtr& inner) { return inner->IsShown() && Holds(inner->frame, point); }))
            return Refuse("accHitTest: a window inside");
        if (!Holds(window->client, point))
            return Refuse("accHitTest: a point outside");
        child->vt = VT_I4;
        child->lVal = CHILDID_SELF;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return Refuse("put_accName"); }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return Refuse("put_accValue"); }

private:
    HWND window_;
};

}  // namespace

}  // namespace platform

using namespace platform;

/// The number stands for the object until somebody takes it, once.
LRESULT WINAPI LresultFromObject(REFIID iid, WPARAM wParam, IUnknown* object)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, iid, wParam, object);
    return static_cast<LRESULT>(SimPc::Current().Handles().Open(std::make_shared<Answer>(object)));
}

HRESULT WINAPI ObjectFromLresult(LRESULT answer, REFIID iid, WPARAM wParam, void** object)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, answer, iid, wParam);
    HandleTable& handles = SimPc::Current().Handles();
    const auto found = handles.Find<Answer>(static_cast<std::uintptr_t>(answer));
    if (!found)
        return E_INVALIDARG;
    handles.CloseAny(static_cast<std::uintptr_t>(answer));
    return found->object->QueryInterface(iid, object);
}

HRESULT WINAPI CreateStdAccessibleObject(HWND window, LONG object, REFIID iid, void** made)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, window, object, iid);
    if (object != OBJID_CLIENT)
        return Refuse("of another part than the client area");
    if (!WindowOf(window))
        return E_FAIL;
    auto* const standard = new WindowAccessible(window);
    const HRESULT result = standard->QueryInterface(iid, made);
    standard->Release();
    return result;
}
