#include "Compare.h"

#include "core/CStatBuf.h"
#include "values/CEVal.h"

#include <catch2/catch.hpp>

#define FMT_HEADER_ONLY
#include <fmt/format.h>
#include <fmt/xchar.h>

#include <charconv>
#include <deque>
#include <random>
#include <string>
#include <vector>

namespace
{

constexpr std::size_t numbers = 10'000;

/** Readings as displays show them. */
std::vector<double> Readings()
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> reading(-1000.0, 1000.0);
    std::vector<double> readings(numbers);
    for (double& value : readings) {
        value = reading(random);
    }
    return readings;
}

/** A round that writes every reading as text. */
template <class Write>
Round Writing(Write write)
{
    return [write, readings = Readings()](Stopwatch& watch) mutable {
        watch.Measure([&] {
            for (const double value : readings) {
                const auto text = write(value);
                Keep(text);
            }
        });
    };
}

/** A round that reads every text; Text is made from the narrow text of each reading. */
template <class Text, class Read>
Round Reading(Read read)
{
    std::vector<Text> texts;
    for (const double value : Readings()) {
        texts.emplace_back(fmt::format("{:.6g}", value).c_str());
    }
    return [read, texts](Stopwatch& watch) mutable {
        watch.Measure([&] {
            for (const Text& text : texts) {
                const double value = read(text);
                Keep(value);
            }
        });
    };
}

/** A value bound to a double, as a control carries it. */
class BoundValue
{
public:
    BoundValue() { m_value.Init(m_reading); }
    BoundValue(const BoundValue& other)
        : m_value(other.m_value)
    {
        m_value.Init(m_reading);
    }
    BoundValue& operator=(const BoundValue&) = delete;

    CEVal* operator->() { return &m_value; }
    double& Reading() { return m_reading; }

private:
    double m_reading = 0;
    CEVal m_value;
};

Round OurWriting(int decimals, int units)
{
    BoundValue value;
    value->decimals = decimals;
    value->units = units;
    return Writing([value](double reading) mutable {
        value.Reading() = reading;
        return value->GetText(1);
    });
}

double FromChars(const std::string& text)
{
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

constexpr unsigned ringSize = 100;

/** The running mean as it is usually written. */
struct DequeMean {
    void SetValue(double v)
    {
        values.push_back(v);
        sum += v;
        if (values.size() > ringSize) {
            sum -= values.front();
            values.pop_front();
        }
    }

    std::deque<double> values;
    double sum = 0;
};

template <class Ring>
Round Sampling(Ring ring)
{
    constexpr int passes = 10;
    return [ring, readings = Readings()](Stopwatch& watch) mutable {
        watch.Measure([&] {
            for (int pass = 0; pass < passes; ++pass) {
                for (const double value : readings) {
                    ring.SetValue(value);
                }
            }
            Keep(ring);
        });
    };
}

} // namespace

TEST_CASE("values")
{
    constexpr CompareOptions likeFmt{.target = 1.0};
    Compare("values: text of a double, wide (fmt)", OurWriting(-1, -1),
            Writing([](double v) { return fmt::format(L"{:.6g}", v); }), likeFmt);
    Compare("values: text of a double with two decimals, wide (fmt)", OurWriting(2, -1),
            Writing([](double v) { return fmt::format(L"{:.2f}", v); }), likeFmt);
    Compare("values: text with its unit, wide (fmt)", OurWriting(2, 0),
            Writing([](double v) { return fmt::format(L"{:.2f}{}", v, L"m"); }), likeFmt);

    constexpr CompareOptions nearFromChars{.target = 1.5};
    const Round narrow = Reading<std::string>(FromChars);
    Compare("values: storing typed text (std::from_chars, narrow)",
            Reading<CString>([value = BoundValue()](const CString& text) mutable {
                value->SetText(text);
                return value.Reading();
            }),
            narrow, nearFromChars);
    Compare("values: checking typed text (std::from_chars, narrow)",
            Reading<CString>([value = BoundValue(), message = CString()](const CString& text) mutable {
                return value->IsValidText(text, message) ? 1.0 : 0.0;
            }),
            narrow, nearFromChars);
}

TEST_CASE("statistics")
{
    CStatBuf ring;
    ring.SetSize(ringSize);
    Compare("statistics: storing a sample (std::deque)", Sampling(ring), Sampling(DequeMean()),
            {.target = 1.0});
}
