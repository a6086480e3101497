#pragma once

#include "demo/detail/LocalPlane.h"
#include "demo/detail/Playback.h"
#include "demo/detail/SeaBed.h"
#include "demo/scene/CBoatMdl.h"
#include "demo/scene/CPlanMdl.h"
#include "demo/scene/CSeaBedMdl.h"
#include "demo/scene/CSeaMdl.h"
#include "demo/scene/CTrackMdl.h"
#include "display/CDspGrp.h"
#include "display/CMdlPos.h"

namespace demo
{

/** What the chart and the orbit view show: the display group, its drawables, and the boat's position, which
 * the views follow by its name. The display's origin is the first position of the log. */
class Scene
{
public:
    static constexpr const wchar_t* boatPos = L"Boat"; ///< name of the position

    /** Before any view. @param playback,pal  must outlive it  @param boatFile  path of the boat's model */
    Scene(const Playback& playback, const CPal& pal, const CString& boatFile);

    /** Brings everything to what the playback knows. @param now  seconds; the scene changes some times a
     * second, however often this is called */
    void Take(double now);

    const CBoatMdl& Boat() const noexcept { return m_boat; }

    const PlannedRoute& Route() const noexcept { return m_route; }
    /** The drawable of the planned route. */
    CPlanMdl& Plan() noexcept { return m_plan; }

    /** Sets the gain of the sea bed's colours, decibels: see CSeaBedMdl::SetGain(). */
    void SetGain(double decibels) { m_bedMdl.SetGain(decibels); }

    /** How far the boat is beside the planned route, metres, positive to starboard; missing without a
     * position or a plan. */
    double CrossTrack() const;

    /** Whether a drawable is for scenes only, and not for charts. */
    bool IsScenery(const CMdl& mdl) const noexcept { return &mdl == &m_sea; }

private:
    void Restart();
    void TakeTrack();
    void TakeBoat();

    const Playback& m_playback;
    CDspGrp m_group; // first of all: the drawables register with it, and are drawn in this order
    LocalPlane m_plane;
    SeaBed m_bed;
    PlannedRoute m_route;
    CSeaBedMdl m_bedMdl;
    CSeaMdl m_sea;
    CPlanMdl m_plan;
    CTrackMdl m_track;
    CBoatMdl m_boat;
    CMdlPos m_pos;
    std::size_t m_taken = 0; // points of the track
    double m_playTime = 0.0; // of the playback, when it was taken
    double m_now = 0.0;      // of the last call
    double m_next = 0.0;     // when it is taken again
};

} // namespace demo
