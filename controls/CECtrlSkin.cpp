#include "controls/CECtrl.h"

#include "controls/detail/GreyPixels.h"
#include "platform/EUtil.h"
#include "platform/detail/Skins.h"
#include "platform/detail/SystemCalls.h"
#include "resources/Skins.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>

CDC& CECtrl::s_glow = vant::detail::GlowSkin();

namespace
{

struct Free {
    void operator()(void* block) const noexcept { std::free(block); }
};

/** A bitmap of the library, or of the program where the library has none of that number. Empty if neither
 * has. */
void LoadResource(CBitmap& bitmap, int resourceId)
{
    HBITMAP handle = vant::detail::Calls().loadBitmap(resourceId);
    if (!handle)
        handle = static_cast<HBITMAP>(::LoadImageW(AfxGetResourceHandle(), MAKEINTRESOURCEW(resourceId),
                                                   IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    bitmap.Attach(handle);
}

void Grey(CBitmap& bitmap, const BITMAP& info)
{
    const auto size = static_cast<unsigned>(info.bmWidthBytes) * static_cast<unsigned>(info.bmHeight);
    const std::unique_ptr<std::uint8_t, Free> pixels(static_cast<std::uint8_t*>(EUtil::Malloc(size)));
    const DWORD read = bitmap.GetBitmapBits(size, pixels.get());
    vant::detail::GreyPixels({pixels.get(), read});
    bitmap.SetBitmapBits(read, pixels.get());
}

} // namespace

void CECtrl::ReleaseSkin()
{
    if (ownDC) {
        // The contexts first: a bitmap that one of them holds cannot be deleted.
        dcNorm.DeleteDC();
        dcGrey.DeleteDC();
    } else {
        dcNorm.Detach();
        dcGrey.Detach();
    }
    m_bmNorm.DeleteObject();
    m_bmGrey.DeleteObject();
    ownDC = 0;
}

void CECtrl::LoadBitmapW(int resourceId)
{
    CBitmap norm;
    CBitmap grey;
    LoadResource(norm, resourceId);
    LoadResource(grey, resourceId);
    BITMAP info{};
    if (!norm.GetBitmap(&info) || !grey.m_hObject)
        return;
    constexpr int greyedDepth = 32;
    if (info.bmBitsPixel == greyedDepth)
        Grey(grey, info);

    ReleaseSkin();
    m_bmNorm.Attach(norm.Detach());
    m_bmGrey.Attach(grey.Detach());
    dcNorm.CreateCompatibleDC(nullptr);
    dcGrey.CreateCompatibleDC(nullptr);
    ::SelectObject(dcNorm.m_hDC, m_bmNorm);
    ::SelectObject(dcGrey.m_hDC, m_bmGrey);
    ownDC = 1;
    bmW = info.bmWidth;
    bmH = info.bmHeight;
    rc.bottom = rc.top + bmH;
}

void CECtrl::Glow(CDC* dc, CRect& r, int alpha)
{
    if (!s_glow.m_hDC)
        return;
    constexpr vant::skins::Region image = vant::skins::glow::all;
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, static_cast<BYTE>(alpha), AC_SRC_ALPHA};
    dc->AlphaBlend(r.left, r.top, r.Width(), r.Height(), &s_glow, image.x, image.y, image.w, image.h, blend);
}

namespace
{

/** A piece of a length, and the length that the whole image has for that piece of it. */
struct GlowSpan {
    int from, to;
    int imageFrom, imageTo;
};

/** The two ends, which are not stretched, and the middle, which has the middle half of the image. */
std::array<GlowSpan, 3> GlowSpans(int from, int to, int end)
{
    const int reach = (to - from - 2 * end) / 2 + 1; // of the image, beyond the middle
    return {{{from, from + end, from, from + 2 * end},
             {from + end, to - end, from + end - reach, to - end + reach},
             {to - end, to, to - 2 * end, to}}};
}

} // namespace

void CECtrl::DrawGlow(CDC& dc, const CRect& r)
{
    constexpr int size = vant::skins::glow::all.w;
    const int end = std::min({r.Width(), r.Height(), size}) / 2;
    for (const GlowSpan& across : GlowSpans(r.left, r.right, end)) {
        for (const GlowSpan& down : GlowSpans(r.top, r.bottom, end)) {
            if (across.from >= across.to || down.from >= down.to)
                continue;
            const int saved = dc.SaveDC();
            dc.IntersectClipRect(across.from, down.from, across.to, down.to);
            CRect image(across.imageFrom, down.imageFrom, across.imageTo, down.imageTo);
            Glow(&dc, image, glow);
            dc.RestoreDC(saved);
        }
    }
}
