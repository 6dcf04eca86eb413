// The interfaces of drag and drop as the Windows SDK names them.
#pragma once

#include "windef.h"

#include "objidl.h"

#define MK_ALT 0x0020
#define DROPEFFECT_NONE 0u
#define DROPEFFECT_COPY 1u
#define DROPEFFECT_MOVE 2u
#define DROPEFFECT_LINK 4u
#define DROPEFFECT_SCROLL 0x80000000u

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

struct IDropSource : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escapePressed, DWORD keys) = 0;
    virtual HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD effect) = 0;
};

struct IDropTarget : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) = 0;
    virtual HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL point, DWORD* effect) = 0;
    virtual HRESULT STDMETHODCALLTYPE DragLeave() = 0;
    virtual HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) = 0;
};

#pragma GCC diagnostic pop

extern "C" const IID IID_IDropSource, IID_IDropTarget;
