#include "controls/CEBtn.h"
#include "platform/Vant.h"
#include "windows/CConsole.h"
#include "windows/detail/LevelRange.h"

#include <afxdlgs.h>

#include <algorithm>

/** @file
 *  The options of a console: the section above its entries, and the choice of the log file. */

using namespace vant::detail;

namespace
{

constexpr int boxW = 90;
constexpr int levelBoxW = 275;
constexpr int gapBeforeFile = 6;
constexpr int browseId = 1;

CString RangeText(int range)
{
    CString text;
    text.Format(range + 1 < levelRanges ? L"Display status %d - %d" : L"Display status %d - %d and above",
                range * levelsPerRange, (range + 1) * levelsPerRange);
    return text;
}

} // namespace

CCtrlCat* CConsole::OptionCat()
{
    const bool isNew = !m_options;
    m_options = GetCat(L"Options", CCtrlCat::kindStacked, 1, 0);
    if (isNew)
        m_options->expanded = 0;
    return m_options;
}

/** A check box that switches `bits` of a variable of the console. */
template <class T>
void CConsole::InsOption(CCtrlCat& cat, int width, const CString& caption, const CString& tipText,
                         T& variable, unsigned int bits)
{
    CECtrl* const box = cat.InsCtrl(width, CECtrl::typeCheck, variable);
    box->text = caption;
    box->tip = tipText;
    box->aux0 = static_cast<int>(bits);
    box->SetCallback(this, static_cast<CEVal::CbNone>(&CConsole::OnOption));
}

void CConsole::InsLogTo(CCtrlCat& cat)
{
    InsOption(cat, boxW, L"Log To", L"Append the entries to the file", logTo, 1);
    CEBtn* const browse =
        cat.InsBtn(boxW, L"Browse...", browseId, this, static_cast<CEVal::CbNone>(&CConsole::OnBrowse));
    browse->tip = L"Select CSV to save data to";
    cat.ShiftX(gapBeforeFile);
    cat.InsCtrl(400, CECtrl::typeText, fileName);
    cat.NewLn();
}

void CConsole::SetupCtrls()
{
    CCtrlCat& cat = *OptionCat();
    InsOption(cat, boxW, L"Detailed", L"Display the detailed level of information", detail, 1);
    InsOption(cat, boxW, L"Verbose", L"Display the verbose level of information", filter, kindVerbose);
    cat.NewLn();
    InsLogTo(cat);
    for (int range = 0; range < levelRanges; ++range) {
        // The tip tells the caption whole where the window cuts it off.
        InsOption(cat, levelBoxW, RangeText(range), RangeText(range), filter, RangeBit(range));
        cat.NewLn();
    }
}

/** Puts the boxes of the levels side by side as far as the window is wide enough, one column below the other.
 */
void CConsole::ArrangeLevels()
{
    if (!m_options)
        return;
    std::vector<CECtrl*> boxes;
    for (CVantPtr* pos = m_options->ctrls.GetHeadPos(); pos;) {
        CECtrl* const ctrl = m_options->ctrls.GetNext(pos);
        if (ctrl->pVal == &filter && (static_cast<unsigned int>(ctrl->aux0) & rangeBits))
            boxes.push_back(ctrl);
    }
    if (boxes.empty())
        return;
    const int left = boxes.front()->rc.left;
    const int top = boxes.front()->rc.top;
    const int columns = std::clamp((ClientRc().Width() - left) / levelBoxW, 1, 2);
    const int rows = levelRanges / columns;
    for (int i = 0; i < static_cast<int>(boxes.size()); ++i) {
        const CPoint at(left + i / rows * levelBoxW, top + i % rows * m_options->hdrH);
        boxes[static_cast<std::size_t>(i)]->rc = CRect(at, boxes[static_cast<std::size_t>(i)]->rc.Size());
    }
    m_options->SetHeight(top + rows * m_options->hdrH);
}

void CConsole::OnOption()
{
    {
        const CSingleLock guard(&entryLock, TRUE);
        changed = 1;
    }
    if (m_hWnd)
        Refresh();
}

void CConsole::OnBrowse()
{
    CString chosen = fileName;
    CString nameOnly;
    Vant::NamePart(chosen, nameOnly);
    const CString folder = chosen.Left(chosen.GetLength() - nameOnly.GetLength());
    // Lines are appended, so a file that is there needs no question.
    CFileDialog dialog(FALSE, L"csv", nameOnly, OFN_HIDEREADONLY | OFN_NOCHANGEDIR,
                       L"CSV Files (*.csv)|*.csv|All Files|*.*||", this);
    dialog.m_ofn.lpstrTitle = L"Select CSV to save data to";
    // The folder need not exist before the first line; the dialog then starts in one that does.
    dialog.m_ofn.lpstrInitialDir = folder;
    if (dialog.DoModal() != IDOK)
        return;
    chosen = dialog.GetPathName();
    {
        const CSingleLock guard(&entryLock, TRUE);
        fileName = chosen;
    }
    UpdCtrls();
}
