#include <afx.h>

#include <gtest/gtest.h>

TEST(CTime, TakesAMomentApart)
{
    const CTime time(1995, 3, 14, 12, 41, 29);
    EXPECT_EQ(time.GetYear(), 1995);
    EXPECT_EQ(time.GetMonth(), 3);
    EXPECT_EQ(time.GetDay(), 14);
    EXPECT_EQ(time.GetHour(), 12);
    EXPECT_EQ(time.GetMinute(), 41);
    EXPECT_EQ(time.GetSecond(), 29);
    EXPECT_EQ(time.GetDayOfWeek(), 3) << "a Tuesday";
    SYSTEMTIME system = {};
    ASSERT_TRUE(time.GetAsSystemTime(system));
    EXPECT_EQ(CTime(system), time);
    EXPECT_EQ(CTime(2100, 1, 1, 0, 0, 0).GetYear(), 2100) << "beyond 32 bits";
    EXPECT_EQ(CTime().GetTime(), 0);

    FILETIME file = {};
    SYSTEMTIME utc = {};
    utc.wYear = 1980;
    utc.wMonth = utc.wDay = 1;
    ::SystemTimeToFileTime(&utc, &file);
    EXPECT_EQ(CTime(file).GetTime(), 315'532'800);
}

TEST(CTime, Formats)
{
    const CTime time(1995, 3, 14, 12, 41, 29);
    EXPECT_EQ(time.Format(L"%d/%m/%Y %H:%M:%S"), L"14/03/1995 12:41:29");
    EXPECT_EQ(time.Format(L"%#c"), L"Tuesday, March 14, 1995 12:41:29");
    EXPECT_EQ(time.Format(L"%A %a %B %b %y %j %I %p %%"), L"Tuesday Tue March Mar 95 073 12 PM %");
    EXPECT_EQ(time.Format(L"%#d.%#m"), L"14.3");
    EXPECT_EQ(time.Format(L""), L"");
    EXPECT_EQ(time.Format(L"%"), L"") << "no code";
    EXPECT_EQ(time.Format(L"%Q"), L"") << "an unknown code";
    EXPECT_EQ(time.Format(CString(L'-', 5000)).GetLength(), 5000);
    EXPECT_EQ(CTime(0).FormatGmt(L"%Y-%m-%d %H:%M"), L"1970-01-01 00:00");
}

TEST(CTime, Calculates)
{
    const CTime start(2020, 2, 28, 23, 0, 0);
    const CTime next = start + CTimeSpan(1, 2, 3, 4);
    EXPECT_EQ(next.Format(L"%d.%m. %H:%M:%S"), L"01.03. 01:03:04");
    EXPECT_EQ(next - start, CTimeSpan(93'784));
    EXPECT_TRUE(start < next && next >= start && start != next);
    EXPECT_LE(CTime(2020, 1, 1, 0, 0, 0), CTime::GetCurrentTime());

    const CTimeSpan span(3, 4, 5, 6);
    EXPECT_EQ(span.GetDays(), 3);
    EXPECT_EQ(span.GetHours(), 4);
    EXPECT_EQ(span.GetMinutes(), 5);
    EXPECT_EQ(span.GetSeconds(), 6);
    EXPECT_EQ(span.GetTotalHours(), 76);
    EXPECT_EQ(span.GetTotalMinutes(), 4565);
    EXPECT_EQ(span.GetTotalSeconds(), 273'906);
    EXPECT_EQ(span.Format(L"%D d %H:%M:%S %%"), L"3 d 04:05:06 %");
    EXPECT_EQ(span.Format(L"%x"), L"");
}
