// Automation's texts. Their length, which Windows keeps before the first unit, nobody asks for.
#include "platform/src/core/Gate.h"
#include "platform/src/memory/Blocks.h"

#include <oaidl.h>
#include <winerror.h>

#include <cstring>

using namespace platform;

BSTR WINAPI SysAllocStringLen(const OLECHAR* text, UINT length)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, length);
    void* const made = SimPc::Current().Get<Blocks>().Allocate((length + 1) * sizeof(OLECHAR), Blocks::Kind::Text);
    std::memcpy(made, text, length * sizeof(OLECHAR));
    return static_cast<BSTR>(made);
}

VOID WINAPI SysFreeString(BSTR text)
{
    SIM_NOTE();
    if (text && !SimPc::Current().Get<Blocks>().Free(text, Blocks::Kind::Text))
        SimPc::Current().Unsupported("SysFreeString: no text");
}
