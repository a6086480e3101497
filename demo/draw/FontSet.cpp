#include "demo/draw/FontSet.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <iterator>

namespace demo
{
namespace
{

constexpr double leastTextScale = 0.92; // small text stops shrinking before the rest, at so many pixels,
constexpr double leastOnMonitor = 0.70; // and on a fine monitor at so much of its own size

void MakeFont(CFont& font, double pixels, LONG weight = FW_NORMAL)
{
    LOGFONTW record{};
    record.lfHeight = -std::lround(pixels); // negative: of the characters, not of their cells
    record.lfWeight = weight;
    record.lfQuality = CLEARTYPE_QUALITY;
    std::wcsncpy(record.lfFaceName, L"Arial", std::size(record.lfFaceName) - 1);
    font.DeleteObject();
    font.CreateFontIndirect(&record);
}

} // namespace

void FontSet::Make(double scale, CDpi dpi)
{
    if (scale == m_scale && dpi == m_dpi)
        return;
    m_scale = scale;
    m_dpi = dpi;
    const double monitor = static_cast<double>(dpi.Dpi()) / CDpi::base;
    const double pixels = scale * monitor;
    MakeFont(huge, 92.0 * pixels);
    MakeFont(dial, 50.0 * pixels);
    MakeFont(big, 36.0 * pixels);
    MakeFont(value, 21.0 * pixels);
    const double readable = std::max({pixels, leastTextScale, leastOnMonitor * monitor});
    MakeFont(label, 14.0 * readable);
    MakeFont(small, 12.0 * readable);

    MakeFont(title, 21.0 * monitor);
    MakeFont(clock, 36.0 * monitor);
    MakeFont(caption, 12.0 * monitor, FW_BOLD);
    MakeFont(line, 14.0 * monitor);
    MakeFont(note, 12.0 * monitor);
}

} // namespace demo
