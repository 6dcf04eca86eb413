// EnvironmentBlock: the environment variables of the program under test.
#pragma once

#include "platform/sim/SimPc.h"

#include <map>
#include <string>

namespace platform {

class EnvironmentBlock : public Area {
public:
    using Area::Area;

    /// Values by upper-cased name.
    [[nodiscard]] std::map<std::u16string, std::u16string>& All() { return variables_; }

private:
    std::map<std::u16string, std::u16string> variables_{{u"PATH", u"C:\\Windows\\System32"}, {u"SYSTEMROOT", u"C:\\Windows"}};
};

}  // namespace platform
