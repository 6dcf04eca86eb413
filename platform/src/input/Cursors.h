// Cursors: the shapes of the mouse pointer that the system brings along, and the icons of the program.
#pragma once

#include "platform/sim/SimPc.h"

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The cursor of an IDC_ name; the same one each time.
[[nodiscard]] HCURSOR StockCursor(LPCWSTR name);

/// The names of the icons in the program's resources.
class ProgramIcons : public Area {
public:
    using Area::Area;
    void Add(std::u16string name) { names_.push_back(std::move(name)); }
    /// Without regard to case.
    [[nodiscard]] bool Has(std::u16string_view name) const;

private:
    std::vector<std::u16string> names_;
};

}  // namespace platform
