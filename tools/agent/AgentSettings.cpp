#include "tools/agent/AgentSettings.h"

#include "base/Handles.h"

#include <shlobj.h>
#include <shlwapi.h>
#include <wincrypt.h>

#include <vector>

namespace agent {

namespace {

/// The agent's path without ".exe".
base::String AgentBase()
{
    WCHAR path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    PathRemoveExtensionW(path);
    return path;
}

base::String SettingsFile()
{
    const base::String beside = BesideAgent(TEXT(".ini"));
    WCHAR roaming[MAX_PATH] = {};
    if (PathFileExistsW(beside.c_str()) || !SHGetSpecialFolderPathW(nullptr, roaming, CSIDL_APPDATA, FALSE))
        return beside;
    return base::String(roaming) + TEXT("\\Velmora Setup Utility\\") + PathFindFileNameW(beside.c_str());
}

}  // namespace

base::String BesideAgent(base::StringView extension)
{
    return AgentBase() + base::String(extension);
}

base::String ReadPassword()
{
    WCHAR value[1024] = {};
    const DWORD length = GetPrivateProfileStringW(TEXT("Settings"), TEXT("Pwd"), TEXT(""), value, ARRAYSIZE(value), SettingsFile().c_str());
    if (length < 2)
        return {};
    DWORD size = 0;
    if (!CryptStringToBinaryW(value + 1, 0, CRYPT_STRING_BASE64, nullptr, &size, nullptr, nullptr))
        return {};
    std::vector<BYTE> bytes(size);
    if (!CryptStringToBinaryW(value + 1, 0, CRYPT_STRING_BASE64, bytes.data(), &size, nullptr, nullptr))
        return {};
    // "A" holds a byte for each character, "W" two, the low one first.
    if (value[0] == TEXT('A'))
        return base::String(bytes.begin(), bytes.end());
    base::String password;
    for (std::size_t at = 0; value[0] == TEXT('W') && at + 1 < bytes.size(); at += 2)
        password += static_cast<WCHAR>(bytes[at] | bytes[at + 1] << 8);
    return password;
}

void Log(base::StringView line)
{
    base::FileHandle file(CreateFileW(BesideAgent(TEXT(".log")).c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file)
        return;
    const int length = static_cast<int>(line.size());
    std::string bytes(line.size() * 3, '\0');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, line.data(), length, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
    bytes += "\r\n";
    DWORD written = 0;
    WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

}  // namespace agent
