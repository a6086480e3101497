// Routes: distances, directions and what is found along them.

#include "geo/CRoute.h"

#include "tests/geo/Routes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

using testing::ElementsAre;

constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr double endless = std::numeric_limits<double>::infinity();
constexpr double single = 1e-7; // angles are kept in single precision

std::vector<double> Each(const CRoute& route, double CRtV3::*member)
{
    std::vector<double> values;
    for (CVantPtr* pos = route.GetHeadPos(); pos;)
        values.push_back(route.GetNext(pos)->*member);
    return values;
}

/** A walk with segments of all lengths, some of none, some straight up. */
std::vector<CV3> Walk(int count)
{
    RandomGeometry random;
    std::vector<CV3> places;
    CV3 at(1000, 2000, 0);
    double heading = 0;
    for (int i = 0; i < count; ++i) {
        places.push_back(at);
        heading += random.Number(-1, 1);
        const int kind = static_cast<int>(random.Number(0, 10));
        const double step = kind < 2 ? 0 : kind == 2 ? 500 : random.Number(0.1, 10);
        at += CV3(std::cos(heading) * step, std::sin(heading) * step, kind == 1 ? 3 : 0);
    }
    return places;
}

TEST(CRoute, WorksOutDistancesAndDirections)
{
    CRoute route;
    Fill(route, {{0, 0, 0}, {3, 4, 0}, {3, 16, 5}, {3, 16, 5}, {3, 16, 9}, {0, 16, 9}, {0, 10, 9}});
    EXPECT_THAT(Each(route, &CRtV3::q), ElementsAre(0, 5, 17, 17, 17, 20, 26));
    EXPECT_THAT(Each(route, &CRtV3::p), ElementsAre(0, 5, 18, 18, 22, 25, 31));
    // Nowhere and straight up keep the heading; nowhere keeps the pitch too; the last node that before it.
    const auto f = [](double angle) { return static_cast<double>(static_cast<float>(angle)); };
    const double slope = f(std::atan2(-5, 12));
    EXPECT_THAT(Each(route, &CRtV3::heading),
                ElementsAre(f(std::atan2(4, 3)), f(ML::pi_2), f(ML::pi_2), f(ML::pi_2), f(ML::pi),
                            f(-ML::pi_2), f(-ML::pi_2)));
    EXPECT_THAT(Each(route, &CRtV3::pitch), ElementsAre(0, slope, slope, f(-ML::pi_2), 0, 0, 0));
}

TEST(CRoute, PitchIsPositiveDownwardsAndNothingStandsBeforeTheFirstSegment)
{
    CRoute up;
    Fill(up, {{1, 1, 1}, {1, 1, 3}});
    EXPECT_NEAR(up.GetHead()->pitch, -ML::pi_2, single);
    EXPECT_EQ(up.GetHead()->heading, 0);
    CRoute down;
    Fill(down, {{7, 7, 7}, {7, 7, 7}, {7, 7, 6}});
    EXPECT_EQ(down.GetHead()->pitch, 0);
    EXPECT_NEAR(down.GetTail()->pitch, ML::pi_2, single);
}

TEST(CRoute, CountsFromWhatTheFirstNodeHolds)
{
    CRoute route;
    Fill(route, {{0, 0, 0}, {10, 0, 0}});
    route.GetHead()->p = 100;
    route.GetHead()->q = 50;
    route.Recalc();
    EXPECT_EQ(route.GetTail()->p, 110);
    EXPECT_EQ(route.GetTail()->q, 60);
    CRtV3 place;
    EXPECT_NE(route.Q2Entry(55, place), 0);
    EXPECT_EQ(place.x, 5);
    EXPECT_EQ(place.p, 105);
    EXPECT_EQ(route.Q2Entry(49, place), 0);
}

TEST(CRoute, FindsThePlaceAtADistance)
{
    CRoute route;
    Fill(route, {{0, 0, 0}, {30, 40, 0}, {30, 40, 10}, {90, 40, 10}});
    route.GetHead()->scale = 2;
    route.GetHead()->flags = 7;
    CRtV3 place;
    EXPECT_NE(route.Q2Entry(25, place), 0);
    EXPECT_THAT(place.Pos(), NearTo(CV3(15, 20, 0)));
    EXPECT_EQ(place.p, 25);
    EXPECT_EQ(place.scale, 1.5);
    EXPECT_EQ(place.flags, 7);

    // At a vertical segment the upper end counts, for p each of its places.
    EXPECT_NE(route.Q2Entry(50, place), 0);
    EXPECT_THAT(place.Pos(), NearTo(CV3(30, 40, 10)));
    EXPECT_NE(route.P2Entry(54, place), 0);
    EXPECT_THAT(place.Pos(), NearTo(CV3(30, 40, 4)));
    EXPECT_EQ(place.q, 50);
    EXPECT_NE(route.Q2Entry(110, place), 0);
    EXPECT_EQ(place.Pos(), CV3(90, 40, 10));

    EXPECT_EQ(route.Q2Entry(-1, place), 0);
    EXPECT_EQ(place.Pos(), CV3(0, 0, 0));
    EXPECT_EQ(route.Q2Entry(endless, place), 0);
    EXPECT_EQ(place.Pos(), CV3(90, 40, 10));
    EXPECT_EQ(route.P2Entry(none, place), 0);
    EXPECT_EQ(place.Pos(), CV3(90, 40, 10)) << "as it was";
}

