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

template <class Action>
void WithRunKey(bool use64BitView, Action action)
{
    if (const HKEY key = OpenRegKey(HKEY_LOCAL_MACHINE, runKey, use64BitView)) {
        action(key);
        CloseRegKey(key);
    }
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
    String text;
    DWORD type = REG_NONE;
    if (!ReadRegValue(HKEY_LOCAL_MACHINE, runKey, valueName, text, type, use64BitView))
        return std::nullopt;
    return AutoStartOptions{Contains(text, hidden), Contains(text, soundStart)};
}

void WriteAutoStart(StringView data, bool use64BitView)
{
    WithRunKey(use64BitView, [&](HKEY key) { WriteRegString(key, valueName, data); });
}

void DeleteAutoStart(bool use64BitView)
{
    WithRunKey(use64BitView, [&](HKEY key) { DeleteRegValue(key, valueName); });
}

}  // namespace app
