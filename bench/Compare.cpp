#include "Compare.h"

#include <catch2/catch.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <ostream>
#include <vector>

namespace
{

struct Result {
    std::string name;
    double ours;
    double peer;
    double ratio;
    double low;
    double high;
    double deviation;
    std::optional<double> target;
};

std::vector<Result> results;

double Time(const Round& round)
{
    Stopwatch watch;
    round(watch);
    return watch.Seconds();
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/** Ratios scatter evenly on a logarithmic scale: twice as slow and twice as fast cancel out. The outer
 * quarters are left out, because they say what else the machine was doing. */
std::vector<double> CentralLogarithms(std::vector<double> ratios)
{
    std::sort(ratios.begin(), ratios.end());
    const auto quarter = static_cast<std::ptrdiff_t>(ratios.size() / 4);
    std::vector<double> logarithms;
    std::transform(ratios.begin() + quarter, ratios.end() - quarter, std::back_inserter(logarithms),
                   [](double ratio) { return std::log(ratio); });
    return logarithms;
}

std::string Text(const char* format, double value)
{
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string Milliseconds(double seconds)
{
    return Text(seconds < 0.01 ? "%.3f ms" : "%.1f ms", seconds * 1000);
}

/** A target is missed only when the whole interval of confidence lies above it. */
std::string Verdict(const Result& result)
{
    if (!result.target)
        return "";
    if (result.ratio <= *result.target)
        return "met";
    if (result.low <= *result.target)
        return "met within the spread";
    return "missed by " + Text("%.1f %%", (result.ratio / *result.target - 1) * 100);
}

std::vector<std::string> Cells(const Result& result)
{
    return {result.name,
            Milliseconds(result.ours),
            Milliseconds(result.peer),
            Text("%.2f", result.ratio),
            Text("%.2f", result.low) + " to " + Text("%.2f", result.high),
            Text("%.0f %%", result.deviation * 100),
            result.target ? Text("%.2f", *result.target) : "",
            Verdict(result)};
}

} // namespace

void Compare(const std::string& name, const Round& ours, const Round& peer, const CompareOptions& options)
{
    constexpr int uncounted = 2;
    std::vector<double> oursTimes;
    std::vector<double> peerTimes;
    std::vector<double> ratios;
    for (int i = -uncounted; i < options.rounds; ++i) {
        double oursTime = 0;
        double peerTime = 0;
        if (i % 2 == 0) {
            oursTime = Time(ours);
            peerTime = Time(peer);
        } else {
            peerTime = Time(peer);
            oursTime = Time(ours);
        }
        if (i < 0)
            continue;
        oursTimes.push_back(oursTime);
        peerTimes.push_back(peerTime);
        ratios.push_back(oursTime / peerTime);
    }
    constexpr double confidence = 0.95;
    constexpr int resamples = 10'000;
    std::vector<double> central = CentralLogarithms(ratios);
    const auto statistics =
        Catch::Benchmark::Detail::analyse_samples(confidence, resamples, central.begin(), central.end());
    const auto& mean = statistics.mean;
    results.push_back({name, Median(oursTimes), Median(peerTimes), std::exp(mean.point),
                       std::exp(mean.lower_bound), std::exp(mean.upper_bound),
                       std::expm1(statistics.standard_deviation.point), options.target});
    std::printf("%-48s %s\n", name.c_str(), Text("%.2f", results.back().ratio).c_str());
    std::fflush(stdout);
}

void WriteTable(std::ostream& out)
{
    std::vector<std::vector<std::string>> rows = {
        {"comparison", "ours", "peer", "ratio", "95 % interval", "deviation", "target", "verdict"}};
    for (const Result& result : results)
        rows.push_back(Cells(result));
    std::vector<std::size_t> widths(rows[0].size());
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    for (std::size_t r = 0; r < rows.size(); ++r) {
        for (std::size_t i = 0; i < widths.size(); ++i)
            out << "| " << rows[r][i] << std::string(widths[i] - rows[r][i].size() + 1, ' ');
        out << "|\n";
        for (std::size_t i = 0; r == 0 && i < widths.size(); ++i)
            out << '|' << std::string(widths[i] + 2, '-') << (i + 1 == widths.size() ? "|\n" : "");
    }
}

std::size_t ComparisonCount()
{
    return results.size();
}
