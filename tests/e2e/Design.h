// Design: where the form file puts every control of the utility's window.
#pragma once

#include "app/Form1.h"
#include "host/FormFile.h"

#include <algorithm>
#include <stdexcept>

namespace e2e {

struct Designed {
    std::string kind, name;
    /// In pixels of the window's client area, at 96 dots per inch; empty for timers.
    RECT place;
};

inline void CollectDesign(const host::FormNode& container, POINT origin, std::vector<Designed>& controls)
{
    for (const host::FormNode& node : container.children) {
        const auto pixels = [&](base::StringView key) {
            const auto found = std::ranges::find(node.properties, key, &host::Property::key);
            return found == node.properties.end() ? 0 : static_cast<LONG>(std::get<host::Number>(found->value).value) / 15;
        };
        const LONG left = origin.x + pixels(TEXT("Left")), top = origin.y + pixels(TEXT("Top"));
        controls.push_back({{node.kind.begin(), node.kind.end()},
                            {node.name.begin(), node.name.end()},
                            {left, top, left + pixels(TEXT("Width")), top + pixels(TEXT("Height"))}});
        CollectDesign(node, {left, top}, controls);
    }
}

/// All controls, in the form file's order.
inline const std::vector<Designed>& Design()
{
    static std::vector<Designed> controls;
    if (controls.empty())
        CollectDesign(host::ParseForm(app::Form1Text()).root, {0, 0}, controls);
    return controls;
}

inline const Designed& DesignOf(std::string_view name)
{
    const auto found = std::ranges::find(Design(), name, &Designed::name);
    return found != Design().end() ? *found : throw std::out_of_range("no such control");
}

}  // namespace e2e
