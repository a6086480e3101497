#pragma once

#include "CStill.h"

#include <vector>

/** The gallery: sections of rows, each of a control in all of its states. The columns normal, disabled and
 * invalid are controls at work; hot, focused and pressed are pictures of one that is. */
class CGalleryWnd : public CVantWnd
{
public:
    static constexpr int contentW = 792; ///< units

    CGalleryWnd();

    void SetupCtrls() override;
    void DrawEWnd(CEWnd* ctrl, CDC* dc, CRect& r) override;

    /** Takes the pictures of states anew. @return whether each of them can be told from the normal state;
     * those that cannot are printed */
    bool TakeStills();
    /** Height of all that there is to scroll through, units. */
    int ContentH() const { return GetMgrY() + ScrollPos(); }
    /** Shows everything for a scale, as the system has it done when a window comes to another monitor.
     *  @param place  of the window, pixels */
    void ShowAt(int dpi, const CRect& place);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg LRESULT OnDpiChanged(WPARAM dpi, LPARAM suggested);
    afx_msg LRESULT OnScaleChosen(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    struct Spoilt {
        CECtrl* ctrl;
        Row::SpoilFn spoil;
    };

    void AddOptions();
    void AddSection(const Section& section);
    void AddRow(CCtrlCat& cat, const Row& row, int columns, bool withTitles);
    void AddName(CCtrlCat& cat, const Row& row);
    void AddCell(CCtrlCat& cat, const Row& row, State state, int width, CECtrl* model);
    void OnCodes();
    void OnUnits();
    void OnScale();

    std::vector<CStill*> m_stills; // of the categories
    std::vector<Spoilt> m_spoilt;
    int m_codes = 1;
    int m_us = 0;
    int m_scale = 0;
    int m_shownCount = 0;
    double m_tm = 0; // seconds
};
