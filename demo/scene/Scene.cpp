#include "demo/scene/Scene.h"

#include <algorithm>
#include <cmath>

namespace demo
{
namespace
{

constexpr double interval = 1.0 / 15.0;  // seconds between two changes of the scene
constexpr double spareTurns = 1.5;       // of the program's own turns, which must not wait for the views
constexpr double longestReckoning = 2.0; // seconds that the boat goes on after a position

} // namespace

Scene::Scene(const Playback& playback, const CPal& pal, const CString& boatFile)
    : m_playback(playback)
    , m_bedMdl(pal)
    , m_plan(m_route)
    , m_track(playback, m_plane, pal)
    , m_boat(boatFile)
{
    m_pos.name = boatPos;
    // The position leads; turning and zooming are each view's own.
    m_pos.flags = CMdlPos::ctrlPan;
}

void Scene::Take(double now)
{
    if (now < m_next) {
        m_now = now;
        return;
    }
    m_next =
        now + std::max(interval, spareTurns * (now - m_now)); // a slow machine draws the views less often
    m_now = now;
    if (m_playback.Time() < m_playTime)
        Restart();
    m_playTime = m_playback.Time();
    TakeTrack();
    TakeBoat();
}

void Scene::Restart()
{
    m_taken = 0;
    m_bed.Clear();
    m_bedMdl.Clear();
    m_boat.Hide();
}

void Scene::TakeTrack()
{
    const History<TrackPoint>& track = m_playback.Track();
    if (track.Added() == m_taken)
        return;
    if (m_taken == 0) {
        m_plane = {track[0].latitude, track[0].longitude};
        m_route.Make(SurveyPlan(m_plane));
        m_plan.ModelChanged(0);
    }
    const std::size_t fresh = std::min(track.Added() - m_taken, track.Size());
    for (std::size_t i = track.Size() - fresh; i < track.Size(); ++i)
        m_bed.Add(m_plane.PlaceOf(track[i].latitude, track[i].longitude), track[i].depth);
    m_taken = track.Added();
    m_bedMdl.Take(m_bed);
    m_track.ModelChanged(0);
}

double Scene::CrossTrack() const
{
    if (!m_boat.visible || m_playback.State(Sensor::Position) == Freshness::None)
        return missing;
    const CV3& place = m_boat.Now().place;
    return m_route.CrossTrack({place.x, place.y});
}

/** The boat is where the last position was, or as far on as its speed has brought it since. */
void Scene::TakeBoat()
{
    const auto isKnown = [this](Quantity quantity) { return m_playback.State(quantity) != Freshness::None; };
    const auto valueOf = [&](Quantity quantity) {
        return isKnown(quantity) ? m_playback.Value(quantity) : 0.0;
    };
    if (!isKnown(Quantity::Latitude) || !isKnown(Quantity::Longitude))
        return;
    CBoatMdl::Motion motion;
    motion.course = valueOf(Quantity::CourseOverGround);
    motion.speed = valueOf(Quantity::SpeedOverGround);
    motion.heading = isKnown(Quantity::Heading) ? m_playback.Value(Quantity::Heading) : motion.course;
    const GroundPoint fix =
        m_plane.PlaceOf(m_playback.Value(Quantity::Latitude), m_playback.Value(Quantity::Longitude));
    const double way = motion.speed * std::min(m_playback.Age(Quantity::Latitude), longestReckoning);
    motion.place = {fix.east + way * std::sin(motion.course), fix.north + way * std::cos(motion.course), 0};
    m_sea.Move(motion.place);
    m_boat.Move(motion);
    m_pos.SetFromMdl(&m_boat, motion.place, 0, 0);
}

} // namespace demo
