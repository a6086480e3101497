#pragma once

#include "colour/CPal.h"
#include "controls/CECb.h"

/** A combo box in which the user chooses one of the listed palettes (CPal::s_pals) for a pointer of the
 * application, which is null for none. The list is filled at once and anew whenever it opens; a palette that
 * is deleted has to be taken out of the pointer by the application. */
class VANT_API CPalCb : public CECb
{
    DECLARE_DYNAMIC(CPalCb)

public:
    /** @param pal  the pointer, which must outlive the control */
    explicit CPalCb(CPal*& pal);

    /** Fills a list: "<Select Here>", which is no palette, and one entry for each listed palette, with its
     * window name and the palette as its item. @return the entry of the bound palette; null for one that is
     * not listed */
    CELEnt* FillCombo(CEList& list, void* data);

private:
    CPal*& m_pal;
};
