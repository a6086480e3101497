#pragma once

#include <VantCore.h>

#include <vector>

/** A trefoil knot, as a drawable of one material. */
class CKnot : public CMdl
{
public:
    CKnot();

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;

private:
    struct Corner {
        float normal[3];
        float place[3];
    };

    void DrawFaces() const;

    std::vector<Corner> m_corners;
    std::vector<unsigned> m_faces; // quads
};