TEST(CRoute, AnglesGoTheShorterWayRound)
{
    CRtV3 a;
    CRtV3 b;
    b.q = b.p = 10;
    a.heading = ML::D2R(170);
    b.heading = ML::D2R(-160);
    EXPECT_NEAR(CRoute::InterpQ(2, a, b).heading, ML::D2R(176), 1e-12);
    EXPECT_NEAR(CRoute::InterpP(5, a, b).heading, ML::D2R(-175), 1e-12);
    EXPECT_NEAR(CRoute::InterpP(5, b, b).heading, ML::D2R(-160), 1e-12);
    EXPECT_NEAR(CRoute::InterpQ(99, a, b).heading, ML::D2R(-160), 1e-12) << "beyond the second node";
    a.pitch = 0.5;
    b.pitch = -0.5;
    EXPECT_NEAR(CRoute::InterpQ(5, a, b).pitch, 0, 1e-12);
    EXPECT_NEAR(CRoute::InterpQ(5, a, b).q, 5, 1e-12);
}

/** Looks up places near the last one, anywhere and on nodes, by both distances. */
void LookUpAll(const std::vector<CV3>& places, std::size_t dense)
{
    CRoute route;
    Fill(route, places);
    const std::vector<double> distances = Each(route, &CRtV3::q);
    RandomGeometry random;
    CRtV3 place;
    double q = 0;
    for (int i = 0; i < 20'000; ++i) {
        const int kind = i % 4;
        q = kind == 0   ? random.Number(0, distances[dense])
            : kind == 1 ? distances[static_cast<std::size_t>(random.Number(0, static_cast<double>(dense)))]
                        : std::clamp(q + random.Number(-20, 20), 0.0, distances[dense]);
        ASSERT_NE(route.Q2Entry(q, place), 0) << q;
        const auto after = std::upper_bound(distances.begin(), distances.end(), q);
        const auto before = static_cast<std::size_t>(after - distances.begin()) - 1;
        if (after == distances.end()) {
            ASSERT_EQ(place.Pos(), places.back());
            continue;
        }
        const double share = (q - distances[before]) / (distances[before + 1] - distances[before]);
        ASSERT_THAT(place.Pos(), NearTo(places[before] + (places[before + 1] - places[before]) * share)) << q;
        CRtV3 same;
        ASSERT_NE(route.P2Entry(place.p, same), 0);
        ASSERT_THAT(same.Pos(), NearTo(place.Pos()));
    }
}

TEST(CRoute, LooksUpTheSameWhateverWasLookedUpBefore)
{
    std::vector<CV3> places = Walk(3000);
    LookUpAll(places, 2999);
    // So long a last segment that all nodes but one lie close together.
    places.push_back(places.back() + CV3(1e9, 0, 0));
    LookUpAll(places, 2999);
    LookUpAll({{0, 0, 0}, {3, 0, 0}}, 1);
}

TEST(CRoute, FindsTheNearestPlaceAsSeenFromAbove)
{
    const std::vector<CV3> places = Walk(2000);
    CRoute route;
    Fill(route, places);
    RandomGeometry random;
    for (int i = 0; i < 500; ++i) {
        const CV3& by = places[static_cast<std::size_t>(random.Number(0, 1999.9))];
        const double reach = i % 3 == 0 ? 5000 : 5;
        const CV3 from(by.x + random.Number(-reach, reach), by.y + random.Number(-reach, reach), 0);
        double least = endless;
        for (std::size_t k = 0; k + 1 < places.size(); ++k) {
            CV3 a = places[k] - from;
            CV3 along = places[k + 1] - places[k];
            a.z = along.z = 0;
            const double length2 = along | along;
            const double share = length2 > 0 ? std::clamp(-(a | along) / length2, 0.0, 1.0) : 0;
            least = std::min(least, (a + along * share).Length());
        }
        CRtV3* a = nullptr;
        CRtV3* b = nullptr;
        const double p = route.En2P(from.x, from.y, a, b);
        ASSERT_TRUE(a && b);
        ASSERT_TRUE(a->p <= p && p <= b->p);
        const CRtV3 place = route.V2Entry(from);
        ASSERT_NEAR(ML::Hypot(place.x - from.x, place.y - from.y), least, 1e-6);
        ASSERT_THAT(CRoute::InterpP(p, *a, *b).Pos(), NearTo(place.Pos()));
    }
}

