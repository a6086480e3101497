#pragma once

#include "colour/CColTbl.h"
#include "controls/CECb.h"

/** A combo box in which the user chooses one of the loaded tables (CColTbl::s_colTbls) for a table of the
 * application: a copy, whose CColTbl::source it sets.
 *
 *  Entries are drawn as strips, with CECb::drawOpt turning them round. The list is filled anew whenever it
 * opens. A choice is assigned into the table before the callbacks are called; "<Black>", which stands for no
 * table, takes the source away and deliberately leaves the colours as they are. */
class VANT_API CColTblCb : public CECb
{
    DECLARE_DYNAMIC(CColTblCb)

public:
    CColTblCb();
    /** @param colTbl  the table to choose for, which must outlive the control; may be null */
    explicit CColTblCb(CColTbl* colTbl);

    CColTbl* pTbl = nullptr; ///< the table that is chosen for; bind another with SetTbl(). Not owned.

    /** Binds the control to a table, or with null to none. */
    void SetTbl(CColTbl* colTbl);

    /** Copies the source, with the colours that it has now, into the bound table, and calls the callbacks. A
     * table without a source stays as it is. */
    void Execute() override;

    /** Fills a list: "<Black>", which has no table, and one entry for each loaded table, with its name and
     * the table as its item. @return the entry of the bound table's source; "<Black>" without one, and null
     * for a source that is not in the list */
    CELEnt* FillCombo(CEList& list, void* data);
    /** Draws the table of an entry as a strip inside `place`, upright if the combo box is
     * (CECb::IsVertical()); an entry without a table shows its text. The background is black if `selected` is
     * not 0, else dark grey; afterwards Vant::blueL is selected. */
    void DrawEntry(CDC* dc, const CRect& place, CELEnt* ent, int selected);
};
