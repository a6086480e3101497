#include "demo/FontSet.h"

#include "platform/Vant.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <iterator>

namespace demo
{
namespace
{

constexpr double leastTextScale = 0.92; // small text stops shrinking before the rest

void MakeFont(CFont& font, double pixels, LONG weight)
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

void FontSet::Make(double scale)
{
    if (scale == m_scale)
        return;
    m_scale = scale;
    MakeFont(Vant::largeF, 92.0 * scale, FW_NORMAL);
    MakeFont(dial, 50.0 * scale, FW_NORMAL);
    MakeFont(big, 36.0 * scale, FW_NORMAL);
    MakeFont(value, 21.0 * scale, FW_NORMAL);
    const double readable = std::max(scale, leastTextScale);
    MakeFont(label, 14.0 * readable, FW_NORMAL);
    MakeFont(small, 12.0 * readable, FW_NORMAL);
}

} // namespace demo
