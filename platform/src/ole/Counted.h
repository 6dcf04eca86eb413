// Counted: COM objects of the stand-in PC, which their references keep alive.
#pragma once

#include <objidl.h>
#include <winerror.h>

namespace platform {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

template <class Interface, const IID* iid>
class Counted : public Interface {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) final
    {
        const bool known = IsEqualIID(wanted, IID_IUnknown) || IsEqualIID(wanted, *iid);
        *object = known ? static_cast<Interface*>(this) : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() final
    {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    virtual ~Counted() = default;

private:
    ULONG references_ = 1;
};

#pragma GCC diagnostic pop

}  // namespace platform
