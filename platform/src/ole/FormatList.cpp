// Lists of formats. https://learn.microsoft.com/windows/win32/api/shlobj_core/nf-shlobj_core-shcreatestdenumfmtetc
#include "platform/src/core/Gate.h"
#include "platform/src/ole/Counted.h"

#include <shlobj.h>

#include <algorithm>
#include <vector>

using namespace platform;

namespace {

class FormatList final : public Counted<IEnumFORMATETC, &IID_IEnumFORMATETC> {
public:
    FormatList(std::vector<FORMATETC> formats, std::size_t next) : formats_(std::move(formats)), next_(next) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG count, FORMATETC* formats, ULONG* fetched) override
    {
        const ULONG given = static_cast<ULONG>(std::min<std::size_t>(count, formats_.size() - next_));
        std::copy_n(formats_.begin() + static_cast<std::ptrdiff_t>(next_), given, formats);
        next_ += given;
        if (fetched)
            *fetched = given;
        return given == count ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override
    {
        const std::size_t passed = std::min<std::size_t>(count, formats_.size() - next_);
        next_ += passed;
        return passed == count ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override
    {
        next_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumFORMATETC** copy) override
    {
        *copy = new FormatList(formats_, next_);
        return S_OK;
    }

private:
    std::vector<FORMATETC> formats_;
    std::size_t next_;
};

}  // namespace

HRESULT WINAPI SHCreateStdEnumFmtEtc(UINT count, const FORMATETC* formats, IEnumFORMATETC** enumerator)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, count);
    *enumerator = new FormatList({formats, formats + count}, 0);
    return S_OK;
}
