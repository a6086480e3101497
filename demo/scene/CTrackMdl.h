#pragma once

#include "demo/detail/LocalPlane.h"
#include "demo/detail/Playback.h"
#include "demo/detail/TrackRuns.h"
#include "display/CMdl.h"
#include "display/CRgb.h"

class CPal;

namespace demo
{

/** The boat's track, as the playback knows it, in the colours of the depths that were read there: only what a
 * view shows of it, and counted from the view's origin, so that a long track costs little and lies exactly
 * where it belongs. */
class CTrackMdl : public CMdl
{
public:
    /** All must outlive it. @param pal  gives the depths their colours */
    CTrackMdl(const Playback& playback, const LocalPlane& plane, const CPal& pal);

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;

private:
    void DrawLines(double width) const;

    const Playback& m_playback;
    const LocalPlane& m_plane;
    const CPal& m_pal;
    TrackRuns m_runs;            // of the last drawing
    std::vector<CRgb> m_colours; // of its vertices
};

} // namespace demo
