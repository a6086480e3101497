#include "Compare.h"

#include "core/CLstMgd.h"
#include "core/CV3.h"

#include <catch2/catch.hpp>

#include <list>
#include <memory>
#include <type_traits>

namespace
{

constexpr int elements = 100'000;

using Ours = CLstMgd<CV3>;
using Peer = std::list<std::unique_ptr<CV3>>;

void Fill(Ours& list, int count = elements)
{
    for (int i = 0; i < count; ++i)
        list.AddTail(new CV3(i, 0, 0));
}

void Fill(Peer& list, int count = elements)
{
    for (int i = 0; i < count; ++i)
        list.push_back(std::make_unique<CV3>(i, 0, 0));
}

double Sum(const Ours& list)
{
    double sum = 0;
    for (CVantPtr* pos = list.GetHeadPos(); pos;)
        sum += list.GetNext(pos)->x;
    return sum;
}

double Sum(const Peer& list)
{
    double sum = 0;
    for (const auto& elem : list)
        sum += elem->x;
    return sum;
}

void Assign(Ours& to, const Ours& from)
{
    to = from;
}

/** By hand what CLstMgd does: elements that are there already are reused. */
void Assign(Peer& to, const Peer& from)
{
    auto at = to.begin();
    for (const auto& elem : from) {
        if (at != to.end())
            **at++ = *elem;
        else
            to.push_back(std::make_unique<CV3>(*elem));
    }
    to.erase(at, to.end());
}

template <class List>
Round Append()
{
    return [](Stopwatch& watch) {
        List list;
        watch.Measure([&] { Fill(list); });
    };
}

template <class List>
Round Walk()
{
    return [](Stopwatch& watch) {
        List list;
        Fill(list);
        double sum = 0;
        watch.Measure([&] {
            for (int i = 0; i < 10; ++i)
                Keep(sum += Sum(list));
        });
        REQUIRE(sum == 10.0 * elements * (elements - 1) / 2);
    };
}

template <class List>
Round Clear()
{
    return [](Stopwatch& watch) {
        List list;
        Fill(list);
        watch.Measure([&] {
            if constexpr (std::is_same_v<List, Ours>)
                list.RemoveAll();
            else
                list.clear();
        });
    };
}

template <class List>
Round AssignTo(int there)
{
    return [there](Stopwatch& watch) {
        List source;
        List target;
        Fill(source);
        Fill(target, there);
        watch.Measure([&] { Assign(target, source); });
        REQUIRE(Sum(target) == Sum(source));
    };
}

} // namespace

TEST_CASE("Managed list against std::list<std::unique_ptr>", "[list]")
{
    Compare("list: append 100,000", Append<Ours>(), Append<Peer>(), {.target = 1.0});
    Compare("list: walk 100,000, ten times", Walk<Ours>(), Walk<Peer>(), {.target = 1.0});
    Compare("list: clear 100,000", Clear<Ours>(), Clear<Peer>(), {.target = 1.0});
    Compare("list: assign 100,000 to as many", AssignTo<Ours>(elements), AssignTo<Peer>(elements),
            {.target = 1.0});
    Compare("list: assign 100,000 to none", AssignTo<Ours>(0), AssignTo<Peer>(0), {.target = 1.0});
    Compare("list: assign 100,000 to twice as many", AssignTo<Ours>(2 * elements),
            AssignTo<Peer>(2 * elements), {.target = 1.0});
}
