#pragma once

#include "demo/detail/SeaBed.h"
#include "display/CMdl.h"

#include <map>

class CPal;

namespace demo
{

/** The sea bed as it was sounded: a surface in the light, coloured by its depth, that fades where soundings
 * end. */
class CSeaBedMdl : public CMdl
{
public:
    /** @param pal  gives the depths their colours; outlives it */
    explicit CSeaBedMdl(const CPal& pal);

    /** Takes over what has changed of the bed. */
    void Take(SeaBed& bed);
    /** Forgets all. */
    void Clear();

    /** Sets how strongly the colours show: 20 decibels less are a tenth of their share against the
     * background, and from 5 on they show in full. 0 at first. */
    void SetGain(double decibels);

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;

private:
    const CPal& m_pal;
    double m_gain = 0.0; // decibels
    double m_shallowest = 0.0;
    double m_deepest = 0.0;
    std::map<SeaBed::Key, SeaBed::Tile> m_tiles;
};

} // namespace demo
