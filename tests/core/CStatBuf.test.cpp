#include "core/CStatBuf.h"

#include "support/FatalMemory.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <afx.h>

namespace
{

using vant::test::LeaveNoRoomBeyond;
using vant::test::PrintFatalErrors;

CStatBuf Filled(unsigned size, std::initializer_list<double> samples)
{
    CStatBuf buffer;
    buffer.SetSize(size);
    for (const double v : samples) {
        buffer.SetValue(v);
    }
    return buffer;
}

/** The same ring, with everything worked out anew whenever it is asked for. */
class NaiveRing
{
public:
    void SetSize(unsigned n)
    {
        if (n != slots.size()) {
            slots.assign(n, 0.0);
            next = 0;
            stored = 0;
            latest = 0.0;
        }
    }

    void SetValue(double v)
    {
        latest = v;
        if (!slots.empty()) {
            slots[next] = v;
            next = (next + 1) % slots.size();
            ++stored;
        }
    }

    std::vector<double> Valid() const
    {
        return {slots.begin(), slots.begin() + static_cast<std::ptrdiff_t>(std::min(stored, slots.size()))};
    }

    double Avg() const
    {
        const auto valid = Valid();
        if (valid.empty()) {
            return latest;
        }
        double sum = 0;
        for (const double v : valid) {
            sum += v;
        }
        return sum / static_cast<double>(valid.size());
    }

    double AvgD() const
    {
        const auto count = Valid().size();
        return count < 2 ? 0.0 : (latest - slots[next]) / static_cast<double>(count);
    }

    std::vector<double> slots;
    std::size_t next = 0;
    std::size_t stored = 0;
    double latest = 0.0;
};

struct Line {
    double m;
    double c;
};

Line Fit(const CStatBuf& buffer)
{
    Line line{-1, -1};
    buffer.GetMC(line.m, line.c);
    return line;
}

} // namespace

TEST(CStatBuf, RingOfThreeFedFour)
{
    CStatBuf buffer = Filled(3, {1, 2, 3, 4});
    EXPECT_EQ(buffer.GetAvg(), 3.0);
    EXPECT_DOUBLE_EQ(buffer.GetAvgD(), (4.0 - 2.0) / 3.0);
    // Slots hold 4, 2, 3.
    const Line line = Fit(buffer);
    EXPECT_DOUBLE_EQ(line.m, -0.5);
    EXPECT_DOUBLE_EQ(line.c, 3.5);
    double min = 0, max = 0, sd = 0;
    EXPECT_EQ(buffer.GetStats(min, max, sd), 1);
    EXPECT_EQ(min, 2.0);
    EXPECT_EQ(max, 4.0);
    EXPECT_EQ(sd, 1.0);
}

TEST(CStatBuf, SizeZeroHoldsTheLatestValue)
{
    CStatBuf buffer;
    EXPECT_EQ(buffer.GetAvg(), 0.0);
    buffer.SetValue(5.0);
    buffer.SetValue(7.0);
    EXPECT_EQ(buffer.GetAvg(), 7.0);
    EXPECT_EQ(buffer.GetAvgD(), 0.0);
}

TEST(CStatBuf, FewerThanTwoSamples)
{
    CStatBuf buffer = Filled(4, {5});
    double min = 1, max = 2, sd = 3;
    EXPECT_EQ(buffer.GetStats(min, max, sd), 0);
    EXPECT_EQ(min, 1.0);
    EXPECT_EQ(max, 2.0);
    EXPECT_EQ(sd, 3.0);
    EXPECT_EQ(Fit(buffer).m, 0.0);
    EXPECT_EQ(Fit(buffer).c, 0.0);
    EXPECT_EQ(buffer.GetAvgD(), 0.0);
}

TEST(CStatBuf, UnusedSlotCountsInTheAverageChange)
{
    EXPECT_EQ(Filled(4, {5, 6}).GetAvgD(), 3.0); // (6 - 0) / 2
}

