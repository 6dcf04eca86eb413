// ComObject: what every COM object of this program shares, and the owner of a reference to one.
#pragma once

#include <ole2.h>
#include <windows.h>

#include <utility>

namespace host {

// COM's interfaces have no destructors: nobody destroys an object but its own Release.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// An object with one interface, counted by its references, which end its life. It lives on one thread, as OLE's drag and drop does.
/// https://learn.microsoft.com/windows/win32/com/managing-object-lifetimes-through-reference-counting
template <class Interface, const IID* InterfaceId>
class ComObject : public Interface {
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) noexcept override
    {
        if (!object)
            return E_POINTER;
        const bool known = IsEqualIID(wanted, IID_IUnknown) || IsEqualIID(wanted, *InterfaceId);
        *object = known ? static_cast<Interface*>(this) : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept final
    {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    ComObject() = default;
    virtual ~ComObject() = default;

private:
    ULONG references_ = 0;
};

#pragma GCC diagnostic pop

/// Owns one reference.
template <class T>
class ComPointer {
public:
    ComPointer() = default;
    explicit ComPointer(T* object) noexcept : object_(object)
    {
        if (object_)
            object_->AddRef();
    }
    ComPointer(const ComPointer& other) noexcept : ComPointer(other.object_) {}
    ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ComPointer& operator=(ComPointer other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPointer()
    {
        if (object_)
            object_->Release();
    }

    [[nodiscard]] T* Get() const noexcept { return object_; }
    T* operator->() const noexcept { return object_; }
    [[nodiscard]] explicit operator bool() const noexcept { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

/// A new object and its first reference.
template <class T, class... Arguments>
[[nodiscard]] ComPointer<T> MakeCom(Arguments&&... arguments)
{
    return ComPointer<T>(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace host
