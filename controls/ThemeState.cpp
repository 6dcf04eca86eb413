#include "controls/ThemeState.h"

#include <shlwapi.h>
#include <uxtheme.h>

#include <utility>

namespace controls {

namespace {

/// The manifest decides which comctl32 this process gets; DllGetVersion of the loaded one tells.
DWORD CommonControlsVersion()
{
    const HMODULE library = GetModuleHandleW(TEXT("comctl32.dll"));
    const FARPROC address = library ? GetProcAddress(library, "DllGetVersion") : nullptr;
    if (!address)
        return 0;
    const auto getVersion = reinterpret_cast<DLLGETVERSIONPROC>(reinterpret_cast<void (*)()>(address));
    DLLVERSIONINFO information{};
    information.cbSize = sizeof information;
    return SUCCEEDED(getVersion(&information)) ? information.dwMajorVersion : 0;
}

}  // namespace

ThemeState& ThemeState::OfProcess()
{
    static ThemeState state;
    return state;
}

bool ThemeState::IsThemeAvailable()
{
    if (version_ == Version::BeforeSix || !IsThemeActive() || !IsAppThemed())
        return false;
    if (version_ == Version::Unknown) {
        const DWORD major = query_ ? query_() : CommonControlsVersion();
        version_ = major >= 6 ? Version::SixOrLater : Version::BeforeSix;
    }
    return version_ == Version::SixOrLater;
}

void ThemeState::AskVersionWith(VersionQuery query)
{
    query_ = std::move(query);
    version_ = Version::Unknown;
}

bool IsThemeAvailable()
{
    return ThemeState::OfProcess().IsThemeAvailable();
}

}  // namespace controls
