#include <limits>

#include <gtest/gtest.h>

#include "support/GermanLocale.h"
#include "values/Bound.h"
#include "values/EUnits.h"

namespace
{

constexpr double missing = -32768.0;

template <class T>
CString TextOf(T variable)
{
    return Bound(variable).GetText(0);
}

template <class T>
T AfterSetText(LPCWSTR text)
{
    T variable{};
    Bound(variable).SetText(text);
    return variable;
}

/** The message of a rejected text, or "valid". */
CString Verdict(const CEVal& value, LPCWSTR text)
{
    CString message = L"untouched";
    if (value.IsValidText(text, message)) {
        EXPECT_EQ(message, L"untouched");
        return L"valid";
    }
    return message;
}

template <class T>
CString Verdict(LPCWSTR text)
{
    T variable{};
    return Verdict(Bound(variable), text);
}

/** Sets the unit system for one test. */
class CEValUnits : public testing::Test
{
protected:
    ~CEValUnits() override { EUnits::system = 0; }
};

} // namespace

TEST(CEValText, EveryType)
{
    void* pointer = reinterpret_cast<void*>(0x1F00BEEFULL);
    CEVal value;
    value.Init(&pointer);
    EXPECT_EQ(value.GetText(0), L"0x1f00beef");
    pointer = nullptr;
    EXPECT_EQ(value.GetText(0), L"0x0");

    EXPECT_EQ(TextOf(CString(L"a text")), L"a text");
    EXPECT_EQ(TextOf(char{-5}), L"-5");
    EXPECT_EQ(TextOf(short{-32768}), L"-32768"); // missing data exists in doubles only
    EXPECT_EQ(TextOf(std::numeric_limits<int>::min()), L"-2147483648");
    EXPECT_EQ(TextOf(static_cast<unsigned char>(200)), L"200");
    EXPECT_EQ(TextOf(static_cast<unsigned short>(60000)), L"60000");
    EXPECT_EQ(TextOf(4294967295u), L"4294967295");
    EXPECT_EQ(TextOf(4294967295ul), L"4294967295");
    EXPECT_EQ(TextOf(2.5f), L"2.5");
    EXPECT_EQ(TextOf(0.1f), L"0.1");
    EXPECT_EQ(TextOf(1.0 / 3.0), L"0.333333");
    EXPECT_EQ(TextOf(1e6), L"1e+06");
    EXPECT_EQ(TextOf(static_cast<__int64>(5)), L"Unknown data type");

    int whole = 5;
    value.Init(whole);
    value.type = 12;
    EXPECT_EQ(value.GetText(0), L"Unknown data type");
}

TEST(CEValText, PointerTextShowsTheLow32Bits)
{
    void* pointer = reinterpret_cast<void*>(0x123456789AULL);
    CEVal value;
    value.Init(&pointer);
    EXPECT_EQ(value.GetText(0), L"0x3456789a");
}

TEST(CEValText, DecimalsApplyToFloatingTypesOnly)
{
    float single = 2.345f;
    double real = -0.004;
    int whole = 3;
    for (CEVal value : {Bound(single), Bound(real), Bound(whole)}) {
        value.decimals = 2;
        EXPECT_EQ(value.GetText(1), value.type == 8 ? L"2.35" : value.type == 9 ? L"-0.00" : L"3");
    }
    CEVal value = Bound(real);
    value.decimals = 0;
    EXPECT_EQ(value.GetText(0), L"-0");
    value.decimals = -2;
    EXPECT_EQ(value.GetText(0), L"-0.004");
    value.decimals = 100000;
    EXPECT_EQ(value.GetText(0).Left(12), L"-0.004000000");
}

TEST(CEValText, BothSpellingsOfNoData)
{
    double real = missing;
    float single = -32768.0f;
    CEVal value = Bound(real);
    EXPECT_EQ(value.GetText(1), L"No Data");
    value.decimals = 2;
    EXPECT_EQ(value.GetText(1), L"No Data");
    value.scale = 2.0;
    EXPECT_EQ(value.GetText(1), L"No data");
    value.scale = 1.0;
    value.units = 7;
    EXPECT_EQ(value.GetText(0), L"No data");

    value = Bound(single);
    EXPECT_EQ(value.GetText(0), L"-32768");
    value.units = 0;
    EXPECT_EQ(value.GetText(0), L"No data"); // there the type no longer counts
}

