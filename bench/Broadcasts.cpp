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

    void OnPoll(double t) override { sum += t; }

    double sum = 0;
};

/** What a receiver of the peers does. */
struct Adder {
    double sum = 0;
    void Add(double t) { sum += t; }
};

using Windows = std::vector<std::unique_ptr<CReceiver>>;

Round Ours(const Windows& receivers)
{
    return [&receivers](Stopwatch& watch) {
        const int polls = callsPerRound / static_cast<int>(receivers.size());
        receivers.front()->sum = 0;
        watch.Measure([&] {
            for (int i = 0; i < polls; ++i)
                CVantWnd::Poll(1.0);
        });
        REQUIRE(receivers.front()->sum == polls);
    };
}

template <class Channel>
Round Peer(Channel& channel, std::vector<Adder>& receivers)
{
    return [&](Stopwatch& watch) {
        const int polls = callsPerRound / static_cast<int>(receivers.size());
        receivers.front().sum = 0;
        watch.Measure([&] {
            for (int i = 0; i < polls; ++i)
                channel(1.0);
        });
        REQUIRE(receivers.front().sum == polls);
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
        std::vector<Adder> adders(static_cast<std::size_t>(count));
        boost::signals2::signal<void(double)> signal;
        Functions functions;
        for (Adder& adder : adders) {
            windows.push_back(std::make_unique<CReceiver>());
            signal.connect([&adder](double t) { adder.Add(t); });
            functions.list.emplace_back([&adder](double t) { adder.Add(t); });
        }
        const std::string name = "broadcast: a million calls, receivers " + std::to_string(count);
        Compare(name + " (signals2)", Ours(windows), Peer(signal, adders), {.target = 1.0});
        Compare(name + " (functions)", Ours(windows), Peer(functions, adders), {.target = 1.0});
    }
}
