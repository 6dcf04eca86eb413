// Visual styles as the program asks for them.
#include "platform/sim/Theme.h"
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Text.h"
#include "platform/src/message/Inner.h"
#include "platform/src/theme/ThemeParts.h"
#include "platform/src/theme/WindowThemes.h"

#include <windows.h>

#include <uxtheme.h>

using namespace platform;

namespace {

/// What OpenThemeData hands out.
struct OpenTheme : Object {
    std::u16string className;
};

/// The first class of the list (`;` between them) that the visual style has, in upper case; empty when it has none.
std::u16string ChooseClass(std::u16string_view classList)
{
    while (!classList.empty()) {
        const std::size_t end = std::min(classList.find(u';'), classList.size());
        std::u16string name(classList.substr(0, end));
        for (char16_t& character : name)
            if (character >= u'a' && character <= u'z')
                character = static_cast<char16_t>(character - 32);
        if (HasThemeClass(name))
            return name;
        classList.remove_prefix(std::min(end + 1, classList.size()));
    }
    return {};
}

std::shared_ptr<OpenTheme> FindTheme(HTHEME theme)
{
    return SimPc::Current().Handles().Find<OpenTheme>(theme);
}

HRESULT RefusePart(const OpenTheme& theme, int part, int state)
{
    SimPc::Current().Unsupported("visual style: class " + Describe(theme.className.c_str()) + " part " + std::to_string(part) + " state " +
                                 std::to_string(state));
    return E_INVALIDARG;
}

constexpr DWORD kElementNotFound = 1168;

}  // namespace

BOOL WINAPI IsThemeActive()
{
    SIM_NOTE();
    return SimPc::Current().Get<Theme>().Active();
}

BOOL WINAPI IsAppThemed()
{
    SIM_NOTE();
    return SimPc::Current().Get<Theme>().AppThemed();
}

HTHEME WINAPI OpenThemeData(HWND window, LPCWSTR classList)
{
    SIM_CALL(nullptr, E_HANDLE, window, classList);
    SimPc& pc = SimPc::Current();
    const Theme& theme = pc.Get<Theme>();
    if (!classList)
        return pc.Fail(static_cast<DWORD>(E_INVALIDARG), HTHEME{});
    const std::u16string* const own = pc.Get<WindowThemes>().Of(window);
    std::u16string className = own && own->empty() ? std::u16string() : ChooseClass(classList);
    if (!theme.Active() || !theme.AppThemed() || className.empty())
        return pc.Fail(kElementNotFound, HTHEME{});
    auto opened = std::make_shared<OpenTheme>();
    opened->className = std::move(className);
    return AsHandle<HTHEME>(pc.Handles().Open(std::move(opened)));
}

HRESULT WINAPI CloseThemeData(HTHEME theme)
{
    SIM_NOTE(theme);
    return SimPc::Current().Handles().Close<OpenTheme>(theme) ? S_OK : E_HANDLE;
}

HRESULT WINAPI SetWindowTheme(HWND window, LPCWSTR applicationName, LPCWSTR classList)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, window, applicationName, classList);
    if (!SimPc::Current().Handles().Find<Window>(window))
        return E_HANDLE;
    WindowThemes& themes = SimPc::Current().Get<WindowThemes>();
    if (classList)
        themes.Set(window, classList);
    else
        themes.Forget(window);
    inner::SendMessage(window, WM_THEMECHANGED, 0, 0);
    return S_OK;
}

HRESULT WINAPI DrawThemeBackground(HTHEME theme, HDC dc, int part, int state, const RECT* rectangle, const RECT* clip)
{
    SIM_CALL(E_FAIL, ERROR_NOT_ENOUGH_MEMORY, theme, dc, part, state, rectangle, clip);
    const auto found = FindTheme(theme);
    if (!found)
        return E_HANDLE;
    if (!rectangle || !FindDc(dc))
        return E_INVALIDARG;
    if (!DrawThemePart(found->className, dc, part, state, *rectangle, clip))
        return RefusePart(*found, part, state);
    return S_OK;
}

HRESULT WINAPI DrawThemeText(HTHEME theme, HDC dc, int part, int state, LPCWSTR text, int length, DWORD textFlags, DWORD secondFlags,
                             const RECT* rectangle)
{
    SIM_CALL(E_FAIL, ERROR_NOT_ENOUGH_MEMORY, theme, dc, part, state, Counted(text, length).c_str(), length, textFlags, secondFlags,
             rectangle);
    const auto found = FindTheme(theme);
    if (!found)
        return E_HANDLE;
    const auto context = FindDc(dc);
    if (!rectangle || !text || !context)
        return E_INVALIDARG;
    RECT area = *rectangle;
    const COLORREF color = secondFlags & DTT_GRAYED ? SimPc::Current().Get<Graphics>().SystemColor(COLOR_GRAYTEXT)
                                                    : ThemeTextColor(found->className, part, state);
    const int mode = std::exchange(context->state.backMode, TRANSPARENT);
    DrawTextIn(*context, Counted(text, length), area, textFlags, color);
    context->state.backMode = mode;
    return S_OK;
}

HRESULT WINAPI GetThemeBackgroundRegion(HTHEME theme, HDC dc, int part, int state, const RECT* rectangle, HRGN* region)
{
    SIM_CALL(E_FAIL, ERROR_NOT_ENOUGH_MEMORY, theme, dc, part, state, rectangle);
    const auto found = FindTheme(theme);
    if (!found)
        return E_HANDLE;
    if (!rectangle || !region)
        return E_INVALIDARG;
    auto object = std::make_shared<RegionObject>();
    object->region = ThemePartRegion(found->className, part, *rectangle);
    *region = OpenObject<HRGN>(std::move(object));
    return S_OK;
}
