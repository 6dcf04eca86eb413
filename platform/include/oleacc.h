// Active accessibility as the Windows SDK names it.
#pragma once

#include "ole2.h"
#include "winuser/accessibility.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// https://learn.microsoft.com/windows/win32/api/oleacc/nn-oleacc-iaccessible
struct IAccessible : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) = 0;
    virtual HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) = 0;
    virtual HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) = 0;
    virtual HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) = 0;
    virtual HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* child) = 0;
    virtual HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) = 0;
};

#pragma GCC diagnostic pop

extern "C" const IID IID_IAccessible;

#define ROLE_SYSTEM_CLIENT 0x0A
#define ROLE_SYSTEM_GROUPING 0x14
#define ROLE_SYSTEM_STATICTEXT 0x29
#define ROLE_SYSTEM_TEXT 0x2A
#define ROLE_SYSTEM_PUSHBUTTON 0x2B
#define ROLE_SYSTEM_CHECKBUTTON 0x2C
#define ROLE_SYSTEM_COMBOBOX 0x2E

extern "C" LRESULT WINAPI LresultFromObject(REFIID iid, WPARAM wParam, IUnknown* object);
extern "C" HRESULT WINAPI ObjectFromLresult(LRESULT answer, REFIID iid, WPARAM wParam, void** object);
extern "C" HRESULT WINAPI CreateStdAccessibleObject(HWND window, LONG object, REFIID iid, void** made);
extern "C" HANDLE WINAPI GetProcessHandleFromHwnd(HWND window);
