#include "platform/src/window/Metrics.h"

#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Screen.h"
#include "platform/src/window/UserSettings.h"

#include <algorithm>
#include <string_view>

namespace platform {

namespace {

/// Sizes at 96 dots per inch; those marked grow with the resolution.
struct MetricRow {
    int index;
    int value;
    bool grows;
};
constexpr MetricRow kMetrics[] = {
    {SM_CXVSCROLL, 17, true},     {SM_CYHSCROLL, 17, true},      {SM_CYCAPTION, 23, true},      {SM_CXBORDER, 1, false},
    {SM_CYBORDER, 1, false},      {SM_CXDLGFRAME, 3, false},     {SM_CYDLGFRAME, 3, false},     {SM_CXICON, 32, true},
    {SM_CYICON, 32, true},        {SM_CXCURSOR, 32, true},       {SM_CYCURSOR, 32, true},       {SM_CYMENU, 20, true},
    {SM_MOUSEPRESENT, 1, false},  {SM_CYVSCROLL, 17, true},      {SM_CXHSCROLL, 17, true},      {SM_SWAPBUTTON, 0, false},
    {SM_CXMIN, 136, true},        {SM_CYMIN, 39, true},          {SM_CXSIZE, 36, true},         {SM_CYSIZE, 22, true},
    {SM_CXSIZEFRAME, 4, true},    {SM_CYSIZEFRAME, 4, true},     {SM_CXMINTRACK, 136, true},    {SM_CYMINTRACK, 39, true},
    {SM_CXDOUBLECLK, 4, false},   {SM_CYDOUBLECLK, 4, false},    {SM_CXEDGE, 2, false},         {SM_CYEDGE, 2, false},
    {SM_CXSMICON, 16, true},      {SM_CYSMICON, 16, true},       {SM_CYSMCAPTION, 23, true},    {SM_CXMENUCHECK, 15, true},
    {SM_CYMENUCHECK, 15, true},   {SM_XVIRTUALSCREEN, 0, false}, {SM_YVIRTUALSCREEN, 0, false}, {SM_CXFOCUSBORDER, 1, false},
    {SM_CYFOCUSBORDER, 1, false}, {SM_CXPADDEDBORDER, 4, true},  {SM_REMOTESESSION, 0, false}};

const MetricRow* Find(int index)
{
    const auto found = std::find_if(std::begin(kMetrics), std::end(kMetrics), [&](const MetricRow& row) { return row.index == index; });
    return found == std::end(kMetrics) ? nullptr : found;
}

bool IsScreenSize(int index)
{
    return index == SM_CXSCREEN || index == SM_CYSCREEN || index == SM_CXVIRTUALSCREEN || index == SM_CYVIRTUALSCREEN;
}

/// The font that the system uses in captions, menus and messages: 9 points.
LOGFONTW InterfaceFont()
{
    LOGFONTW font{};
    font.lfHeight = -(12 * SimPc::Current().Get<Screen>().Dpi() + 48) / 96;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    SimPc::Current().Get<UserSettings>().messageFont.copy(font.lfFaceName, LF_FACESIZE - 1);
    return font;
}

BOOL FillNonClientMetrics(NONCLIENTMETRICSW& metrics)
{
    // Both sizes are taken: the one that older systems know ends before the padded border.
    constexpr UINT olderSize = offsetof(NONCLIENTMETRICSW, iPaddedBorderWidth);
    if (metrics.cbSize != sizeof metrics && metrics.cbSize != olderSize)
        return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, FALSE);
    metrics.iBorderWidth = 1;
    metrics.iScrollWidth = Metric(SM_CXVSCROLL);
    metrics.iScrollHeight = Metric(SM_CYHSCROLL);
    metrics.iCaptionWidth = Metric(SM_CXSIZE);
    metrics.iCaptionHeight = Metric(SM_CYSIZE);
    metrics.iSmCaptionWidth = metrics.iCaptionHeight;
    metrics.iSmCaptionHeight = metrics.iCaptionHeight;
    metrics.iMenuWidth = Metric(SM_CYMENU) - 1;
    metrics.iMenuHeight = Metric(SM_CYMENU) - 1;
    metrics.lfCaptionFont = metrics.lfSmCaptionFont = metrics.lfMenuFont = metrics.lfStatusFont = metrics.lfMessageFont = InterfaceFont();
    if (metrics.cbSize == sizeof metrics)
        metrics.iPaddedBorderWidth = Metric(SM_CXPADDEDBORDER);
    return TRUE;
}

BOOL ParametersInfo(UINT action, PVOID data)
{
    SimPc& pc = SimPc::Current();
    switch (action) {
        case SPI_GETWORKAREA:
            *static_cast<RECT*>(data) = pc.Get<Screen>().WorkArea();
            return TRUE;
        case SPI_GETKEYBOARDCUES:
            *static_cast<BOOL*>(data) = pc.Get<UserSettings>().keyboardCues;
            return TRUE;
        case SPI_GETWHEELSCROLLLINES:
            *static_cast<UINT*>(data) = 3;
            return TRUE;
        default:
            pc.Unsupported("SystemParametersInfo: action " + Describe(action));
            return FALSE;
    }
}

}  // namespace

bool KnowsMetric(int index)
{
    return IsScreenSize(index) || Find(index);
}

int Metric(int index)
{
    const Screen& screen = SimPc::Current().Get<Screen>();
    if (IsScreenSize(index))
        return index == SM_CXSCREEN || index == SM_CXVIRTUALSCREEN ? screen.Size().cx : screen.Size().cy;
    const MetricRow* row = Find(index);
    return !row ? 0 : row->grows ? (row->value * screen.Dpi() + 48) / 96 : row->value;
}

}  // namespace platform

using namespace platform;

int WINAPI GetSystemMetrics(int index)
{
    SIM_NOTE(index);
    if (!KnowsMetric(index))
        SimPc::Current().Unsupported("GetSystemMetrics: index " + std::to_string(index));
    return Metric(index);
}

/// There is one monitor, and its number is 1.
HMONITOR WINAPI MonitorFromWindow(HWND window, DWORD otherwise)
{
    SIM_NOTE(window, otherwise);
    return AsHandle<HMONITOR>(1);
}

BOOL WINAPI GetMonitorInfoW(HMONITOR monitor, MONITORINFO* info)
{
    SIM_CALL(FALSE, ERROR_INVALID_MONITOR_HANDLE, monitor);
    if (info->cbSize != sizeof *info)
        return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, FALSE);
    const Screen& screen = SimPc::Current().Get<Screen>();
    info->rcMonitor = {0, 0, screen.Size().cx, screen.Size().cy};
    info->rcWork = screen.WorkArea();
    info->dwFlags = MONITORINFOF_PRIMARY;
    return TRUE;
}

BOOL WINAPI SystemParametersInfoW(UINT action, UINT parameter, PVOID data, UINT flags)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, action, parameter, data, flags);
    return action == SPI_GETNONCLIENTMETRICS ? FillNonClientMetrics(*static_cast<NONCLIENTMETRICSW*>(data)) : ParametersInfo(action, data);
}

BOOL WINAPI SystemParametersInfoA(UINT action, UINT parameter, PVOID data, UINT flags)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, action, parameter, data, flags);
    return ParametersInfo(action, data);  // The records that hold text have another shape here and are unknown.
}
