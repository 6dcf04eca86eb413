// RegistryValues: single values of the registry as text.
#pragma once

#include "base/String.h"

#include <cstdint>
#include <variant>
#include <vector>

namespace app {

/// What `WriteRegValue` stores: text for the types REG_SZ, REG_EXPAND_SZ and REG_DWORD, bytes for REG_BINARY.
using RegData = std::variant<base::String, std::vector<std::uint8_t>>;

/// Opens an existing key for reading and writing; the caller closes it with `CloseRegKey`. Null when that fails. `use64BitView` reaches the
/// 64-bit registry from a 32-bit process. https://learn.microsoft.com/windows/win32/api/winreg/nf-winreg-regopenkeyexw
HKEY OpenRegKey(HKEY hive, base::StringView subkey, bool use64BitView);
bool CloseRegKey(HKEY key);

/// Reads at most 1024 bytes; false, with nothing changed, when the value is missing or longer. REG_SZ and REG_EXPAND_SZ give their text up
/// to the first zero (environment variables stay as they are), REG_DWORD its decimal form, every other type an empty text.
bool QueryRegValue(HKEY key, base::StringView name, base::String& text, DWORD& type);

/// Opens the key, reads the value and closes the key; true when all three succeeded.
bool ReadRegValue(HKEY hive, base::StringView subkey, base::StringView name, base::String& text, DWORD& type, bool use64BitView);

/// Text is stored with its terminating zero. False when Windows refuses, for data that does not fit the type, and for any other type.
bool WriteRegValue(HKEY key, base::StringView name, const RegData& data, DWORD type);
bool WriteRegString(HKEY key, base::StringView name, base::StringView text);
bool DeleteRegValue(HKEY key, base::StringView name);

}  // namespace app
