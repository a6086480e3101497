#include "time/CTm80.h"
#include "time/TmSync.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

TEST(CTm80, HoldsSecondsSince1980)
{
    CTm80 time;
    EXPECT_EQ(time, 0.0);
    EXPECT_EQ(time.GetTime().FormatGmt(L"%Y-%m-%d %H:%M:%S"), L"1980-01-01 00:00:00");
    EXPECT_EQ(time.SetTime(2024, 2, 29, 13, 14, 15, 250.5), 1);
    const CTime calendar(2024, 2, 29, 13, 14, 15);
    EXPECT_EQ(time, static_cast<double>(calendar.GetTime() - TmSync::base80) + 0.2505);
    EXPECT_EQ(time.GetTime(), calendar);
    EXPECT_EQ(time.Format(L"%d/%m/%Y %H:%M:%S"), L"29/02/2024 13:14:15");

    CTm80 same;
    same.SetTime(calendar, 1250.5);
    EXPECT_NEAR(same - time, 1.0, 1e-6);
    EXPECT_EQ(time.SetTime(1900, 1, 1, 0, 0, 0), 0);
    EXPECT_EQ(time.GetTime(), calendar) << "unchanged";

    EXPECT_EQ(CTm80(-0.25).GetTime().FormatGmt(L"%Y-%m-%d %H:%M:%S"), L"1979-12-31 23:59:59");
    for (const double none : {std::numeric_limits<double>::quiet_NaN(), 1e300, -1e300})
        EXPECT_EQ(CTm80(none).Format(L"%Y"), L"");
}

TEST(CTm80, CalculatesAndComparesLikeANumber)
{
    CTm80 time = 100.0;
    const CTm80 later = time + 60;
    EXPECT_EQ(later - 10.5, 149.5);
    EXPECT_EQ(later - time, 60.0);
    time += 0.5;
    time -= 1;
    EXPECT_EQ(time, 99.5);
    EXPECT_TRUE(time < 100 && time > 99.0 && time < later && later > time && 99.0 < time);
    EXPECT_FALSE(time > 100.0 || later < time);
    time = 7;
    EXPECT_EQ(static_cast<double>(time), 7.0);
}

TEST(CTm80, GoesThroughAnArchiveAsAValueAndAsAnObject)
{
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store);
        CTm80(1.25e9).Serialize(ar);
        CTm80 object(-2.5);
        ar << &object;
    }
    EXPECT_GT(file.GetLength(), 16U);
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    CTm80 value;
    value.Serialize(ar);
    EXPECT_EQ(value, 1.25e9);
    CTm80* object = nullptr;
    ar >> object;
    const std::unique_ptr<CTm80> owner(object);
    EXPECT_EQ(*owner, -2.5);
}
