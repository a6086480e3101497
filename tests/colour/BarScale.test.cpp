#include "colour/detail/BarScale.h"

#include "platform/detail/Markers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

using namespace vant::detail;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

double Round(double wanted)
{
    static constexpr std::array table = {0.1, 0.15, 0.2, 0.25, 0.5, 0.75};
    const double decade = std::pow(10.0, std::floor(std::log10(wanted)));
    return NearestMarker(table, wanted / decade) * decade;
}

/** Seven for each character. */
int Size(std::wstring_view text)
{
    return static_cast<int>(text.size()) * 7;
}

std::vector<std::wstring> Texts(double start, double end, int length)
{
    std::vector<std::wstring> texts;
    for (const BarLabel& label : BarLabels({start, end, length, 8}, Round, Size))
        texts.push_back(label.text);
    return texts;
}

TEST(BarScaleTest, RoundValuesAreWrittenAsManyAsFit)
{
    EXPECT_THAT(Texts(0, 255, 300), ElementsAre(L"0", L"50", L"100", L"150", L"200", L"250"));
    EXPECT_THAT(Texts(0, 255, 100), ElementsAre(L"0", L"75", L"150", L"225"));
    EXPECT_THAT(Texts(255, 0, 100), ElementsAre(L"225", L"150", L"75", L"0"));
    EXPECT_THAT(Texts(-1, 1, 200), ElementsAre(L"-1", L"-0.5", L"0", L"0.5", L"1"));
    EXPECT_THAT(Texts(1e-6, 5e-6, 150), ElementsAre(L"1.5e-06", L"3e-06", L"4.5e-06"));
    EXPECT_THAT(Texts(0, 3e200, 200), ElementsAre(L"0", L"1.5e+200", L"3e+200"));
}

TEST(BarScaleTest, TextsNeverOverlapOrRepeatAndStayInside)
{
    for (const double start : {-1e6, -180.0, -0.001, 0.0, 0.3, 1000.0, 123456.0, 99'999'990.0}) {
        for (const double range : {1e-9, 0.013, 0.75, 1.0, 9.99, 360.0, 1e5, 1e12}) {
            for (const int length : {1, 20, 57, 130, 316, 1000, 4000}) {
                const auto labels = BarLabels({start, start + range, length, 8}, Round, Size);
                SCOPED_TRACE(testing::Message() << start << " + " << range << " in " << length);
                EXPECT_LE(labels.size(), 1u + static_cast<unsigned>(length) / 15);
                for (std::size_t i = 0; i < labels.size(); ++i) {
                    EXPECT_GE(labels[i].first, 0);
                    EXPECT_TRUE(labels[i].at >= 0 && labels[i].at <= length);
                    if (labels[i].size <= length) {
                        EXPECT_LE(labels[i].first + labels[i].size, length);
                    }
                    if (i == 0)
                        continue;
                    EXPECT_LE(labels[i - 1].first + labels[i - 1].size + 8, labels[i].first);
                    EXPECT_NE(labels[i - 1].text, labels[i].text);
                    EXPECT_LT(labels[i - 1].at, labels[i].at);
                }
            }
        }
    }
}

TEST(BarScaleTest, WithoutARangeNothingIsWritten)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THAT(Texts(5, 5, 300), IsEmpty());
    EXPECT_THAT(Texts(nan, 5, 300), IsEmpty());
    EXPECT_THAT(Texts(-1e308, 1e308, 300), IsEmpty());
    EXPECT_THAT(Texts(1e15, 1e15 + 2, 300), IsEmpty()); // would be 1e+15 everywhere
    EXPECT_THAT(Texts(0, 255, 0), IsEmpty());
    EXPECT_THAT(BarLabels(
                    {0, 255, 300, 8}, [](double) { return nan; }, Size),
                IsEmpty());
}

} // namespace
