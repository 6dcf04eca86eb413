// Printer: the default printer of the stand-in PC, and what has been printed on it. A fresh PC has none.
#pragma once

#include "platform/sim/SimPc.h"

#include <windef.h>

#include <optional>
#include <string>
#include <vector>

namespace platform {

class Printer : public Area {
public:
    using Area::Area;

    struct Device {
        std::u16string name;
        int dpi;
        SIZE page;  // what can be printed on, in pixels
    };
    [[nodiscard]] const std::optional<Device>& Default() const { return default_; }
    void Default(std::optional<Device> device) { default_ = std::move(device); }

    struct Line {
        std::u16string text;
        POINT place;
    };
    struct Document {
        std::u16string name;
        std::vector<std::vector<Line>> pages;
    };
    /// Those that were ended, not those given up.
    [[nodiscard]] const std::vector<Document>& Printed() const { return printed_; }
    void Print(Document document) { printed_.push_back(std::move(document)); }

private:
    std::optional<Device> default_;
    std::vector<Document> printed_;
};

}  // namespace platform
