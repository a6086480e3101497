#include "media/detail/DibFrame.h"

#include <cstdlib>
#include <cstring>

namespace vant::detail
{

namespace
{

/** A device context in memory. */
class MemoryDc
{
public:
    MemoryDc() = default;
    ~MemoryDc() { ::DeleteDC(m_dc); }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    operator HDC() const noexcept { return m_dc; }

private:
    const HDC m_dc = ::CreateCompatibleDC(nullptr);
};

std::vector<RGBQUAD> ColourTable(HBITMAP bitmap, int bits)
{
    std::vector<RGBQUAD> colours(std::size_t{1} << bits);
    const MemoryDc dc;
    const HGDIOBJ before = ::SelectObject(dc, bitmap);
    colours.resize(::GetDIBColorTable(dc, 0, static_cast<UINT>(colours.size()), colours.data()));
    ::SelectObject(dc, before);
    return colours;
}

/** Whether two rows have the same pixels; the fourth byte of 32 bits is none. */
bool SameRow(const std::byte* a, const std::byte* b, const DIBSECTION& section)
{
    constexpr int bitsWithSpare = 32;
    const auto bits = static_cast<std::size_t>(section.dsBm.bmWidth) * section.dsBmih.biBitCount;
    if (section.dsBmih.biBitCount != bitsWithSpare)
        return std::memcmp(a, b, bits / 8) == 0; // pixels in a last half byte do not tell
    for (std::size_t i = 0; i < bits / 8; i += 4) {
        if (std::memcmp(a + i, b + i, 3) != 0)
            return false;
    }
    return true;
}

/** The first pair of rows, at the same distance from both ends, tells that differs. Where none does, it makes
 * no difference which row lies first. */
bool IsTopDown(HBITMAP bitmap, const DibFrame& frame)
{
    const DIBSECTION& section = frame.section;
    if (section.dsBmih.biHeight < 0)
        return true;
    const auto stride = static_cast<std::size_t>(section.dsBm.bmWidthBytes);
    const auto* first = static_cast<const std::byte*>(section.dsBm.bmBits);
    const auto* last = first + frame.Bytes() - stride;
    for (LONG y = 0; first < last; ++y, first += stride, last -= stride) {
        if (SameRow(first, last, section))
            continue;
        std::vector<std::byte> format = FileFormat(section, frame.colours);
        std::vector<std::byte> row(stride);
        const MemoryDc dc;
        return ::GetDIBits(dc, bitmap, static_cast<UINT>(y), 1, row.data(),
                           reinterpret_cast<BITMAPINFO*>(format.data()), DIB_RGB_COLORS) == 1 &&
               !SameRow(row.data(), first, section);
    }
    return false;
}

/** Masks that are the same as none. */
bool HasUsualMasks(const DIBSECTION& section)
{
    constexpr DWORD of16[] = {0x7C00, 0x3E0, 0x1F};
    constexpr DWORD of32[] = {0xFF0000, 0xFF00, 0xFF};
    const DWORD(&usual)[3] = section.dsBmih.biBitCount == 16 ? of16 : of32;
    return std::memcmp(section.dsBitfields, usual, sizeof usual) == 0;
}

} // namespace

std::optional<DibFrame> DibFrame::Of(HBITMAP bitmap)
{
    DibFrame frame{};
    if (::GetObjectW(bitmap, sizeof frame.section, &frame.section) != sizeof frame.section ||
        !frame.section.dsBm.bmBits || frame.Width() <= 0 || frame.Height() <= 0)
        return std::nullopt;
    constexpr int mostColourBits = 8;
    if (frame.Bits() <= mostColourBits)
        frame.colours = ColourTable(bitmap, frame.Bits());
    ::GdiFlush();
    frame.topDown = IsTopDown(bitmap, frame);
    return frame;
}

std::size_t DibFrame::Bytes() const noexcept
{
    return static_cast<std::size_t>(section.dsBm.bmWidthBytes) * static_cast<std::size_t>(Height());
}

bool DibFrame::HasUsualColours() const noexcept
{
    return Bits() == 24 ||
           (Bits() == 32 && (section.dsBmih.biCompression == BI_RGB || HasUsualMasks(section)));
}

void DibFrame::CopyBottomUp(void* to) const
{
    const auto row = static_cast<std::size_t>(section.dsBm.bmWidthBytes);
    const auto* from = static_cast<const std::byte*>(section.dsBm.bmBits);
    if (!topDown) {
        std::memcpy(to, from, Bytes());
        return;
    }
    std::byte* end = static_cast<std::byte*>(to) + Bytes();
    for (LONG y = 0; y < Height(); ++y, from += row)
        std::memcpy(end -= row, from, row);
}

void* DibFrame::BottomUp(std::vector<std::byte>& turned) const
{
    if (!topDown)
        return section.dsBm.bmBits;
    turned.resize(Bytes());
    CopyBottomUp(turned.data());
    return turned.data();
}

std::vector<std::byte> FileFormat(const DIBSECTION& section, const std::vector<RGBQUAD>& colours)
{
    BITMAPINFOHEADER header = section.dsBmih;
    header.biSize = sizeof header;
    header.biHeight = std::abs(header.biHeight);
    header.biSizeImage = static_cast<DWORD>(section.dsBm.bmWidthBytes * section.dsBm.bmHeight);
    header.biClrUsed = static_cast<DWORD>(colours.size());
    header.biClrImportant = 0;
    if (HasUsualMasks(section))
        header.biCompression = BI_RGB;
    const std::size_t masks = header.biCompression == BI_BITFIELDS ? sizeof section.dsBitfields : 0;
    const std::size_t table = colours.size() * sizeof(RGBQUAD);
    std::vector<std::byte> format(sizeof header + masks + table);
    std::memcpy(format.data(), &header, sizeof header);
    std::memcpy(format.data() + sizeof header, section.dsBitfields, masks);
    if (table)
        std::memcpy(format.data() + sizeof header + masks, colours.data(), table);
    return format;
}

} // namespace vant::detail
