#include "host/AccessibleWindows.h"

#include "base/SystemExport.h"
#include "host/Accessible.h"

namespace host {

LRESULT AccessibleWindows::Answer(HWND window, WPARAM wParam, LPARAM lParam)
{
    // The number comes as 32 bits; whether they are extended to 64 depends on who sends it.
    if (static_cast<LONG>(lParam) != OBJID_CLIENT)
        return 0;
    if (!library_)
        library_ = base::LoadSystemLibrary(TEXT("oleacc.dll"));
    const base::SystemExport<LRESULT WINAPI(REFIID, WPARAM, IUnknown*)> lresultFromObject(TEXT("oleacc.dll"), "LresultFromObject");
    if (!library_ || !lresultFromObject)
        return 0;
    if (!session_ || !*session_)
        session_.emplace();
    if (!*session_)
        return 0;
    const auto object = MakeCom<Accessible>(window);
    const LRESULT answer = lresultFromObject(IID_IAccessible, wParam, static_cast<IUnknown*>(object.Get()));
    // A failure is no object: better the plain one that Windows makes then.
    return answer > 0 ? answer : 0;
}

}  // namespace host
