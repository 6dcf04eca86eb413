#include "app/helpers/Administrator.h"

#include "base/SystemExport.h"

namespace helpers {

bool IsUserAdmin()
{
    // The import libraries for 32-bit programs lack IsNTAdmin, so it is looked up.
    const base::SystemExport<BOOL WINAPI(DWORD, DWORD*)> isAdmin(TEXT("advpack.dll"), "IsNTAdmin");
    return isAdmin && isAdmin(0u, static_cast<DWORD*>(nullptr));
}

}  // namespace helpers
