#pragma once

#include <VantCore.h>

#include <deque>

/** A boat on its way, with the track behind it. What follows it follows CBoat::pos. */
class CBoat : public CMdl
{
public:
    enum Part { partHull, partTrack };

    explicit CBoat(const CV3& centre);

    /** Goes on to where it is at a time, seconds. */
    void MoveTo(double t);

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;
    void OnHit(CDsp& dsp, CDspMHit& hit) override;

    CMdlPos pos; ///< "Boat": where it is, and its course

private:
    void DrawHull(double length) const;

    CV3 m_centre;
    std::deque<CV3> m_track; // from the centre
};
