// Folders: where the stand-in PC keeps its special folders.
#pragma once

#include "platform/sim/SimPc.h"

#include <map>
#include <string>
#include <string_view>

namespace platform {

class Folders : public Area {
public:
    explicit Folders(SimPc& pc);

    /// The folder of a CSIDL number, empty when the PC has none.
    [[nodiscard]] std::u16string Path(int id) const;
    /// Moves a special folder; an empty path takes it away.
    void Path(int id, std::u16string_view path);
    /// Ends with a backslash, as GetTempPathW gives it.
    [[nodiscard]] const std::u16string& Temporary() const { return temporary_; }

private:
    std::map<int, std::u16string> paths_;
    std::u16string temporary_ = u"C:\\Users\\Anna\\AppData\\Local\\Temp\\";
};

}  // namespace platform