TEST(CEValText, ScaleMultipliesEveryType)
{
    int whole = 3;
    CEVal value = Bound(whole);
    value.scale = 0.5;
    EXPECT_EQ(value.GetText(0), L"1.5");
    value.decimals = 2;
    EXPECT_EQ(value.GetText(0), L"1.50");
    value.SetText(L"8"); // yet integers are stored unscaled
    EXPECT_EQ(whole, 8);

    double real = 3.0;
    value = Bound(real);
    value.scale = 100.0;
    EXPECT_EQ(value.GetText(0), L"300");
    value.SetText(L"50");
    EXPECT_EQ(real, 0.5);

    CString string = L"text";
    value = Bound(string);
    value.scale = 2.0;
    EXPECT_EQ(value.GetText(0), L"0"); // as a number a text is 0
}

TEST(CEValText, TextsHavePointsInEveryLocale)
{
    const vant::test::GermanLocale locale;
    if (!locale.IsActive())
        GTEST_SKIP() << "this system has no German locale";
    double real = 1.5;
    CEVal value = Bound(real);
    EXPECT_EQ(value.GetText(0), L"1.5");
    value.decimals = 3;
    EXPECT_EQ(value.GetText(0), L"1.500");
    EXPECT_EQ(EUnits::Get(0, 2.5, L"%lg", 1), L"2.5m");
    value.SetText(L"2.25");
    EXPECT_EQ(real, 2.25);
    EXPECT_EQ(Verdict(value, L"2,25"), L"Not Valid Floating Point Number");
}

TEST_F(CEValUnits, LabelsAndConversion)
{
    double real = 1.0;
    CEVal value = Bound(real);
    value.units = 0;
    EXPECT_EQ(value.GetText(1), L"1m");
    EXPECT_EQ(value.GetText(0), L"1");
    EUnits::system = 1;
    EXPECT_EQ(value.GetText(1), L"3ft 3in");
    EXPECT_EQ(value.GetText(0), L"3.28083");
    value.decimals = 2;
    value.scale = 2.0;
    value.units = 2;
    EXPECT_EQ(value.GetText(1), L"6.56ft/s");
    value.units = 8;
    EXPECT_EQ(value.GetText(1), L"2.00");
}

TEST_F(CEValUnits, TextsAreThoseOfTheUnitsClass)
{
    double real = 0;
    CEVal value = Bound(real);
    for (const int system : {0, 1, 2}) {
        EUnits::system = system;
        for (value.units = -2; value.units <= 8; ++value.units) {
            for (const double v : {0.0, -0.001, 1.0, -12.25, 30.479, 1234567.0, 1e300}) {
                real = v;
                value.scale = 1.5;
                value.decimals = -1;
                EXPECT_EQ(value.GetText(1), EUnits::Get(value.units, 1.5 * v, L"%lg", 1));
                value.decimals = 2;
                EXPECT_EQ(value.GetText(1), EUnits::Get(value.units, 1.5 * v, L"%0.2lf", 1));
                EXPECT_EQ(value.GetText(0), EUnits::Get(value.units, 1.5 * v, L"%0.2lf", 0));
            }
        }
    }
}

TEST_F(CEValUnits, TypedTextIsStoredInNativeUnits)
{
    EUnits::system = 1;
    double real = 0;
    CEVal value = Bound(real);
    value.units = 1;
    value.scale = 2.0;
    value.SetText(L"212");
    EXPECT_EQ(real, 50.0); // 100 degrees, halved by the scale

    int whole = 0;
    value = Bound(whole);
    value.units = 0;
    value.SetText(L"10");
    EXPECT_EQ(whole, 3);

    unsigned int natural = 0;
    value = Bound(natural);
    value.units = 0;
    value.SetText(L"4294967295");
    EXPECT_EQ(natural, 1309109980u);
}

