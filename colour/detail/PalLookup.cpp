#include "colour/detail/PalLookup.h"

#include <algorithm>
#include <cstring>
#include <emmintrin.h>

namespace vant::detail
{

namespace
{

std::uint32_t ColourOf(double value, const PalRange& range, std::span<const std::uint32_t> table) noexcept
{
    const std::size_t entry = EntryOf(value, range);
    return table[entry == noEntry ? range.size : entry];
}

} // namespace

std::size_t WrappedEntry(double index, std::size_t size) noexcept
{
    const auto period = static_cast<double>(size);
    const double rest = std::fmod(index, period);
    if (rest != rest)
        return noEntry;
    return static_cast<std::size_t>(rest < 0 ? rest + period : rest);
}

void FillColours(std::span<const double> values, const PalRange& range, std::span<const std::uint32_t> table,
                 std::span<std::byte> colours) noexcept
{
    const std::size_t count = std::min(values.size(), colours.size() / sizeof(std::uint32_t));
    const auto put = [out = colours.data()](std::size_t at, std::uint32_t colour) {
        std::memcpy(out + at * sizeof colour, &colour, sizeof colour);
    };
    std::size_t done = 0;
    if (range.start != range.end && range.size != 0 && !range.wrap) {
        // Two values at a time and without a branch; the operations are those of EntryOf().
        const __m128d start = _mm_set1_pd(range.start);
        const __m128d width = _mm_set1_pd(range.end - range.start);
        const __m128d size = _mm_set1_pd(static_cast<double>(range.size));
        const __m128d last = _mm_set1_pd(static_cast<double>(range.size - 1));
        const __m128d half = _mm_set1_pd(0.5);
        for (; done + 2 <= count; done += 2) {
            const __m128d value = _mm_loadu_pd(values.data() + done);
            const __m128d share = _mm_div_pd(_mm_sub_pd(value, start), width);
            const __m128d x = _mm_add_pd(_mm_mul_pd(share, size), half);
            const __m128d within = _mm_min_pd(_mm_max_pd(x, _mm_setzero_pd()), last);
            const __m128d none = _mm_cmpunord_pd(x, x);
            const __m128d index = _mm_or_pd(_mm_and_pd(none, size), _mm_andnot_pd(none, within));
            const auto pair = static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_cvttpd_epi32(index)));
            put(done, table[static_cast<std::uint32_t>(pair)]);
            put(done + 1, table[pair >> 32]);
        }
    }
    for (; done < count; ++done)
        put(done, ColourOf(values[done], range, table));
}

} // namespace vant::detail
