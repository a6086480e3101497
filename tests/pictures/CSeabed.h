#pragma once

#include <VantCore.h>

#include <vector>

/** A square of sea bed, coloured by its depth. */
class CSeabed : public CMdl
{
public:
    /** @param centre  display coordinates, at the surface */
    explicit CSeabed(const CV3& centre);

    /** Depth at a place, metres below the surface; offsets from the centre. */
    static double DepthAt(double east, double north);

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;
    void OnHit(CDsp& dsp, CDspMHit& hit) override;

private:
    /** As OpenGL's GL_C4F_N3F_V3F. */
    struct Corner {
        float colour[4];
        float normal[3];
        float place[3];
    };

    CV3 m_centre;
    std::vector<Corner> m_corners;
    std::vector<unsigned> m_faces; // quads
};