TEST(CStatBuf, SamplesBeyondABillionDoNotShowInMinAndMax)
{
    CStatBuf buffer = Filled(2, {2e9, 3e9});
    double min = 0, max = 0, sd = 0;
    EXPECT_EQ(buffer.GetStats(min, max, sd), 1);
    EXPECT_EQ(min, 1e9);
    EXPECT_EQ(max, 3e9);
    CStatBuf below = Filled(2, {-2e9, -3e9});
    EXPECT_EQ(below.GetStats(min, max, sd), 1);
    EXPECT_EQ(min, -3e9);
    EXPECT_EQ(max, -1e9);
}

TEST(CStatBuf, SameSizeKeepsAndAnyOtherDropsTheSamples)
{
    CStatBuf buffer = Filled(3, {1, 2, 3});
    buffer.SetSize(3);
    EXPECT_EQ(buffer.GetAvg(), 2.0);
    buffer.SetSize(5);
    EXPECT_EQ(buffer.GetAvg(), 0.0);
    buffer.SetValue(4.0);
    buffer.SetValue(4.0);
    EXPECT_EQ(buffer.GetAvgD(), 2.0); // the new slots are 0.0
    buffer.SetSize(0);
    buffer.SetValue(9.0);
    EXPECT_EQ(buffer.GetAvg(), 9.0);
}

TEST(CStatBuf, CopiesAreIndependent)
{
    CStatBuf buffer = Filled(3, {1, 2, 3});
    CStatBuf copy(buffer);
    CStatBuf assigned = Filled(7, {100});
    assigned = buffer;
    assigned = *&assigned;
    buffer.SetValue(10.0);
    EXPECT_EQ(buffer.GetAvg(), 5.0);
    EXPECT_EQ(copy.GetAvg(), 2.0);
    copy.SetValue(7.0); // over the oldest one, which is 1
    EXPECT_EQ(copy.GetAvg(), 4.0);
    EXPECT_EQ(assigned.GetAvg(), 2.0);
    assigned = CStatBuf();
    EXPECT_EQ(assigned.GetAvg(), 0.0);
}

TEST(CStatBuf, AgreesWithANaiveRingOverManyOperations)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> sample(-100.0, 100.0);
    CStatBuf buffer;
    NaiveRing naive;
    for (int i = 0; i < 10000; ++i) {
        if (random() % 40 == 0) {
            const unsigned size = random() % 12;
            buffer.SetSize(size);
            naive.SetSize(size);
        } else {
            const double v = sample(random);
            buffer.SetValue(v);
            naive.SetValue(v);
        }
        ASSERT_NEAR(buffer.GetAvg(), naive.Avg(), 1e-9);
        ASSERT_NEAR(buffer.GetAvgD(), naive.AvgD(), 1e-9);

        const auto valid = naive.Valid();
        double min = 0, max = 0, sd = 0;
        ASSERT_EQ(buffer.GetStats(min, max, sd), valid.size() < 2 ? 0 : 1);
        if (valid.size() < 2) {
            continue;
        }
        double squares = 0;
        for (const double v : valid) {
            squares += (v - naive.Avg()) * (v - naive.Avg());
        }
        ASSERT_EQ(min, *std::min_element(valid.begin(), valid.end()));
        ASSERT_EQ(max, *std::max_element(valid.begin(), valid.end()));
        ASSERT_NEAR(sd, std::sqrt(squares / static_cast<double>(valid.size() - 1)), 1e-9);
    }
}

