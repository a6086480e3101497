#pragma once

#include "demo/detail/LocalPlane.h"
#include "demo/detail/Playback.h"
#include "demo/detail/TrackRuns.h"
#include "display/CMdl.h"

namespace demo
{

/** The boat's track, as the playback knows it: only what a view shows of it, and counted from the view's
 * origin, so that a long track costs little and lies exactly where it belongs. */
class CTrackMdl : public CMdl
{
public:
    /** Both must outlive it. */
    CTrackMdl(const Playback& playback, const LocalPlane& plane);

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;

private:
    const Playback& m_playback;
    const LocalPlane& m_plane;
    TrackRuns m_runs; // of the last drawing
};

/** What a view shows of the ground: all of it from an orbit camera. */
GroundWindow ShownGround(const CDsp& dsp);

} // namespace demo
