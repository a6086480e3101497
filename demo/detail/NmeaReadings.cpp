#include "demo/detail/NmeaReadings.h"

#include <charconv>
#include <cmath>

namespace demo
{
namespace
{

struct Range {
    double low;
    double high;
};

constexpr Range anyAngle{-360.0, 360.0};
constexpr Range anySpeed{0.0, 500.0};        // in the sentence's unit
constexpr Range anyDepth{0.0, 12000.0};      // metres; the deepest trench is 11 km
constexpr Range anyOffset{-100.0, 100.0};    // metres
constexpr Range anyWater{-5.0, 60.0};        // degrees Celsius
constexpr Range anyTurn{-100000.0, 1.0e5};   // degrees a minute
constexpr Range anyCount{0.0, 200.0};        // satellites, quality, dilution
constexpr Range anyCoordinate{0.0, 18000.0}; // degrees times 100 plus minutes

/** A decimal number that fills its field; exponents, blanks and signs other than '-' make it malformed. */
double Number(std::string_view field, Range range) noexcept
{
    double value = 0.0;
    const char* const end = field.data() + field.size();
    const auto [stop, error] = std::from_chars(field.data(), end, value, std::chars_format::fixed);
    if (error != std::errc() || stop != end)
        return missing;
    return value >= range.low && value <= range.high ? value : missing;
}

double Scaled(double value, double factor) noexcept
{
    return IsMissing(value) ? missing : value * factor;
}

/** Brings an angle in degrees into [0, 2 pi). */
double Bearing(std::string_view field) noexcept
{
    const double degrees = Number(field, anyAngle);
    if (IsMissing(degrees))
        return missing;
    const double turn = std::fmod(degrees, 360.0);
    return (turn < 0.0 ? turn + 360.0 : turn) * degree;
}

/** "5428.2721","N": degrees and minutes, the hemisphere beside them. */
double Coordinate(std::string_view field, std::string_view side, char positive, char negative,
                  double limit) noexcept
{
    const double packed = Number(field, anyCoordinate);
    if (IsMissing(packed) || side.size() != 1 || (side[0] != positive && side[0] != negative))
        return missing;
    const double degrees = std::floor(packed / 100.0);
    const double minutes = packed - degrees * 100.0;
    const double value = degrees + minutes / 60.0;
    if (minutes >= 60.0 || value > limit)
        return missing;
    return (side[0] == positive ? value : -value) * degree;
}

int TwoDigits(std::string_view text, std::size_t at) noexcept
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (at + 2 > text.size() || !isDigit(text[at]) || !isDigit(text[at + 1]))
        return -1;
    return (text[at] - '0') * 10 + (text[at + 1] - '0');
}

/** "094120.00": seconds of the day. */
double TimeOfDay(std::string_view field) noexcept
{
    const int hours = TwoDigits(field, 0);
    const int minutes = TwoDigits(field, 2);
    if (hours < 0 || hours > 23 || minutes < 0 || minutes > 59 || TwoDigits(field, 4) < 0)
        return missing;
    const double seconds = Number(field.substr(4), {0.0, 60.999});
    return IsMissing(seconds) ? missing : hours * 3600.0 + minutes * 60.0 + seconds;
}

void AddPosition(NmeaReadings& out, const NmeaSentence& s, std::size_t first, bool valid) noexcept
{
    const double lat = valid ? Coordinate(s.Field(first), s.Field(first + 1), 'N', 'S', 90.0) : missing;
    const double lon = valid ? Coordinate(s.Field(first + 2), s.Field(first + 3), 'E', 'W', 180.0) : missing;
    const bool whole = !IsMissing(lat) && !IsMissing(lon);
    out.Add(Quantity::Latitude, whole ? lat : missing);
    out.Add(Quantity::Longitude, whole ? lon : missing);
}

void ReadGga(NmeaReadings& out, const NmeaSentence& s) noexcept
{
    const double quality = Number(s.Field(5), anyCount);
    out.Add(Quantity::UtcTime, TimeOfDay(s.Field(0)));
    AddPosition(out, s, 1, quality > 0.0);
    out.Add(Quantity::FixQuality, quality);
    out.Add(Quantity::Satellites, Number(s.Field(6), anyCount));
    out.Add(Quantity::Hdop, Number(s.Field(7), anyCount));
}

void ReadRmc(NmeaReadings& out, const NmeaSentence& s) noexcept
{
    const bool valid = s.Field(1) == "A";
    out.Add(Quantity::UtcTime, TimeOfDay(s.Field(0)));
    AddPosition(out, s, 2, valid);
    out.Add(Quantity::SpeedOverGround, valid ? Scaled(Number(s.Field(6), anySpeed), knot) : missing);
    out.Add(Quantity::CourseOverGround, valid ? Bearing(s.Field(7)) : missing);
}

void ReadHdt(NmeaReadings& out, const NmeaSentence& s) noexcept
{
    out.Add(Quantity::Heading, s.Field(1) == "T" ? Bearing(s.Field(0)) : missing);
}

void ReadRot(NmeaReadings& out, const NmeaSentence& s) noexcept
{
    const bool valid = s.Field(1) == "A";
    out.Add(Quantity::TurnRate, valid ? Scaled(Number(s.Field(0), anyTurn), degree / 60.0) : missing);
}

void ReadDbt(NmeaReadings& out, const NmeaSentence& s) noexcept
{
    out.Add(Quantity::DepthBelowTransducer, s.Field(3) == "M" ? Number(s.Field(2), anyDepth) : missing);
}

/** The offset is positive from the transducer up to the water line and negative down to the keel. */
void ReadDpt(NmeaReadings& out, const NmeaSentence& s) noexcept
{
    const double depth = Number(s.Field(0), anyDepth);
    const double offset = Number(s.Field(1), anyOffset);
    out.Add(Quantity::DepthBelowTransducer, depth);
    const bool toSurface = !IsMissing(depth) && !IsMissing(offset) && offset >= 0.0;
    out.Add(Quantity::DepthBelowSurface, toSurface ? depth + offset : missing);
}

void ReadMwv(NmeaReadings& out, const NmeaSentence& s) noexcept
{
    const bool valid = s.Field(4) == "A";
    const std::string_view unit = s.Field(3);
    const double factor = unit == "N" ? knot : unit == "K" ? 1.0 / 3.6 : unit == "M" ? 1.0 : 0.0;
    const double angle = valid ? Bearing(s.Field(0)) : missing;
    const double speed = valid && factor > 0.0 ? Scaled(Number(s.Field(2), anySpeed), factor) : missing;
    const bool apparent = s.Field(1) == "R";
    if (!apparent && s.Field(1) != "T")
        return;
    out.Add(apparent ? Quantity::ApparentWindAngle : Quantity::TrueWindAngle, angle);
    out.Add(apparent ? Quantity::ApparentWindSpeed : Quantity::TrueWindSpeed, speed);
}

void ReadMtw(NmeaReadings& out, const NmeaSentence& s) noexcept
{
    out.Add(Quantity::WaterTemperature, s.Field(1) == "C" ? Number(s.Field(0), anyWater) : missing);
}

void ReadVhw(NmeaReadings& out, const NmeaSentence& s) noexcept
{
    out.Add(Quantity::SpeedThroughWater,
            s.Field(5) == "N" ? Scaled(Number(s.Field(4), anySpeed), knot) : missing);
}

struct Reader {
    std::string_view type;
    std::size_t minFields; // fewer, and the sentence was cut before its checksum was made
    void (*read)(NmeaReadings&, const NmeaSentence&) noexcept;
};

constexpr Reader readers[] = {
    {"GGA", 8, ReadGga}, {"RMC", 9, ReadRmc}, {"HDT", 2, ReadHdt}, {"ROT", 2, ReadRot}, {"DBT", 6, ReadDbt},
    {"DPT", 2, ReadDpt}, {"MWV", 5, ReadMwv}, {"MTW", 2, ReadMtw}, {"VHW", 8, ReadVhw},
};

} // namespace

Verdict NmeaReadings::Read(std::string_view line) noexcept
{
    m_count = 0;
    NmeaSentence sentence;
    if (!sentence.Split(line))
        return Verdict::Rejected;
    for (const Reader& reader : readers) {
        if (sentence.type != reader.type || sentence.talker.empty())
            continue;
        if (sentence.fieldCount < reader.minFields)
            return Verdict::Rejected;
        reader.read(*this, sentence);
        return m_count > 0 ? Verdict::Accepted : Verdict::Rejected;
    }
    return Verdict::Ignored;
}

double NmeaReadings::Value(Quantity quantity) const noexcept
{
    for (const Reading& reading : Items())
        if (reading.quantity == quantity)
            return reading.value;
    return missing;
}

void NmeaReadings::Add(Quantity quantity, double value) noexcept
{
    if (m_count < m_items.size())
        m_items[m_count++] = {quantity, value};
}

} // namespace demo
