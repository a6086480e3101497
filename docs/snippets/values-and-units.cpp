// What the page on values and units says, tried out: a line for everything that is not so, and exit code 1.
#include <VantCore.h>

#include <cmath>
#include <cstdio>

namespace
{

int failures = 0;

void Expect(const CString& text, const wchar_t* expected)
{
    if (text == expected)
        return;
    std::printf("\"%ls\" instead of \"%ls\"\n", static_cast<LPCWSTR>(text), expected);
    ++failures;
}

void Expect(double value, double expected)
{
    if (value == expected)
        return;
    std::printf("%g instead of %g\n", value, expected);
    ++failures;
}

void Bind()
{
    // [bind]
    double depth = 12.5; // metres
    CEVal value;
    value.Init(depth);  // bound: reads and writes depth itself
    value.units = 0;    // a length
    value.decimals = 1; // places of the text
    Expect(value.GetText(1), L"12.5m");
    Expect(value.GetText(0), L"12.5"); // without its unit, as in a field
    value.SetText(L"14");
    Expect(depth, 14);
    // [bind]
}

void Systems()
{
    // [systems]
    double depth = 12.5; // metres, and it stays metres
    CEVal value;
    value.Init(depth);
    value.units = 0;
    value.decimals = 1;
    value.SetRange(0, 100); // metres, too

    EUnits::system = 1;
    Expect(value.GetText(0), L"41.0"); // feet
    Expect(value.GetText(1), L"41ft"); // a text of lengths has feet and inches, whatever decimals says
    value.SetText(L"60");              // feet, as the user sees them
    Expect(depth, 60 * 0.30480091927957254);

    CString reason;
    Expect(value.IsValidText(L"300", reason), 1); // 300 ft are 91.4 m
    Expect(value.IsValidText(L"330", reason), 0); // 100.6 m
    Expect(reason, L"Not in user specified range 0 to 100");
    EUnits::system = 0;
    // [systems]
}

void Validation()
{
    // [validation]
    int pings = 20;
    CEVal value;
    value.Init(pings);
    value.SetRange(1, 50);
    CString reason;
    Expect(value.IsValidText(L"12x", reason), 0);
    Expect(reason, L"Not Valid Integer");
    Expect(value.IsValidText(L"99", reason), 0);
    Expect(reason, L"Not in user specified range 1 to 50");
    value.SetText(L"99"); // does not look: whoever has a text from outside asks first
    Expect(pings, 99);
    // [validation]
}

void Rounding()
{
    // [rounding]
    int line = 0;
    CEVal value;
    value.Init(line);
    value.SetVal(2.5);
    Expect(line, 3); // halves go up,
    value.SetVal(-2.5);
    Expect(line, -2); // below zero as well
    value.SetText(L"12.7");
    Expect(line, 12); // a typed text is read up to the point
    // [rounding]
    Expect(value.AdjustVal(0.4), 0);
    Expect(line, 12);
}

void Formats()
{
    // [formats]
    double speed = 2.0 / 3;
    CEVal value;
    value.Init(speed);
    Expect(value.GetText(1), L"0.666667"); // decimals -1: six significant digits
    value.decimals = 2;
    Expect(value.GetText(1), L"0.67");
    value.units = 2; // a speed
    Expect(value.GetText(1), L"0.67m/s");
    speed = -32768.0; // nothing was measured
    Expect(value.GetText(1), L"No data");
    value.units = -1;
    Expect(value.GetText(1), L"No Data");
    // [formats]
}

void Scale()
{
    // [scale]
    double heading = ML::pi / 2; // radians, as all angles
    CEVal value;
    value.Init(heading);
    value.scale = ML::r2d; // shown in degrees
    value.units = 6;       // an angle: "°"
    value.decimals = 1;
    Expect(value.GetText(1), L"90.0\u00b0");
    value.SetText(L"180");
    Expect(heading, 180 / ML::r2d);

    CString reason;
    value.SetRange(0, 360); // of a field with a scale: in the numbers that are typed
    Expect(value.IsValidText(L"359", reason), 1);
    // [scale]
    Expect(value.IsValidText(L"361", reason), 0);
    int share = 2;
    value.Init(share);
    value.SetText(L"90");
    Expect(share, 90); // integers deliberately are not divided
}

// [knots]
// Knots, which the unit table lacks: a scale. The variable stays in m/s.
void ShowKnots(CEVal& speed)
{
    constexpr double knotsPerMetrePerSecond = 3600.0 / 1852.0;
    speed.units = -1; // no unit of the table, so that no unit system changes the number
    speed.scale = knotsPerMetrePerSecond;
    speed.decimals = 1;
}
// [knots]

void Knots()
{
    double speed = 2.5; // m/s
    CEVal value;
    value.Init(speed);
    ShowKnots(value);
    for (EUnits::system = 0; EUnits::system < 2; ++EUnits::system)
        Expect(value.GetText(1), L"4.9");
    EUnits::system = 0;
    value.SetText(L"3600");
    Expect(speed, 1852);
}

// [position]
// A latitude, radians to the north, in degrees and decimal minutes: "54°32.2037'N".
CString LatitudeText(double rad)
{
    constexpr int perDegree = 600000; // ten-thousandths of a minute: round once, then cut into parts
    const int all = static_cast<int>(ML::Rnd(std::fabs(rad) * ML::r2d * perDegree));
    CString text;
    const wchar_t side = rad < 0 ? L'S' : L'N';
    text.Format(L"%02d\u00b0%07.4f'%c", all / perDegree, all % perDegree / 10000.0, side);
    return text;
}
// [position]

void Positions()
{
    Expect(LatitudeText((54 + 32.20365 / 60) * ML::d2r), L"54\u00b032.2037'N");
    Expect(LatitudeText(-(9 + 59.99999 / 60) * ML::d2r), L"10\u00b000.0000'S");
}

void Times()
{
    // [time]
    CTm80 start; // seconds since 1 January 1980, UTC; parts and texts are local time
    start.SetTime(2026, 8, 1, 10, 45, 12, 250.0);
    Expect(start.Format(L"%d.%m.%Y %H:%M:%S"), L"01.08.2026 10:45:12");
    Expect((start + 90).Format(L"%H:%M:%S"), L"10:46:42");
    Expect(CTm80(start + 90) - start, 90); // the difference of two moments is a number of seconds
    // [time]
}

// What a walk through a field in feet does to a value in metres.
void ThroughText()
{
    double limit = 12;
    CEVal value;
    value.Init(limit);
    value.units = 0;
    value.decimals = 1;
    EUnits::system = 1;
    Expect(value.GetText(0), L"39.4");
    value.SetText(value.GetText(0));
    EUnits::system = 0;
    Expect(std::round(limit * 10000) / 10000, 12.0092);
}

struct Row {
    int kind;
    const wchar_t* labels[2];
    double native; ///< shown as
    double shown;  ///< in the US system
};

// The table of the page.
void Table()
{
    const Row rows[] = {
        {0, {L"m", L"ft"}, 1, 3.28083},
        {1, {L"\u00b0C", L"\u00b0F"}, 100, 100 * 1.8 + 32},
        {2, {L"m/s", L"ft/s"}, 1, 3.28084},
        {3, {L"sq m", L"sq ft"}, 1, 10.76391},
        {4, {L"cu m", L"cu ft"}, 1, 35.31467},
        {5, {L"MPa", L"psi"}, 1, 145.0377},
        {6, {L"\u00b0", L"\u00b0"}, 1, 1},
        {7, {L"%", L"%"}, 1, 1},
        {8, {L"", L""}, 1, 1},
        {-1, {L"", L""}, 1, 1},
    };
    for (const Row& row : rows) {
        for (EUnits::system = 0; EUnits::system < 2; ++EUnits::system) {
            Expect(EUnits::Get(row.kind), row.labels[EUnits::system]);
            double value = row.native;
            EUnits::N2D(row.kind, value);
            Expect(value, EUnits::system == 0 ? row.native : row.shown);
        }
    }
    EUnits::system = 0;
}

} // namespace

int main()
{
    Bind();
    Systems();
    Validation();
    Rounding();
    Formats();
    Scale();
    Knots();
    Positions();
    Times();
    ThroughText();
    Table();
    return failures == 0 ? 0 : 1;
}
