// Subclassing by the common controls: a chain of procedures in front of a window's own, the newest first.
#include "platform/src/behaviour/Inner.h"
#include "platform/src/core/Gate.h"

#include <commctrl.h>

#include <algorithm>
#include <map>

namespace platform {

namespace {

struct Subclass {
    SUBCLASSPROC procedure = nullptr;
    UINT_PTR id = 0;
    DWORD_PTR data = 0;
    std::uint64_t age = 0;  // larger is newer
};

struct Chain {
    WNDPROC original = nullptr;
    std::vector<Subclass> subclasses;  // oldest first
    std::vector<std::uint64_t> calls;  // for each message on its way, innermost last: the age of the procedure that has it
};

class SubclassChains : public Area {
public:
    using Area::Area;
    std::map<HWND, Chain> chains;
    std::uint64_t lastAge = 0;
};

SubclassChains& Chains()
{
    return SimPc::Current().Get<SubclassChains>();
}

Chain* ChainOf(HWND window)
{
    auto& chains = Chains().chains;
    const auto found = chains.find(window);
    return found == chains.end() ? nullptr : &found->second;
}

std::vector<Subclass>::iterator Find(Chain& chain, SUBCLASSPROC procedure, UINT_PTR id)
{
    return std::find_if(chain.subclasses.begin(), chain.subclasses.end(),
                        [&](const Subclass& subclass) { return subclass.procedure == procedure && subclass.id == id; });
}

/// Hands a message to the newest procedure that is older than the one that has it now, or to the window's own. Procedures may be
/// added and removed meanwhile: ages stay in order.
LRESULT CallOlder(HWND window, std::uint64_t age, UINT message, WPARAM wParam, LPARAM lParam)
{
    Chain& chain = *ChainOf(window);
    const auto next =
        std::find_if(chain.subclasses.rbegin(), chain.subclasses.rend(), [&](const Subclass& subclass) { return subclass.age < age; });
    if (next == chain.subclasses.rend())
        return inner::CallWindowProc(chain.original, window, message, wParam, lParam);
    const Subclass subclass = *next;
    std::uint64_t& current = chain.calls.back();
    const std::uint64_t before = std::exchange(current, subclass.age);
    const LRESULT result = subclass.procedure(window, message, wParam, lParam, subclass.id, subclass.data);
    if (Chain* still = ChainOf(window); still && !still->calls.empty())
        still->calls.back() = before;
    return result;
}

LRESULT CALLBACK ChainProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

/// Takes the chain off the window once nothing is left in it and no message is on its way through it.
void DropWhenEmpty(HWND handle)
{
    const Chain* chain = ChainOf(handle);
    if (!chain || !chain->subclasses.empty() || !chain->calls.empty())
        return;
    const WindowPtr window = WindowOf(handle);
    if (window && window->procedure != ChainProcedure)
        return;  // Somebody else put a procedure in front; it still leads here.
    if (window)
        window->procedure = chain->original;
    Chains().chains.erase(handle);
}

LRESULT CALLBACK ChainProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    Chain* chain = ChainOf(handle);
    if (!chain)
        return inner::DefWindowProc(handle, message, wParam, lParam);
    chain->calls.push_back(0);
    const LRESULT result = CallOlder(handle, ~std::uint64_t{0}, message, wParam, lParam);
    chain = ChainOf(handle);
    chain->calls.pop_back();
    if (message == WM_NCDESTROY)
        chain->subclasses.clear();
    DropWhenEmpty(handle);
    return result;
}

}  // namespace

namespace inner {

BOOL SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data)
{
    const WindowPtr found = RequireWindow(window);
    if (!found || !procedure || found->actor != SimPc::Current().CurrentActor())
        return FALSE;
    Chain* chain = ChainOf(window);
    if (!chain) {
        chain = &Chains().chains[window];
        chain->original = std::exchange(found->procedure, ChainProcedure);
    }
    const auto known = Find(*chain, procedure, id);
    if (known != chain->subclasses.end())
        known->data = data;
    else
        chain->subclasses.push_back(Subclass{procedure, id, data, ++Chains().lastAge});
    return TRUE;
}

BOOL RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id)
{
    const WindowPtr found = RequireWindow(window);
    Chain* chain = ChainOf(window);
    if (!found || !chain || found->actor != SimPc::Current().CurrentActor())
        return FALSE;
    const auto known = Find(*chain, procedure, id);
    if (known == chain->subclasses.end())
        return FALSE;
    chain->subclasses.erase(known);
    DropWhenEmpty(window);
    return TRUE;
}

LRESULT DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Chain* chain = ChainOf(window);
    return chain && !chain->calls.empty() ? CallOlder(window, chain->calls.back(), message, wParam, lParam) : 0;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

BOOL WINAPI SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, window, id, data);
    return inner::SetWindowSubclass(window, procedure, id, data);
}

BOOL WINAPI RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window, id);
    return inner::RemoveWindowSubclass(window, procedure, id);
}

LRESULT WINAPI DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    SIM_NOTE(window, message, wParam, lParam);
    return inner::DefSubclassProc(window, message, wParam, lParam);
}