TEST(CRoute, TakesTheFirstOfSeveralNearestPlaces)
{
    CRoute route; // there, and back on the same line
    Fill(route, {{0, 0, 0}, {10, 0, 0}, {0, 0, 5}, {10, 0, 0}});
    CRtV3* a = nullptr;
    CRtV3* b = nullptr;
    EXPECT_EQ(route.En2P(4, 3, a, b), 4);
    EXPECT_EQ(a, route.GetHead());
    EXPECT_EQ(route.En2P(99, 0, a, b), 10);
    EXPECT_EQ(a, route.GetHead());
}

TEST(CRoute, WithoutNodesAndWithOne)
{
    CRoute route;
    route.Recalc();
    CRtV3 place(1, 2, 3);
    CRtV3* a = &place;
    CRtV3* b = &place;
    EXPECT_EQ(route.Q2Entry(0, place), 0);
    EXPECT_EQ(route.P2Entry(0, place), 0);
    EXPECT_EQ(place.Pos(), CV3(1, 2, 3));
    EXPECT_EQ(route.En2P(0, 0, a, b), 0);
    EXPECT_TRUE(!a && !b);
    EXPECT_EQ(route.En2Entry(5, 5).Pos(), CV3());
    EXPECT_EQ(route.Node(nullptr).Pos(), CV3());

    Fill(route, {{4, 5, 6}});
    EXPECT_NE(route.Q2Entry(0, place), 0);
    EXPECT_EQ(place.Pos(), CV3(4, 5, 6));
    EXPECT_EQ(route.Q2Entry(1, place), 0);
    EXPECT_EQ(route.En2P(0, 0, a, b), 0);
    EXPECT_TRUE(a == route.GetHead() && b == a);
    EXPECT_EQ(route.Node(route.GetHeadPos()).Pos(), CV3(4, 5, 6));
}

TEST(CRoute, StaysUsableAroundWhatIsNotANumber)
{
    CRoute route;
    Fill(route, {{0, 0, 0}, {10, 0, 0}, {none, 0, 0}, {1e300, 0, 0}, {20, 0, 0}, {30, 0, 0}});
    EXPECT_THAT(Each(route, &CRtV3::q), ElementsAre(0, 10, 10, 10, 10, 20));
    CRtV3 place;
    EXPECT_NE(route.Q2Entry(15, place), 0);
    EXPECT_EQ(place.x, 25);
    EXPECT_THAT(route.En2Entry(26, 1).Pos(), NearTo(CV3(26, 0, 0)));
    CRtV3* a = route.GetHead();
    CRtV3* b = a;
    EXPECT_EQ(route.En2P(none, 0, a, b), 0);
    EXPECT_EQ(a, nullptr);

    CRoute nothing;
    Fill(nothing, {{none, 0, 0}, {0, endless, 0}, {none, none, none}});
    EXPECT_EQ(nothing.En2P(0, 0, a, b), 0);
    EXPECT_EQ(b, nullptr);
    nothing.GetHead()->q = nothing.GetHead()->p = none;
    nothing.Recalc();
    nothing.Q2Entry(0, place);
    EXPECT_EQ(nothing.Q2Entry(1, place), 0);
}

TEST(CRoute, NoticesThatItsNodesHaveChanged)
{
    CRoute route;
    Fill(route, {{0, 0, 0}, {10, 0, 0}, {20, 0, 0}});
    CRtV3 place;
    CRtV3* a = nullptr;
    CRtV3* b = nullptr;
    ASSERT_NE(route.Q2Entry(15, place), 0);
    route.En2P(15, 0, a, b);
    route.RemoveTail();
    EXPECT_EQ(route.Q2Entry(15, place), 0);
    EXPECT_EQ(place.x, 10);
    route.AddTail(new CRtV3(10, 40, 0));
    route.Recalc();
    EXPECT_NE(route.Q2Entry(15, place), 0);
    EXPECT_EQ(place.y, 5);
    EXPECT_EQ(route.En2P(11, 20, a, b), 30);
    EXPECT_EQ(b, route.GetTail());

    CRoute copy(route);
    route.Remove(route.GetHead()); // leaves a node without an element
    EXPECT_EQ(route.SplineRt(copy, CSpline(1), 0), 2);
    copy = route;
    EXPECT_NE(copy.Q2Entry(15, place), 0);
    route.RemoveAll();
    EXPECT_EQ(route.Q2Entry(15, place), 0);
    copy.name = L"New";
    route = copy;
    EXPECT_EQ(Name(route), L"New");
    EXPECT_NE(route.GetHead(), copy.GetHead());
    EXPECT_NE(route.Q2Entry(15, place), 0);
}

TEST(CRoute, SortsByName)
{
    CRoute a;
    CRoute b;
    a.name = L"line 1";
    b.name = L"Line 2";
    EXPECT_TRUE((a < b) && !(b < a) && !(a < a));
    b.name = L"Line 1";
    EXPECT_NE(a < b, b < a);
}

} // namespace
