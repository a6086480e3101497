#pragma once

#include "windows/CConsole.h"

/** The console of the alarms. Beside each alarm stands a check box, which acknowledges it: the alarm is
 * dimmed until its next update (CConsole::kindChecked). An alarm at level 1 that is not acknowledged has a
 * red row, one at a negative level is over.
 *
 *  A click on a box toggles it, each click of a double click too; a click on a text selects the alarm, a
 * double click also toggles it. Up, Down, Page Up, Page Down, Home and End select, Space toggles what is
 * selected. */
class VANT_API CCslAlm : public CConsole
{
    DECLARE_DYNAMIC(CCslAlm)

public:
    CCslAlm();

    /** Acknowledges the alarm `id`, or takes that back; nothing if there is none. Callable from any thread.
     */
    void CheckEntry(unsigned long id, int check);

    /** Draws the check box of an entry in the middle of `r` (units). */
    void DrawChk(CDC* dc, const CRect& r, const CECEntry& entry);

    /** Whether an alarm is selected, and which. */
    bool GetSelected(unsigned long& id) const noexcept;

protected:
    CString Summary(int total) const override;
    int RowH() const override;
    void DrawLine(CDC* dc, const CRect& r, const CECEntry& line) override;
    void OnLineClick(int line, CPoint point, bool twice) override;
    bool OnListKey(UINT key) override;

private:
    int SelectedLine() const;
    void Select(int line);
    void Toggle(int line);

    unsigned int m_selId = 0;
    bool m_isSel = false;
};
