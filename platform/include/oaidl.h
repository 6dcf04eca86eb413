// Automation's first types as the Windows SDK names them: texts and values that one program hands another.
#pragma once

#include "objidl.h"

using OLECHAR = WCHAR;
using LPOLESTR = OLECHAR*;
using BSTR = OLECHAR*;
using VARTYPE = USHORT;
using DISPID = LONG;

struct IDispatch;
struct ITypeInfo;
struct DISPPARAMS;
struct EXCEPINFO;

enum VARENUM { VT_EMPTY = 0, VT_I4 = 3, VT_DISPATCH = 9 };

struct VARIANT {
    VARTYPE vt;
    WORD wReserved1, wReserved2, wReserved3;
    union {
        LONG lVal;
        IDispatch* pdispVal;
        LPVOID room[2];  // the widest value that a VARIANT can hold
    };
};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

struct IDispatch : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID language, ITypeInfo** info) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID language, DISPID* ids) = 0;
    virtual HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID language, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                             EXCEPINFO* exception, UINT* wrong) = 0;
};

#pragma GCC diagnostic pop

extern "C" const IID IID_IDispatch, IID_IEnumVARIANT;

BSTR WINAPI SysAllocStringLen(const OLECHAR* text, UINT length);
VOID WINAPI SysFreeString(BSTR text);
