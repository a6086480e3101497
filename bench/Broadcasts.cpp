// A broadcast to windows, against a signal library and against the least that could do the same: a vector of
// functions. Receivers need no window of the system for this.
#include "Compare.h"

#include "controls/CVantWnd.h"

#include <boost/signals2.hpp>
#include <catch2/catch.hpp>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace
{

constexpr int callsPerRound = 1'000'000;

class CReceiver : public CVantWnd
{
public:
    CReceiver() { s_pollRx.AddTail(this); }
    ~CReceiver() override { s_pollRx.RemoveAt(s_pollRx.Find(this)); }

    void OnPoll(double t) override { Add(t); }
    void Add(double t) { sum += t; }

    double sum = 0;
};

using Windows = std::vector<std::unique_ptr<CReceiver>>;

/** Both sides deliver to the same windows: what a broadcast touches in them costs both the same. */
template <class Send>
Round Broadcasts(const Windows& receivers, Send send)
{
    return [&receivers, send](Stopwatch& watch) {
        const int polls = callsPerRound / static_cast<int>(receivers.size());
        receivers.front()->sum = 0;
        watch.Measure([&] {
            for (int i = 0; i < polls; ++i)
                send(1.0);
        });
        REQUIRE(receivers.front()->sum == polls);
    };
}

struct Functions {
    std::vector<std::function<void(double)>> list;
    void operator()(double t) const
    {
        for (const auto& function : list)
            function(t);
    }
};

} // namespace

TEST_CASE("Polls broadcast to windows", "[broadcast]")
{
    for (const int count : {1, 10, 100}) {
        Windows windows;
        boost::signals2::signal<void(double)> signal;
        Functions direct;
        Functions handlers;
        for (int i = 0; i < count; ++i) {
            CReceiver* const wnd = windows.emplace_back(std::make_unique<CReceiver>()).get();
            signal.connect([wnd](double t) { wnd->Add(t); });
            direct.list.emplace_back([wnd](double t) { wnd->Add(t); });
            handlers.list.emplace_back([base = static_cast<CVantWnd*>(wnd)](double t) { base->OnPoll(t); });
        }
        const std::string name = "broadcast: a million calls, receivers " + std::to_string(count);
        const Round ours = Broadcasts(windows, [](double t) { CVantWnd::Poll(t); });
        Compare(name + " (signals2)", ours, Broadcasts(windows, std::ref(signal)), {.target = 1.0});
        Compare(name + " (functions)", ours, Broadcasts(windows, std::ref(direct)), {.target = 1.0});
        Compare(name + " (functions, same handlers)", ours, Broadcasts(windows, std::ref(handlers)),
                {.target = 1.0});
    }
}
