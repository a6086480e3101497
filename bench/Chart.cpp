// A chart against clearing and showing a bitmap of the same size: what it costs is the pixels, not the
// samples.
#include "Compare.h"
#include "Library.h"

#include "controls/CEChart.h"

#include <catch2/catch.hpp>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <mutex>
#include <optional>
#include <vector>

namespace
{

constexpr int many = 10'000'000;
constexpr int few = 10'000;
constexpr double rate = 1000; // samples per second
const CRect place(0, 0, 1000, 500);
constexpr int frames = 20;

double Reading(int i)
{
    // A slow swell with noise, so that every column of pixels has its height.
    const double noise = std::fmod(i * 0.7548776662466927, 1.0) - 0.5;
    return 20 + 8 * std::sin(i * 2e-6) + 3 * noise;
}

/** A chart that shows all of its samples. */
struct FullChart {
    FullChart(HostWnd& host, int count)
    {
        chart.AddTrace(L"Depth", chart.AddStrip(L"Depth", 0), many);
        for (; added < count; ++added)
            chart.Add(0, added / rate, Reading(added));
        chart.refresh = 0;
        chart.Create(chart.WndStyle(), place, &host, 1);
        chart.SetSpan(count / rate);
        chart.UpdateWindow();
    }

    /** Draws frames, each with a new sample. */
    Round Draw()
    {
        return [this](Stopwatch& watch) {
            chart.BringWindowToTop();
            chart.UpdateWindow();
            watch.Measure([&] {
                for (int i = 0; i < frames; ++i, ++added) {
                    chart.Add(0, added / rate, Reading(added));
                    chart.Invalidate(FALSE);
                    chart.UpdateWindow();
                }
            });
            double min = 0;
            double max = 0;
            REQUIRE(chart.GetShown(0, min, max));
            REQUIRE(chart.GetEnd() == (added - 1) / rate);
        };
    }

    CEChart chart;
    int added = 0;
};

/** A picture of the same size, which is cleared and shown. */
class Bitmap : public CWnd
{
public:
    explicit Bitmap(HostWnd& host)
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = place.Width();
        info.bmiHeader.biHeight = -place.Height();
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_dc.CreateCompatibleDC(nullptr);
        void* pixels = nullptr;
        m_bitmap.Attach(::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
        m_pixels = static_cast<std::uint32_t*>(pixels);
        m_before = ::SelectObject(m_dc, m_bitmap);
        CreateEx(0, Vant::ctlClass, L"", WS_CHILD | WS_VISIBLE, place, &host, 2);
    }
    ~Bitmap() override
    {
        DestroyWindow();
        ::SelectObject(m_dc, m_before);
    }

    Round Draw()
    {
        return [this](Stopwatch& watch) {
            BringWindowToTop();
            UpdateWindow();
            watch.Measure([&] {
                for (int i = 0; i < frames; ++i) {
                    m_colour = static_cast<std::uint32_t>(i);
                    Invalidate(FALSE);
                    UpdateWindow();
                }
            });
            REQUIRE(m_pixels[0] == frames - 1);
        };
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_PAINT)
            return CWnd::WindowProc(message, wParam, lParam);
        CPaintDC dc(this);
        ::GdiFlush();
        std::fill_n(m_pixels, place.Width() * place.Height(), m_colour);
        dc.BitBlt(0, 0, place.Width(), place.Height(), &m_dc, 0, 0, SRCCOPY);
        return 0;
    }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
    std::uint32_t* m_pixels = nullptr;
    std::uint32_t m_colour = 0;
};

} // namespace

TEST_CASE("Drawing a chart", "[chart]")
{
    const Library library;
    HostWnd host(place.Size());
    Bitmap bitmap(host);
    FullChart full(host, many);
    FullChart hardlyAny(host, few);
    Compare("chart: frame of 10,000,000 samples (clear and show its bitmap)", full.Draw(), bitmap.Draw(),
            {.target = 3.0, .rounds = 31});
    Compare("chart: frame of 10,000,000 samples (of 10,000)", full.Draw(), hardlyAny.Draw(),
            {.target = 1.5, .rounds = 31});
}

TEST_CASE("Feeding a chart", "[chart]")
{
    const Library library;
    CEChart chart;
    constexpr int count = 100'000;
    chart.AddTrace(L"Depth", nullptr, count);
    double t = 0;
    const auto ours = [&](Stopwatch& watch) {
        watch.Measure([&] {
            for (int i = 0; i < count; ++i)
                chart.Add(0, t += 1e-3, i);
        });
    };
    struct Sample {
        double t;
        double v;
    };
    std::vector<Sample> ring(count);
    std::mutex mutex;
    const auto peer = [&](Stopwatch& watch) {
        watch.Measure([&] {
            for (int i = 0; i < count; ++i) {
                const std::lock_guard lock(mutex);
                ring[static_cast<std::size_t>(i)] = {t += 1e-3, static_cast<double>(i)};
            }
        });
        Keep(ring);
    };
    Compare("chart: add 100,000 samples (to an array under a mutex)", ours, peer,
            {.target = std::nullopt, .rounds = 31});
}