TEST_F(CEValUnits, ValidationLooksAtNativeUnits)
{
    EUnits::system = 1;
    char small = 0;
    CEVal value = Bound(small);
    value.units = 0;
    EXPECT_EQ(Verdict(value, L"420"), L"valid"); // 128.02 m
    EXPECT_EQ(Verdict(value, L"424"), L"Not in numerical range 0 to -1067450368");
    double real = 0;
    value = Bound(real);
    value.units = 1;
    value.SetRange(0.0, 100.0);
    EXPECT_EQ(Verdict(value, L"212"), L"valid");
    EXPECT_EQ(Verdict(value, L"31"), L"Not in user specified range 0 to 100");
}

TEST(CEValSetText, StoresByType)
{
    EXPECT_EQ(AfterSetText<CString>(L" as it is "), L" as it is ");
    EXPECT_EQ(AfterSetText<char>(L"128"), -128);
    EXPECT_EQ(AfterSetText<short>(L"-40000"), 25536);
    EXPECT_EQ(AfterSetText<int>(L"12.7"), 12);
    EXPECT_EQ(AfterSetText<int>(L"2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(AfterSetText<unsigned char>(L"256"), 0);
    EXPECT_EQ(AfterSetText<unsigned short>(L"65535"), 65535);
    EXPECT_EQ(AfterSetText<unsigned int>(L"-1"), 4294967295u);
    EXPECT_EQ(AfterSetText<unsigned long>(L"4294967295"), 4294967295ul);
    EXPECT_EQ(AfterSetText<float>(L"0.1 m"), 0.1f);
    EXPECT_EQ(AfterSetText<double>(L" 1e3ft"), 1000.0);
    EXPECT_EQ(AfterSetText<__int64>(L"5"), 0);

    void* pointer = nullptr;
    CEVal value;
    value.Init(&pointer);
    value.SetText(L"5");
    EXPECT_EQ(pointer, nullptr);
}

TEST(CEValSetText, TextThatDoesNotParseStoresZero)
{
    int whole = 7;
    Bound(whole).SetText(L"seven");
    EXPECT_EQ(whole, 0);
    unsigned short natural = 7;
    Bound(natural).SetText(L"");
    EXPECT_EQ(natural, 0);
    double real = 7.0;
    Bound(real).SetText(L"No Data");
    EXPECT_EQ(real, 0.0);
}

TEST(CEValSetText, UnboundTextAndScaleZero)
{
    CEVal value;
    value.scale = 0.0;
    value.SetText(L"fixed");
    EXPECT_EQ(value.text, L"fixed");
    EXPECT_EQ(value.GetText(1), L"fixed");
    EXPECT_EQ(value.scale, 0.0);

    double real = 0;
    value.Init(real);
    EXPECT_EQ(value.GetText(0), L"0");
    value.SetText(L"4");
    EXPECT_EQ(real, 4.0);
    EXPECT_EQ(value.scale, 1.0);
    EXPECT_EQ(value.GetText(0), L"4");
}

TEST(CEValSetText, LeavesTheNeighboursAlone)
{
    char bytes[3] = {1, 2, 3};
    Bound(bytes[1]).SetText(L"-1");
    EXPECT_EQ(bytes[0], 1);
    EXPECT_EQ(bytes[1], -1);
    EXPECT_EQ(bytes[2], 3);
}

TEST(CEValValidation, SignedIntegersUpToOneBeyondTheirBound)
{
    EXPECT_EQ(Verdict<char>(L"128"), L"valid");
    EXPECT_EQ(Verdict<char>(L"-128"), L"valid");
    EXPECT_EQ(Verdict<char>(L"129"), L"Not in numerical range 0 to -1067450368");
    EXPECT_EQ(Verdict<char>(L"-129"), L"Not in numerical range 0 to -1067450368");
    EXPECT_EQ(Verdict<short>(L"32768"), L"valid");
    EXPECT_EQ(Verdict<short>(L"32769"), L"Not in numerical range 0 to -1059061760");
    EXPECT_EQ(Verdict<int>(L"2147483648"), L"valid");
    EXPECT_EQ(Verdict<int>(L"2147483649"), L"Not in numerical range 0 to -1042284544");
    EXPECT_EQ(Verdict<int>(L"-2147483648"), L"valid");
    EXPECT_EQ(Verdict<int>(L"12.7"), L"valid");
    EXPECT_EQ(Verdict<char>(L"128.9"), L"valid"); // cut before it is compared
    EXPECT_EQ(Verdict<char>(L"-128.9"), L"valid");
}

TEST(CEValValidation, UnsignedIntegersUpToOneBeyondTheirBound)
{
    EXPECT_EQ(Verdict<unsigned char>(L"256"), L"valid");
    EXPECT_EQ(Verdict<unsigned char>(L"257"), L"Not in numerical range 0 to 0");
    EXPECT_EQ(Verdict<unsigned char>(L"-1"), L"Not in numerical range 0 to 0");
    EXPECT_EQ(Verdict<unsigned char>(L"-0.9"), L"valid");
    EXPECT_EQ(Verdict<unsigned short>(L"65536"), L"valid");
    EXPECT_EQ(Verdict<unsigned short>(L"65537"), L"Not in numerical range 0 to 0");
    EXPECT_EQ(Verdict<unsigned int>(L"4294967296"), L"valid");
    EXPECT_EQ(Verdict<unsigned int>(L"4294967297"), L"Not in numerical range 0 to 0");
    EXPECT_EQ(Verdict<unsigned long>(L"4294967296"), L"valid");
    EXPECT_EQ(Verdict<unsigned long>(L"-1"), L"Not in numerical range 0 to 0");
}

TEST(CEValValidation, WhatNo64BitIntegerHoldsIsOutOfRange)
{
    EXPECT_EQ(Verdict<int>(L"1e300"), L"Not in numerical range 0 to -1042284544");
    EXPECT_EQ(Verdict<int>(L"-1e999"), L"Not in numerical range 0 to -1042284544");
    EXPECT_EQ(Verdict<unsigned int>(L"1e999"), L"Not in numerical range 0 to 0");
}

TEST(CEValValidation, NumbersWithAnythingBehindThem)
{
    for (const LPCWSTR text : {L"12 ", L"", L" ", L"12a", L"1e", L"abc", L"0x10", L"nan", L"inf"}) {
        EXPECT_EQ(Verdict<int>(text), L"Not Valid Integer") << text;
        EXPECT_EQ(Verdict<unsigned short>(text), L"Not Valid Unsigned Integer") << text;
        EXPECT_EQ(Verdict<double>(text), L"Not Valid Floating Point Number") << text;
        EXPECT_EQ(Verdict<float>(text), L"Not Valid Floating Point Number") << text;
        EXPECT_EQ(Verdict<CString>(text), L"valid");
    }
    EXPECT_EQ(Verdict<int>(L"  12"), L"valid"); // blanks in front are skipped
    EXPECT_EQ(Verdict<float>(L"1e300"), L"valid");
}

TEST(CEValValidation, TypesThatAcceptNoTextLeaveTheMessage)
{
    EXPECT_EQ(Verdict<__int64>(L"5"), L"untouched");
    EXPECT_EQ(Verdict(CEVal(), L"5"), L"untouched");
}

TEST(CEValValidation, UserRangeIncludesItsBounds)
{
    double real = 0;
    CEVal value = Bound(real);
    value.SetRange(0.0, 10.0);
    EXPECT_EQ(Verdict(value, L"10"), L"valid");
    EXPECT_EQ(Verdict(value, L"0"), L"valid");
    EXPECT_EQ(Verdict(value, L"10.0001"), L"Not in user specified range 0 to 10");
    EXPECT_EQ(Verdict(value, L"-1e-9"), L"Not in user specified range 0 to 10");
    value.SetRange(-0.5, 1234567.0);
    EXPECT_EQ(Verdict(value, L"2e6"), L"Not in user specified range -0.5 to 1.23457e+06");

    int whole = 0;
    value = Bound(whole);
    value.SetRange(0.0, 10.0);
    EXPECT_EQ(Verdict(value, L"10.9"), L"valid"); // 10 is what is tested
    EXPECT_EQ(Verdict(value, L"-0.9"), L"valid");
    EXPECT_EQ(Verdict(value, L"11"), L"Not in user specified range 0 to 10");
    value.SetRange(5.0, 1.0);
    EXPECT_EQ(Verdict(value, L"3"), L"Not in user specified range 5 to 1");

    CString string;
    value = Bound(string);
    value.SetRange(0.0, 1.0);
    EXPECT_EQ(Verdict(value, L"5"), L"valid");
}
