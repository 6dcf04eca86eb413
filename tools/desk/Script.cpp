#include "tools/desk/Script.h"

#include "platform/sim/Desktop.h"
#include "tests/support/Png.h"
#include "tools/desk/Scene.h"

#include <cctype>
#include <map>
#include <sstream>

namespace desk {

namespace {

using platform::Desktop;

/// Script text is UTF-8.
std::u16string Wide(const std::string& text)
{
    const int size = static_cast<int>(text.size());
    std::u16string wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), u'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Click(Desktop& desktop, host::Form& form, std::istringstream& words)
{
    std::string name;
    words >> name;
    const host::Control* const control = form.Find(Wide(name));
    if (!control || !control->hWnd())
        return "? there is no control " + name + " to click\n";
    RECT area{};
    GetClientRect(control->hWnd(), &area);
    int x = area.right / 2;
    int y = area.bottom / 2;
    words >> x >> y;
    desktop.Click(control->hWnd(), x, y);
    return {};
}

std::string Press(Desktop& desktop, std::string key)
{
    static const std::map<std::string, int> shifts{{"Shift+", platform::kShift}, {"Ctrl+", platform::kControl}, {"Alt+", platform::kAlt}};
    static const std::map<std::string, int> keys{{"Tab", VK_TAB},     {"Enter", VK_RETURN}, {"Esc", VK_ESCAPE},
                                                 {"Space", VK_SPACE}, {"Up", VK_UP},        {"Down", VK_DOWN},
                                                 {"Left", VK_LEFT},   {"Right", VK_RIGHT},  {"F5", VK_F5}};
    int shift = platform::kNoShift;
    for (const auto& [prefix, bit] : shifts)
        if (const auto at = key.find(prefix); at != std::string::npos) {
            shift |= bit;
            key.erase(at, prefix.size());
        }
    const auto found = keys.find(key);
    if (found == keys.end() && key.size() != 1)
        return "? there is no key " + key + "\n";
    desktop.Press(found == keys.end() ? std::toupper(static_cast<unsigned char>(key[0])) : found->second, shift);
    return {};
}

}  // namespace

std::string Perform(platform::SimPc& pc, host::Form& form, const std::string& line)
{
    Desktop& desktop = pc.Get<Desktop>();
    std::istringstream words(line);
    std::string verb;
    words >> verb >> std::ws;
    if (verb == "click")
        return Click(desktop, form, words);
    std::string rest;
    std::getline(words, rest);
    if (verb == "type")
        desktop.Type(Wide(rest));
    else if (verb == "press")
        return Press(desktop, rest);
    else if (verb == "advance")
        pc.Advance(std::strtoull(rest.c_str(), nullptr, 10));
    else if (verb == "close")
        desktop.ClickCloseBox(form.hWnd());
    else if (verb == "snapshot")
        return tests::WritePng(desktop.Snapshot(form.hWnd()), rest) ? "" : "? cannot write " + rest + "\n";
    else if (verb == "show") {
        const std::string text = Describe(pc, rest);
        return text.empty() ? "? nothing to show of " + rest + "\n" : text;
    } else
        return "? there is no verb " + verb + "\n";
    return {};
}

}  // namespace desk
