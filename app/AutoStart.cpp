#include "app/AutoStart.h"

#include "app/RegistryValues.h"

namespace app {

using base::String;
using base::StringView;

namespace {

constexpr StringView runKey = TEXT("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
constexpr StringView valueName = TEXT("Velmora");
constexpr StringView hidden = TEXT("/Hidden");
constexpr StringView soundStart = TEXT("/SoundStart");

bool Contains(StringView text, StringView option)
{
    return base::FindIgnoringCase(text, option) != String::npos;
}

}  // namespace

String AutoStartData(StringView agentPath, const AutoStartOptions& options)
{
    String data = TEXT('"') + String(agentPath) + TEXT('"');
    if (options.hideTrayIcon)
        data.append(TEXT(" ")).append(hidden);
    if (options.soundStart)
        data.append(TEXT(" ")).append(soundStart);
    return data;
}

std::optional<AutoStartOptions> ReadAutoStart(bool use64BitView)
{
    const std::optional<RegValue> value = ReadRegValue(HKEY_LOCAL_MACHINE, runKey, valueName, use64BitView);
    if (!value)
        return std::nullopt;
    return AutoStartOptions{Contains(value->text, hidden), Contains(value->text, soundStart)};
}

void WriteAutoStart(StringView data, bool use64BitView)
{
    if (const base::RegistryKey key = OpenRegKey(HKEY_LOCAL_MACHINE, runKey, use64BitView))
        WriteRegString(key, valueName, data);
}

void DeleteAutoStart(bool use64BitView)
{
    if (const base::RegistryKey key = OpenRegKey(HKEY_LOCAL_MACHINE, runKey, use64BitView))
        DeleteRegValue(key, valueName);
}

}  // namespace app
