#include "host/OleDragFormats.h"

#include "base/Handles.h"

#include <shlobj.h>
#include <windows.h>

#include <algorithm>
#include <cstring>

namespace host {

using base::String;
using base::StringView;

namespace {

struct LockTraits {
    using Type = HGLOBAL;
    static Type None() noexcept { return nullptr; }
    static void Close(Type memory) noexcept { GlobalUnlock(memory); }
};
using GlobalLocked = base::Handle<LockTraits>;

String Widen(const char* text, std::size_t size)
{
    String wide(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(size), nullptr, 0)), TEXT('\0'));
    MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(size), wide.data(), static_cast<int>(wide.size()));
    return wide;
}

/// UTF-16 from bytes that may stand at an odd address.
String Units(const std::uint8_t* start, std::size_t size)
{
    String units(size / sizeof(WCHAR), TEXT('\0'));
    if (!units.empty())
        std::memcpy(units.data(), start, units.size() * sizeof(WCHAR));
    return units;
}

}  // namespace

Bytes EncodeText(StringView text)
{
    Bytes bytes((text.size() + 1) * sizeof(WCHAR));
    if (!text.empty())
        std::memcpy(bytes.data(), text.data(), text.size() * sizeof(WCHAR));
    return bytes;
}

String DecodeText(const Bytes& bytes)
{
    String text = Units(bytes.data(), bytes.size());
    text.resize(std::min(text.find(TEXT('\0')), text.size()));
    return text;
}

Bytes EncodeNarrowText(StringView text)
{
    const int units = static_cast<int>(text.size());
    const int size = units == 0 ? 0 : WideCharToMultiByte(CP_ACP, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
    Bytes bytes(static_cast<std::size_t>(size) + 1);
    if (size != 0)
        WideCharToMultiByte(CP_ACP, 0, text.data(), units, reinterpret_cast<char*>(bytes.data()), size, nullptr, nullptr);
    return bytes;
}

String DecodeNarrowText(const Bytes& bytes)
{
    const auto end = std::find(bytes.begin(), bytes.end(), 0);
    return end == bytes.begin() ? String()
                                : Widen(reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(end - bytes.begin()));
}

Bytes EncodeFiles(const std::vector<String>& paths)
{
    DROPFILES head{};
    head.pFiles = sizeof head;
    head.fWide = TRUE;
    Bytes bytes(sizeof head);
    std::memcpy(bytes.data(), &head, sizeof head);
    for (const String& path : paths) {
        const Bytes encoded = EncodeText(path);
        bytes.insert(bytes.end(), encoded.begin(), encoded.end());
    }
    bytes.resize(bytes.size() + sizeof(WCHAR));
    return bytes;
}

std::vector<String> DecodeFiles(const Bytes& bytes)
{
    DROPFILES head{};
    if (bytes.size() < sizeof head)
        return {};
    std::memcpy(&head, bytes.data(), sizeof head);
    if (head.pFiles < sizeof head || head.pFiles >= bytes.size())
        return {};
    const std::uint8_t* const list = bytes.data() + head.pFiles;
    const std::size_t size = bytes.size() - head.pFiles;
    const String names = head.fWide != FALSE ? Units(list, size) : Widen(reinterpret_cast<const char*>(list), size);
    std::vector<String> paths;
    for (std::size_t place = 0; place < names.size() && names[place] != 0;) {
        const std::size_t end = std::min(names.find(TEXT('\0'), place), names.size());
        paths.push_back(names.substr(place, end - place));
        place = end + 1;
    }
    return paths;
}

FORMATETC InMemory(CLIPFORMAT format)
{
    return {format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

HGLOBAL CopyToGlobal(const Bytes& bytes)
{
    base::GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, std::max<std::size_t>(bytes.size(), 1)));
    void* const start = memory ? GlobalLock(memory.Get()) : nullptr;
    if (!start)
        return nullptr;
    if (!bytes.empty())
        std::memcpy(start, bytes.data(), bytes.size());
    GlobalUnlock(memory.Get());
    return memory.Release();
}

Bytes CopyFromGlobal(HGLOBAL memory)
{
    const auto* const start = static_cast<const std::uint8_t*>(GlobalLock(memory));
    if (!start)
        return {};
    const GlobalLocked locked(memory);
    return {start, start + GlobalSize(memory)};
}

}  // namespace host
