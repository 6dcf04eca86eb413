// PictureFile: headers are copied out of the bytes, where they lie at any address, and believed only as far as the bytes reach.
#include "host/PictureFile.h"

#include "host/DibInfo.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace host {

namespace {

using Bytes = std::vector<std::uint8_t>;

#pragma pack(push, 2)
struct IconFileHeader {
    WORD reserved;
    WORD type;  // 1
    WORD count;
};
struct IconFileEntry {
    BYTE width, height;  // 0 stands for 256
    BYTE colors, reserved;
    WORD planes, bitCount;
    DWORD size, offset;
};
#pragma pack(pop)

constexpr LONG greatestSide = 0x4000;
constexpr WORD bitmapMark = 0x4D42;  // "BM"

template <class Record>
std::optional<Record> At(const Bytes& bytes, std::size_t offset)
{
    Record record;
    if (offset > bytes.size() || bytes.size() - offset < sizeof record)
        return std::nullopt;
    std::memcpy(&record, bytes.data() + offset, sizeof record);
    return record;
}

template <class Record>
void Append(Bytes& bytes, const Record& record)
{
    const auto* const first = reinterpret_cast<const std::uint8_t*>(&record);
    bytes.insert(bytes.end(), first, first + sizeof record);
}

/// Rows begin at multiples of four bytes.
std::size_t RowBytes(LONG width, int bitCount)
{
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitCount) + 31) / 32 * 4;
}

bool IsKnown(const BITMAPINFOHEADER& header)
{
    const WORD bits = header.biBitCount;
    const bool hasKnownBits = bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32;
    return header.biSize >= sizeof header && header.biPlanes == 1 && header.biCompression == BI_RGB && hasKnownBits && header.biWidth > 0 &&
           header.biWidth <= greatestSide && header.biHeight != 0 && header.biHeight >= -greatestSide && header.biHeight <= greatestSide;
}

/// A header with room for all colours that a pixel can name: a file may hold fewer.
struct InfoWithColors {
    BITMAPINFOHEADER header;
    RGBQUAD colors[256];
};

std::optional<InfoWithColors> InfoOf(const Bytes& bytes)
{
    const auto header = At<BITMAPINFOHEADER>(bytes, sizeof(BITMAPFILEHEADER));
    if (!header || !IsKnown(*header))
        return std::nullopt;
    InfoWithColors info{*header, {}};
    if (header->biBitCount <= 8) {
        const std::size_t most = std::size_t{1} << header->biBitCount;
        const std::size_t count = header->biClrUsed == 0 ? most : std::min<std::size_t>(header->biClrUsed, most);
        const std::size_t start = sizeof(BITMAPFILEHEADER) + header->biSize;
        if (start > bytes.size() || (bytes.size() - start) / sizeof(RGBQUAD) < count)
            return std::nullopt;
        std::memcpy(info.colors, bytes.data() + start, count * sizeof(RGBQUAD));
    }
    info.header.biSize = sizeof info.header;
    info.header.biClrUsed = 0;
    return info;
}

/// Selects the bitmap, calls `draw` with the device context, and takes the bitmap out again.
template <class Draw>
bool DrawOn(HBITMAP bitmap, Draw draw)
{
    const base::MemoryDc dc(CreateCompatibleDC(nullptr));
    const HGDIOBJ former = dc ? SelectObject(dc.Get(), bitmap) : nullptr;
    if (!former)
        return false;
    const bool drawn = draw(dc.Get());
    SelectObject(dc.Get(), former);
    return drawn;
}

/// The lowest row first; empty without memory.
Bytes PixelsOf(HBITMAP bitmap, LONG width, LONG height)
{
    const base::MemoryDc dc(CreateCompatibleDC(nullptr));
    BITMAPINFO info = DibInfo(width, height);
    Bytes pixels(info.bmiHeader.biSizeImage);
    if (!dc || !GetDIBits(dc.Get(), bitmap, 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS))
        return {};
    return pixels;
}

}  // namespace

