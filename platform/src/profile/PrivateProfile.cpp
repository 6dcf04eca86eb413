// Private profiles. https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-getprivateprofilestringw
#include "platform/sim/Folders.h"
#include "platform/src/core/Gate.h"
#include "platform/src/file/FileTree.h"
#include "platform/src/profile/IniText.h"
#include "platform/src/text/Buffers.h"

#include <shlobj.h>
#include <windows.h>

#include <algorithm>

using namespace platform;

namespace {

/// A bare file name is looked for in the Windows folder, not in the current one.
std::u16string ProfilePath(SimPc& pc, std::u16string_view file)
{
    if (file.find_first_of(u"\\/:") != std::u16string_view::npos)
        return std::u16string(file);
    return pc.Get<Folders>().Path(CSIDL_WINDOWS) + u"\\" + std::u16string(file);
}

/// Whether everybody who has the file open shares it so (FILE_SHARE_READ or FILE_SHARE_WRITE).
bool IsShared(const FileNode& node, DWORD how)
{
    return std::all_of(node.opens.begin(), node.opens.end(), [&](const auto& entry) {
        const auto open = entry.lock();
        return !open || (open->share & how) != 0;
    });
}

/// Why the file cannot be written, NO_ERROR when it can; it need not exist.
DWORD WhyNotWrite(const FileTree& files, const FileTree::Place& place)
{
    if (!place.node)
        return place.error != ERROR_FILE_NOT_FOUND ? place.error : files.Allows(place, FILE_ADD_FILE) ? NO_ERROR : ERROR_ACCESS_DENIED;
    if (place.node->folder || (place.node->attributes & FILE_ATTRIBUTE_READONLY) != 0 ||
        !files.Allows(place, FILE_WRITE_DATA | FILE_READ_DATA))
        return ERROR_ACCESS_DENIED;
    return IsShared(*place.node, FILE_SHARE_WRITE) ? NO_ERROR : ERROR_SHARING_VIOLATION;
}

}  // namespace

DWORD WINAPI GetPrivateProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR fallback, LPWSTR buffer, DWORD size, LPCWSTR file)
{
    // A read that fails gives the default, as if the key were missing.
    const auto giveDefault = [&] {
        std::u16string_view text = OrEmpty(fallback);
        while (text.ends_with(u' '))
            text.remove_suffix(1);
        SimPc::Current().LastError(ERROR_FILE_NOT_FOUND);
        return CopyCut(text, buffer, size);
    };
    SIM_CALL(giveDefault(), ERROR_FILE_NOT_FOUND, section, key, fallback, size, file);
    SimPc& pc = SimPc::Current();
    if (!section || !key || !file) {
        pc.Unsupported("GetPrivateProfileStringW: lists of sections or keys");
        return 0;
    }
    const FileTree& files = Files();
    const FileTree::Place place = files.Find(ProfilePath(pc, file));
    if (!place.node || place.node->folder || !files.Allows(place, FILE_READ_DATA) || !IsShared(*place.node, FILE_SHARE_READ))
        return giveDefault();
    const auto value = IniText(place.node->bytes).Get(section, key);
    if (!value)
        return giveDefault();
    pc.LastError(NO_ERROR);
    return CopyCut(*value, buffer, size);
}

BOOL WINAPI WritePrivateProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR text, LPCWSTR file)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, section, key, text, file);
    SimPc& pc = SimPc::Current();
    if (!section || !file) {
        pc.Unsupported("WritePrivateProfileStringW without a section or a file");
        return FALSE;
    }
    FileTree& files = Files();
    const FileTree::Place place = files.Find(ProfilePath(pc, file));
    const DWORD error = WhyNotWrite(files, place);
    if (error != NO_ERROR)
        return pc.Fail(error, FALSE);
    IniText content(place.node ? std::string_view(place.node->bytes) : std::string_view());
    bool changed = true;
    if (!key)
        changed = content.RemoveSection(section);
    else if (!text)
        changed = content.RemoveKey(section, key);
    else
        content.Set(section, key, text);
    if (changed)
        (place.node ? place.node : files.Add(place, false))->bytes = content.Bytes();
    return TRUE;
}