TEST(CStatBuf, LeastSquaresAgreesWithTheClosedForm)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> value(-50.0, 50.0);
    for (int round = 0; round < 500; ++round) {
        const unsigned count = 2 + random() % 60;
        CStatBuf buffer;
        buffer.SetSize(count + random() % 3);
        double sx = 0, sy = 0, sxx = 0, sxy = 0;
        for (unsigned i = 0; i < count; ++i) {
            const double y = value(random);
            buffer.SetValue(y);
            sx += i;
            sy += y;
            sxx += static_cast<double>(i) * i;
            sxy += i * y;
        }
        const double m = (count * sxy - sx * sy) / (count * sxx - sx * sx);
        const Line line = Fit(buffer);
        ASSERT_NEAR(line.m, m, 1e-9);
        ASSERT_NEAR(line.c, (sy - m * sx) / count, 1e-9);
    }
}

TEST(CStatBuf, LeastSquaresFindsAnExactLine)
{
    CStatBuf buffer;
    buffer.SetSize(1000);
    for (int i = 0; i < 1000; ++i) {
        buffer.SetValue(0.25 * i - 1e6);
    }
    EXPECT_NEAR(Fit(buffer).m, 0.25, 1e-12);
    EXPECT_NEAR(Fit(buffer).c, -1e6, 1e-8);
}

namespace
{

void Store(CMemFile& file, CStatBuf& buffer)
{
    CArchive ar(&file, CArchive::store);
    buffer.Serialize(ar);
    ar.Close();
    file.SeekToBegin();
}

/** Loads; the cause of the archive's exception, or 0. */
int Load(CMemFile& file, CStatBuf& buffer)
{
    CArchive ar(&file, CArchive::load);
    try {
        buffer.Serialize(ar);
        return 0;
    } catch (CArchiveException* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
}

} // namespace

TEST(CStatBufArchive, ComesBackWithItsRing)
{
    for (const unsigned size : {0u, 3u, 8u}) {
        CStatBuf buffer = Filled(size, {1, 2, 3, 4});
        CMemFile file;
        Store(file, buffer);
        CStatBuf loaded = Filled(2, {50, 60});
        EXPECT_EQ(Load(file, loaded), 0);
        for (CStatBuf* ring : {&buffer, &loaded}) {
            ring->SetValue(10.0);
        }
        EXPECT_EQ(loaded.GetAvg(), buffer.GetAvg());
        EXPECT_EQ(loaded.GetAvgD(), buffer.GetAvgD());
        EXPECT_EQ(Fit(loaded).m, Fit(buffer).m);
    }
}

TEST(CStatBufArchive, DamageThrowsAndLeavesTheBuffer)
{
    struct Damage {
        const char* what;
        unsigned size, next, count;
        int cause;
    };
    const Damage damages[] = {
        {"more samples than slots", 2, 0, 3, CArchiveException::badIndex},
        {"next slot outside", 2, 2, 1, CArchiveException::badIndex},
        {"next slot of an empty ring", 0, 1, 0, CArchiveException::badIndex},
        {"fewer values than slots", 3, 0, 3, CArchiveException::endOfFile},
        {"a size beyond all memory", 0xFFFFFFFFu, 0, 3, CArchiveException::endOfFile},
    };
    for (const Damage& damage : damages) {
        CMemFile file;
        {
            CArchive ar(&file, CArchive::store);
            ar << damage.size << damage.next << damage.count << 6.0 << 0.0 << 1.0 << 2.0;
            ar.Close();
        }
        file.SeekToBegin();
        CStatBuf buffer = Filled(2, {50, 60});
        EXPECT_EQ(Load(file, buffer), damage.cause) << damage.what;
        EXPECT_EQ(buffer.GetAvg(), 55.0) << damage.what;
    }
}

TEST(CStatBufDeathTest, ARingWithoutMemoryEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            LeaveNoRoomBeyond(0);
            CStatBuf().SetSize(100);
        },
        testing::ExitedWithCode(1), "Cause: Realloc cannot allocate 800 bytes");
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            const CStatBuf buffer = Filled(100, {1, 2});
            LeaveNoRoomBeyond(0);
            const CStatBuf copy(buffer);
        },
        testing::ExitedWithCode(1), "Cause: Malloc cannot allocate 800 bytes");
}