base::BitmapHandle BitmapFromFile(const Bytes& bytes)
{
    const auto file = At<BITMAPFILEHEADER>(bytes, 0);
    const auto info = InfoOf(bytes);
    if (!file || file->bfType != bitmapMark || !info)
        return {};
    const LONG width = info->header.biWidth, height = std::abs(info->header.biHeight);
    const std::size_t size = RowBytes(width, info->header.biBitCount) * static_cast<std::size_t>(height);
    if (file->bfOffBits > bytes.size() || bytes.size() - file->bfOffBits < size)
        return {};

    const BITMAPINFO own = DibInfo(width, height);
    void* bits = nullptr;
    base::BitmapHandle bitmap(CreateDIBSection(nullptr, &own, DIB_RGB_COLORS, &bits, nullptr, 0));
    const bool drawn = bitmap && DrawOn(bitmap.Get(), [&](HDC dc) {
                           return StretchDIBits(dc, 0, 0, width, height, 0, 0, width, height, bytes.data() + file->bfOffBits,
                                                reinterpret_cast<const BITMAPINFO*>(&*info), DIB_RGB_COLORS, SRCCOPY) != 0;
                       });
    return drawn ? std::move(bitmap) : base::BitmapHandle();
}

IconHandle IconFromFile(const Bytes& bytes)
{
    const auto header = At<IconFileHeader>(bytes, 0);
    if (!header || header->reserved != 0 || header->type != 1)
        return {};
    const int wanted = GetSystemMetrics(SM_CXICON);
    const auto distance = [&](const IconFileEntry& entry) { return std::abs((entry.width ? entry.width : 256) - wanted); };
    std::optional<IconFileEntry> best;
    for (std::size_t index = 0; index < header->count; ++index) {
        const auto entry = At<IconFileEntry>(bytes, sizeof(IconFileHeader) + index * sizeof(IconFileEntry));
        if (entry && (!best || distance(*entry) < distance(*best)))
            best = entry;
    }
    if (!best || best->offset > bytes.size() || bytes.size() - best->offset < best->size)
        return {};
    Bytes picture(bytes.begin() + best->offset, bytes.begin() + best->offset + best->size);
    return IconHandle(CreateIconFromResourceEx(picture.data(), best->size, TRUE, 0x00030000, 0, 0, LR_DEFAULTCOLOR));
}

Bytes FileOfBitmap(HBITMAP bitmap, SIZE size)
{
    const Bytes pixels = PixelsOf(bitmap, size.cx, size.cy);
    if (pixels.empty())
        return {};
    constexpr DWORD start = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    Bytes bytes;
    Append(bytes, BITMAPFILEHEADER{bitmapMark, start + static_cast<DWORD>(pixels.size()), 0, 0, start});
    Append(bytes, DibInfo(size.cx, size.cy).bmiHeader);
    bytes.insert(bytes.end(), pixels.begin(), pixels.end());
    return bytes;
}

Bytes FileOfIcon(HICON icon, SIZE size)
{
    ICONINFO parts{};
    if (!GetIconInfo(icon, &parts))
        return {};
    const base::BitmapHandle mask(parts.hbmMask), color(parts.hbmColor);
    // The mask of a black-and-white icon is twice as high and has its picture in the lower half, which comes first.
    Bytes colors = color ? PixelsOf(color.Get(), size.cx, size.cy) : Bytes();
    Bytes open = PixelsOf(mask.Get(), size.cx, color ? size.cy : 2 * size.cy);
    if (open.empty() || (color && colors.empty()))
        return {};
    if (!color) {
        const auto middle = open.begin() + static_cast<std::ptrdiff_t>(open.size() / 2);
        colors.assign(open.begin(), middle);
        open.erase(open.begin(), middle);
    }
    Bytes bits(RowBytes(size.cx, 1) * static_cast<std::size_t>(size.cy));
    for (LONG y = 0; y < size.cy; ++y) {
        for (LONG x = 0; x < size.cx; ++x) {
            if (open[static_cast<std::size_t>(y * size.cx + x) * 4] != 0)
                bits[RowBytes(size.cx, 1) * static_cast<std::size_t>(y) + static_cast<std::size_t>(x / 8)] |=
                    static_cast<std::uint8_t>(0x80 >> x % 8);
        }
    }
    const auto side = [](LONG pixels) { return static_cast<BYTE>(pixels < 256 ? pixels : 0); };
    const auto pictureSize = static_cast<DWORD>(sizeof(BITMAPINFOHEADER) + colors.size() + bits.size());
    Bytes bytes;
    Append(bytes, IconFileHeader{0, 1, 1});
    Append(bytes, IconFileEntry{side(size.cx), side(size.cy), 0, 0, 1, 32, pictureSize, sizeof(IconFileHeader) + sizeof(IconFileEntry)});
    // The height counts colours and mask.
    BITMAPINFOHEADER header = DibInfo(size.cx, 2 * size.cy).bmiHeader;
    header.biSizeImage = 0;
    Append(bytes, header);
    bytes.insert(bytes.end(), colors.begin(), colors.end());
    bytes.insert(bytes.end(), bits.begin(), bits.end());
    return bytes;
}

}  // namespace host
