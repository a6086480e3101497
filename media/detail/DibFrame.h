#pragma once

#include "core/VantApi.h"

#include <cstddef>
#include <optional>
#include <vector>
#include <windows.h>

namespace vant::detail
{

/** One frame as a device-independent section has it. The pixels stay the bitmap's. */
struct DibFrame {
    DIBSECTION section;
    bool topDown;                 ///< the top row lies first
    std::vector<RGBQUAD> colours; ///< of 8 bits per pixel and less

    /** Describes a bitmap; GDI has drawn all it was asked to then. Which row lies first is found by comparing
     * a row with what GDI reads of it: the height in a section's description may be positive either way.
     * @return nothing if it is not a device-independent section */
    static std::optional<DibFrame> Of(HBITMAP bitmap);

    LONG Width() const noexcept { return section.dsBm.bmWidth; }
    LONG Height() const noexcept { return section.dsBm.bmHeight; }
    int Bits() const noexcept { return section.dsBmih.biBitCount; }
    std::size_t Bytes() const noexcept;
    /** Whether the pixels are blue, green and red as every reader expects them: 24 or 32 bits. */
    bool HasUsualColours() const noexcept;

    /** Copies the pixels with the lowest row first, as files have them. @param to  Bytes() */
    void CopyBottomUp(void* to) const;
    /** The same in place: the bitmap's own pixels, or where the top row lies first a copy in `turned`, which
     * is best used again for the next frame. */
    void* BottomUp(std::vector<std::byte>& turned) const;
};

/** A section's header as files have it, with the colour masks or colours that belong to it: lowest row first,
 * and without masks where they are the usual ones. */
std::vector<std::byte> FileFormat(const DIBSECTION& section, const std::vector<RGBQUAD>& colours);

} // namespace vant::detail
