// Areas of an application that know what lies inside, asked through the library's interface.
#include "geo/CShapes.h"

#include <gtest/gtest.h>

namespace
{

const CV3 somewhere(489'600, 5'832'400, 0); // metres east and north, as real charts have them

CV3 At(double east, double north)
{
    return somewhere + CV3(east, north, 0);
}

CRoute BentRoute()
{
    CRoute route;
    for (const CV3& node : {At(-250, -150), At(-150, 0), At(0, 40), At(200, 150)})
        route.AddTail(new CRtV3(node.x, node.y, 0));
    route.Recalc();
    return route;
}

/** Hears how far off its route a boat is. */
class CWatch : public CObject
{
public:
    void OnOffTrack(double across) { offTrack = across; }
    double offTrack = 0;
};

TEST(Shapes, TellPlacesInTheirHollowsAndCornersFromThoseInside)
{
    auto* const shoal = new CPolygon;
    for (const CV3& vertex : {At(60, -60), At(220, -150), At(200, 20), At(130, -70)})
        shoal->AddTail(new CV3(vertex));
    CArCat areas;
    areas.AddTail(shoal);
    areas.AddTail(new CDisc(somewhere.x - 150, somewhere.y + 100, 40));
    areas.AddTail(new CTurned(somewhere.x - 20, somewhere.y - 120, 160, 60, ML::D2R(60)));
    areas.AddTail(new CCorridor(BentRoute(), 30, 30));
    struct Question {
        const char* area;
        CV3 in;
        CV3 out;
    };
    const Question questions[] = {{"polygon", {190, -30, 0}, {120, -40, 0}},
                                  {"circle", {-150, 139, 0}, {-120, 130, 0}},
                                  {"rectangle at an angle", {40, -90, 0}, {40, -150, 0}},
                                  {"corridor", {-80, 40, 0}, {-80, 60, 0}}};
    CVantPtr* pos = areas.GetHeadPos();
    for (const auto& [name, in, out] : questions) {
        CArea& area = *areas.GetNext(pos);
        EXPECT_TRUE(area.Inside(somewhere + in)) << name;
        EXPECT_FALSE(area.Inside(somewhere + out)) << name;
    }
}

TEST(Shapes, TellAListenerHowFarATargetIsOffTheRoute)
{
    CCorridor corridor(BentRoute(), 30, 30);
    CWatch watch;
    CArea& area = corridor;
    area.ProcTgt(CArProcTgt(&watch), somewhere.x - 100, somewhere.y - 20,
                 static_cast<void (CObject::*)(double)>(&CWatch::OnOffTrack));
    // The segment there goes from (-150, 0) to (0, 40).
    EXPECT_NEAR(watch.offTrack, (50 * 40 + 20 * 150) / ML::Hypot(150, 40), 1e-6);
}

} // namespace
