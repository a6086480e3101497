#include "Compare.h"

#include "geo/CRoute.h"

#include <catch2/catch.hpp>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace
{

constexpr int nodes = 1'000'000;
constexpr int lookups = 50'000;

/** A survey in lines, with nodes about a metre apart. */
struct Survey {
    Survey()
    {
        std::mt19937 random(1);
        std::uniform_real_distribution<double> step(0.5, 1.5);
        constexpr int perLine = 1000;
        constexpr double lineSpacing = 20;
        double x = 0;
        for (int i = 0; i < nodes; ++i) {
            const int line = i / perLine;
            if (i % perLine != 0)
                x += line % 2 == 0 ? step(random) : -step(random);
            auto* const node = new CRtV3(x, line * lineSpacing, std::sin(i * 0.01));
            node->scale = 1;
            route.AddTail(node);
        }
        route.Recalc();
        for (CVantPtr* pos = route.GetHeadPos(); pos;)
            distances.push_back(route.GetNext(pos)->q);
    }

    CRoute route;
    std::vector<double> distances;
};

const Survey& TheSurvey()
{
    static const Survey survey;
    return survey;
}

/** Distances that creep along the route, a third of a metre at a time. */
std::vector<double> Moving()
{
    constexpr double step = 0.3;
    std::vector<double> at(lookups);
    for (int i = 0; i < lookups; ++i)
        at[static_cast<std::size_t>(i)] = 100'000 + i * step;
    return at;
}

std::vector<double> Anywhere()
{
    std::mt19937 random(2);
    std::uniform_real_distribution<double> place(0, TheSurvey().distances.back());
    std::vector<double> at(lookups);
    std::generate(at.begin(), at.end(), [&] { return place(random); });
    return at;
}

Round Entries(const std::vector<double>& at)
{
    return [at](Stopwatch& watch) {
        const CRoute& route = TheSurvey().route;
        CRtV3 place;
        int found = 0;
        watch.Measure([&] {
            for (const double q : at) {
                found += route.Q2Entry(q, place);
                Keep(place.x);
            }
        });
        REQUIRE(found == lookups);
    };
}

Round LowerBounds(const std::vector<double>& at)
{
    return [at](Stopwatch& watch) {
        const std::vector<double>& distances = TheSurvey().distances;
        std::size_t sum = 0;
        watch.Measure([&] {
            for (const double q : at) {
                const auto found = std::lower_bound(distances.begin(), distances.end(), q);
                sum += static_cast<std::size_t>(found - distances.begin());
                Keep(sum);
            }
        });
        REQUIRE(sum > 0);
    };
}

} // namespace

TEST_CASE("routes")
{
    constexpr CompareOptions within{.target = 1.5};
    Compare("route of 1,000,000 nodes: Q2Entry moving (std::lower_bound in a vector of q)", Entries(Moving()),
            LowerBounds(Moving()), within);
    Compare("route of 1,000,000 nodes: Q2Entry at random (std::lower_bound in a vector of q)",
            Entries(Anywhere()), LowerBounds(Anywhere()), within);
}
