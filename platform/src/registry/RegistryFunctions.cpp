// The registry functions. They return their errors and leave the last error alone. https://learn.microsoft.com/windows/win32/api/winreg/
#include "platform/sim/Machine.h"
#include "platform/src/core/Gate.h"
#include "platform/src/registry/RegistryKeys.h"
#include "platform/src/text/Buffers.h"

#include <windows.h>

#include <cstring>

using namespace platform;

namespace {

/// The error that an injected failure carries.
LSTATUS Struck()
{
    return static_cast<LSTATUS>(SimPc::Current().LastError());
}

REGSAM MapGenericKey(REGSAM access)
{
    REGSAM mapped = access & ~REGSAM{KEY_WOW64_RES};
    if ((access & (GENERIC_ALL | MAXIMUM_ALLOWED)) != 0)
        mapped |= KEY_ALL_ACCESS;
    if ((access & GENERIC_READ) != 0)
        mapped |= KEY_READ;
    if ((access & GENERIC_WRITE) != 0)
        mapped |= KEY_WRITE;
    return mapped;
}

/// An open key, or a root as one that grants everything; NULL for anything else.
std::shared_ptr<OpenKey> FindKey(SimPc& pc, HKEY key)
{
    if (auto opened = pc.Handles().Find<OpenKey>(key))
        return opened;
    auto node = pc.Get<RegistryKeys>().RootOf(key);
    if (!node)
        return nullptr;
    auto root = std::make_shared<OpenKey>();
    root->node = std::move(node);
    root->access = KEY_ALL_ACCESS;
    root->root = key;
    return root;
}

/// Why a key cannot be used for this, ERROR_SUCCESS when it can.
LSTATUS Usable(const std::shared_ptr<OpenKey>& key, REGSAM access)
{
    if (!key)
        return ERROR_INVALID_HANDLE;
    if (key->node->deleted)
        return ERROR_KEY_DELETED;
    return (key->access & access) == access ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

Registry::View ViewOf(SimPc& pc, REGSAM access)
{
    const bool narrow = (access & KEY_WOW64_32KEY) != 0 || ((access & KEY_WOW64_64KEY) == 0 && pc.Get<Machine>().Wow64());
    return narrow ? Registry::View::Bits32 : Registry::View::Bits64;
}

std::u16string Join(const std::u16string& path, std::u16string_view below)
{
    return path.empty() || below.empty() ? path + std::u16string(below) : path + u"\\" + std::u16string(below);
}

HKEY Open(SimPc& pc, std::shared_ptr<KeyNode> node, REGSAM access, HKEY root, std::u16string path)
{
    auto opened = std::make_shared<OpenKey>();
    opened->node = std::move(node);
    opened->access = MapGenericKey(access);
    opened->root = root;
    opened->path = std::move(path);
    return AsHandle<HKEY>(pc.Handles().Open(std::move(opened)));
}

bool IsText(DWORD type)
{
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

}  // namespace

LSTATUS WINAPI RegOpenKeyExW(HKEY key, LPCWSTR subkey, DWORD options, REGSAM access, PHKEY result)
{
    SIM_CALL(Struck(), ERROR_ACCESS_DENIED, key, subkey, options, access);
    SimPc& pc = SimPc::Current();
    *result = nullptr;
    const auto start = FindKey(pc, key);
    if (const LSTATUS error = Usable(start, 0); error != ERROR_SUCCESS)
        return error;
    if ((access & KEY_WOW64_RES) == KEY_WOW64_RES)
        return ERROR_INVALID_PARAMETER;
    const RegistryKeys& keys = pc.Get<RegistryKeys>();
    const std::u16string path = RegistryKeys::Redirected(start->root, Join(start->path, OrEmpty(subkey)), ViewOf(pc, access));
    const auto node = RegistryKeys::Walk(keys.RootOf(start->root), path, false);
    if (!node)
        return ERROR_FILE_NOT_FOUND;
    if (const DWORD error = keys.Check(*node, access); error != NO_ERROR)
        return static_cast<LSTATUS>(error);
    *result = Open(pc, node, access, start->root, path);
    return ERROR_SUCCESS;
}

LSTATUS WINAPI RegCreateKeyExW(HKEY key, LPCWSTR subkey, DWORD, LPWSTR, DWORD options, REGSAM access, SECURITY_ATTRIBUTES*, PHKEY result,
                               LPDWORD disposition)
{
    SIM_CALL(Struck(), ERROR_ACCESS_DENIED, key, subkey, options, access);
    SimPc& pc = SimPc::Current();
    *result = nullptr;
    const auto start = FindKey(pc, key);
    if (const LSTATUS error = Usable(start, 0); error != ERROR_SUCCESS)
        return error;
    const RegistryKeys& keys = pc.Get<RegistryKeys>();
    const std::u16string path = RegistryKeys::Redirected(start->root, Join(start->path, OrEmpty(subkey)), ViewOf(pc, access));
    auto node = RegistryKeys::Walk(keys.RootOf(start->root), path, false);
    const bool existed = node != nullptr;
    const REGSAM needed = existed ? access : access | KEY_CREATE_SUB_KEY;
    if (const DWORD error = keys.Check(existed ? *node : *start->node, needed); error != NO_ERROR)
        return static_cast<LSTATUS>(error);
    if (!existed)
        node = RegistryKeys::Walk(keys.RootOf(start->root), path, true);
    if (disposition)
        *disposition = existed ? REG_OPENED_EXISTING_KEY : REG_CREATED_NEW_KEY;
    *result = Open(pc, node, access, start->root, path);
    return ERROR_SUCCESS;
}

LSTATUS WINAPI RegCloseKey(HKEY key)
{
    SIM_NOTE(key);
    SimPc& pc = SimPc::Current();
    return pc.Handles().Close<OpenKey>(key) || pc.Get<RegistryKeys>().RootOf(key) ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

LSTATUS WINAPI RegQueryValueExW(HKEY key, LPCWSTR name, LPDWORD, LPDWORD type, LPBYTE data, LPDWORD size)
{
    SIM_CALL(Struck(), ERROR_FILE_NOT_FOUND, key, name);
    const auto opened = FindKey(SimPc::Current(), key);
    if (data && !size)
        return ERROR_INVALID_PARAMETER;
    if (const LSTATUS error = Usable(opened, KEY_QUERY_VALUE); error != ERROR_SUCCESS)
        return error;
    const auto found = opened->node->values.find(OrEmpty(name));
    if (found == opened->node->values.end())
        return ERROR_FILE_NOT_FOUND;
    const RegistryValue& value = found->second;
    if (type)
        *type = value.type;
    if (!size)
        return ERROR_SUCCESS;
    const DWORD room = *size;
    *size = static_cast<DWORD>(value.bytes.size());
    if (!data)
        return ERROR_SUCCESS;
    if (room < value.bytes.size())
        return ERROR_MORE_DATA;
    std::memcpy(data, value.bytes.data(), value.bytes.size());
    // A text that was stored without its zero gets one when there is room for it.
    if (IsText(value.type) && !value.bytes.empty() && room >= value.bytes.size() + sizeof(WCHAR) &&
        !value.bytes.ends_with(std::string(2, '\0')))
        std::memset(data + value.bytes.size(), 0, sizeof(WCHAR));
    return ERROR_SUCCESS;
}

LSTATUS WINAPI RegSetValueExW(HKEY key, LPCWSTR name, DWORD, DWORD type, const BYTE* data, DWORD size)
{
    SIM_CALL(Struck(), ERROR_ACCESS_DENIED, key, name, type, size);
    const auto opened = FindKey(SimPc::Current(), key);
    if (const LSTATUS error = Usable(opened, KEY_SET_VALUE); error != ERROR_SUCCESS)
        return error;
    opened->node->values[std::u16string(OrEmpty(name))] = {type, std::string(reinterpret_cast<const char*>(data), data ? size : 0)};
    return ERROR_SUCCESS;
}

LSTATUS WINAPI RegDeleteValueW(HKEY key, LPCWSTR name)
{
    SIM_CALL(Struck(), ERROR_ACCESS_DENIED, key, name);
    const auto opened = FindKey(SimPc::Current(), key);
    if (const LSTATUS error = Usable(opened, KEY_SET_VALUE); error != ERROR_SUCCESS)
        return error;
    const auto found = opened->node->values.find(OrEmpty(name));
    if (found == opened->node->values.end())
        return ERROR_FILE_NOT_FOUND;
    opened->node->values.erase(found);
    return ERROR_SUCCESS;
}

LSTATUS WINAPI RegDeleteKeyW(HKEY key, LPCWSTR subkey)
{
    SIM_CALL(Struck(), ERROR_ACCESS_DENIED, key, subkey);
    SimPc& pc = SimPc::Current();
    const auto start = FindKey(pc, key);
    if (const LSTATUS error = Usable(start, 0); error != ERROR_SUCCESS)
        return error;
    const std::u16string path = RegistryKeys::Redirected(start->root, Join(start->path, OrEmpty(subkey)), ViewOf(pc, 0));
    const auto top = pc.Get<RegistryKeys>().RootOf(start->root);
    const auto node = RegistryKeys::Walk(top, path, false);
    if (!node || path.empty())
        return ERROR_FILE_NOT_FOUND;
    if (!node->children.empty() || pc.Get<RegistryKeys>().Check(*node, DELETE) != NO_ERROR)
        return ERROR_ACCESS_DENIED;
    const std::size_t slash = path.rfind(u'\\');
    const auto parent = slash == std::u16string::npos ? top : RegistryKeys::Walk(top, path.substr(0, slash), false);
    node->deleted = true;
    parent->children.erase(parent->children.find(node->name));
    return ERROR_SUCCESS;
}
