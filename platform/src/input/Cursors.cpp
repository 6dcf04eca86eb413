// Cursors and icons: the system's own, and those of the program's resources.
#include "platform/src/input/Cursors.h"

#include "platform/sim/Graphics.h"
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Icons.h"
#include "platform/src/message/MessageQueues.h"
#include "platform/src/text/Case.h"
#include "platform/src/window/Metrics.h"

#include <algorithm>
#include <map>

namespace platform {

namespace {

/// A plain picture for an icon that the PC has no drawing of: a disc in the colour of its number.
Icon MakeIcon(int size, std::uint32_t color)
{
    Icon icon;
    icon.color = Image(size, size, color);
    icon.opaque.assign(static_cast<std::size_t>(size) * static_cast<std::size_t>(size), false);
    const Region disc = Region::Ellipse({0, 0, size, size});
    for (const RECT& part : disc.Rectangles())
        for (int y = part.top; y < part.bottom; ++y)
            for (int x = part.left; x < part.right; ++x)
                icon.opaque[static_cast<std::size_t>(y * size + x)] = true;
    return icon;
}

/// What LoadCursorW and LoadIconW gave before; both give the same handle again, and nobody frees it.
class StockPictures : public Area {
public:
    using Area::Area;

    HICON Get(UINT type, ULONG_PTR number)
    {
        HICON& handle = handles_[{type, number}];
        if (!handle) {
            auto icon = std::make_shared<Icon>(MakeIcon(Metric(SM_CXICON), static_cast<std::uint32_t>(number * 0x102030) & 0xFFFFFF));
            icon->isIcon = type == IMAGE_ICON;
            handle = AsHandle<HICON>(pc_.Handles().Open(std::move(icon), HandleTable::Watch::Ignore));
        }
        return handle;
    }
    [[nodiscard]] bool Holds(HICON icon) const
    {
        for (const auto& [key, handle] : handles_)
            if (handle == icon)
                return true;
        return false;
    }

private:
    std::map<std::pair<UINT, ULONG_PTR>, HICON> handles_;
};

StockPictures& Stock()
{
    return SimPc::Current().Get<StockPictures>();
}

bool IsStockName(LPCWSTR name)
{
    const auto number = reinterpret_cast<ULONG_PTR>(name);
    return IS_INTRESOURCE(name) && number >= 32512 && number <= 32651;
}

bool IsProgramIcon(HINSTANCE instance, LPCWSTR name)
{
    return instance && !IS_INTRESOURCE(name) && SimPc::Current().Get<ProgramIcons>().Has(name);
}

std::uint32_t ColorOf(std::u16string_view name)
{
    std::uint32_t color = 0;
    for (const char16_t unit : name)
        color = color * 31 + unit;
    return color & 0xFFFFFF;
}

}  // namespace

HCURSOR StockCursor(LPCWSTR name)
{
    return Stock().Get(IMAGE_CURSOR, reinterpret_cast<ULONG_PTR>(name));
}

bool ProgramIcons::Has(std::u16string_view name) const
{
    return std::any_of(names_.begin(), names_.end(), [&](const std::u16string& known) { return SameName(known, name); });
}

}  // namespace platform

using namespace platform;

HCURSOR WINAPI LoadCursorW(HINSTANCE instance, LPCWSTR name)
{
    SIM_CALL(nullptr, ERROR_RESOURCE_NAME_NOT_FOUND, instance, name);
    if (instance || !IsStockName(name))
        return SimPc::Current().Fail<HCURSOR>(ERROR_RESOURCE_NAME_NOT_FOUND, nullptr);
    return StockCursor(name);
}

HANDLE WINAPI LoadImageW(HINSTANCE instance, LPCWSTR name, UINT type, int width, int height, UINT flags)
{
    SIM_CALL(nullptr, ERROR_RESOURCE_NAME_NOT_FOUND, instance, name, type, width, height, flags);
    SimPc& pc = SimPc::Current();
    if (type == IMAGE_CURSOR && !instance && IsStockName(name))
        return StockCursor(name);
    if (type != IMAGE_ICON || (flags & LR_LOADFROMFILE)) {
        pc.Unsupported("LoadImageW: type " + std::to_string(type) + ", flags " + Describe(flags));
        return nullptr;
    }
    const bool stock = !instance && IsStockName(name);
    if (!stock && !IsProgramIcon(instance, name))
        return pc.Fail<HANDLE>(ERROR_RESOURCE_NAME_NOT_FOUND, nullptr);
    if (flags & LR_SHARED)
        return Stock().Get(IMAGE_ICON, stock ? reinterpret_cast<ULONG_PTR>(name) : ColorOf(name) | 0x1000000u);
    const int size = width ? width : (flags & LR_DEFAULTSIZE) ? Metric(SM_CXICON) : 32;
    auto icon = std::make_shared<Icon>(MakeIcon(size, stock ? 0x4080C0 : ColorOf(name)));
    return AsHandle<HANDLE>(pc.Handles().Open(std::move(icon)));
}

BOOL WINAPI DestroyIcon(HICON icon)
{
    SIM_NOTE(icon);
    SimPc& pc = SimPc::Current();
    if (Stock().Holds(icon))
        return TRUE;
    return pc.Handles().Close<Icon>(icon) ? TRUE : pc.Fail(ERROR_INVALID_CURSOR_HANDLE, FALSE);
}

HCURSOR WINAPI SetCursor(HCURSOR cursor)
{
    SIM_NOTE(cursor);
    return std::exchange(Queues().Current().input->cursor, cursor);
}
