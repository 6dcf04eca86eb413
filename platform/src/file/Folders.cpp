#include "platform/sim/Folders.h"

#include "platform/sim/Volumes.h"
#include "platform/src/core/Gate.h"
#include "platform/src/text/Buffers.h"

#include <shlobj.h>
#include <windows.h>

using namespace platform;

namespace platform {

Folders::Folders(SimPc& pc) : Area(pc)
{
    const std::u16string home = u"C:\\Users\\Anna";
    const std::u16string startMenu = home + u"\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu";
    paths_ = {{CSIDL_DESKTOP, home + u"\\Desktop"},
              {CSIDL_PROGRAMS, startMenu + u"\\Programs"},
              {CSIDL_PERSONAL, home + u"\\Documents"},
              {CSIDL_STARTUP, startMenu + u"\\Programs\\Startup"},
              {CSIDL_STARTMENU, startMenu},
              {CSIDL_APPDATA, home + u"\\AppData\\Roaming"},
              {CSIDL_LOCAL_APPDATA, home + u"\\AppData\\Local"},
              {CSIDL_COMMON_APPDATA, u"C:\\ProgramData"},
              {CSIDL_WINDOWS, u"C:\\Windows"},
              {CSIDL_SYSTEM, u"C:\\Windows\\system32"},
              {CSIDL_PROGRAM_FILES, u"C:\\Program Files"},
              {CSIDL_PROFILE, home},
              {CSIDL_SYSTEMX86, u"C:\\Windows\\SysWOW64"}};
}

std::u16string Folders::Path(int id) const
{
    const auto found = paths_.find(id);
    return found == paths_.end() ? std::u16string() : found->second;
}

void Folders::Path(int id, std::u16string_view path)
{
    paths_[id] = path;
}

}  // namespace platform

DWORD WINAPI GetTempPathW(DWORD size, LPWSTR buffer)
{
    SIM_CALL(0, ERROR_ACCESS_DENIED, size);
    return LengthOrNeeded(SimPc::Current().Get<Folders>().Temporary(), buffer, size);
}

UINT WINAPI GetWindowsDirectoryW(LPWSTR buffer, UINT size)
{
    SIM_CALL(0, ERROR_ACCESS_DENIED, size);
    return LengthOrNeeded(SimPc::Current().Get<Folders>().Path(CSIDL_WINDOWS), buffer, size);
}

UINT WINAPI GetSystemDirectoryW(LPWSTR buffer, UINT size)
{
    SIM_CALL(0, ERROR_ACCESS_DENIED, size);
    return LengthOrNeeded(SimPc::Current().Get<Folders>().Path(CSIDL_SYSTEM), buffer, size);
}

BOOL WINAPI SHGetSpecialFolderPathW(HWND, LPWSTR path, INT folder, BOOL create)
{
    SIM_CALL(FALSE, ERROR_FILE_NOT_FOUND, folder, create);
    SimPc& pc = SimPc::Current();
    Volumes& volumes = pc.Get<Volumes>();
    const std::u16string found = pc.Get<Folders>().Path(folder & ~CSIDL_FLAG_CREATE);
    const bool makes = create || (folder & CSIDL_FLAG_CREATE) != 0;
    if (found.empty() || (!makes && !volumes.IsFolder(found)))
        return FALSE;
    if (makes)
        volumes.MakeFolder(found);
    CopyCut(found, path, MAX_PATH);
    return TRUE;
}
