// CPal: its window.
#include "colour/CColTblCb.h"
#include "colour/CPal.h"
#include "colour/detail/BarPainter.h"
#include "controls/detail/CtrlText.h"
#include "platform/Vant.h"

#include <afxdlgs.h>
#include <algorithm>
#include <utility>

using vant::detail::BarPainter;

BEGIN_MESSAGE_MAP(CPal, CVantWnd)
    ON_WM_CREATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_SETCURSOR()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

namespace
{

// Lengths of the window, units.
constexpr int fieldW = 60;
constexpr int tableW = 192;
constexpr int gapBelow = 5; // the controls
constexpr int nameH = 20;   // the table's name, above the bar
constexpr int barH = 22;
constexpr int scaleH = BarPainter::markSize + 16;
constexpr int edge = 10; // below the scale

CEVal::CbNone Update()
{
    return static_cast<CEVal::CbNone>(&CPal::UpdatePal);
}

/** The directory of a file, with its backslash. */
CString DirOf(const CString& file)
{
    CString name;
    Vant::NamePart(file, name);
    return file.Left(file.GetLength() - name.GetLength());
}

CColTbl* TableOfFile(const CString& file)
{
    for (CVantPtr* pos = CColTbl::s_colTbls.GetHeadPos(); pos;) {
        CColTbl* const tbl = CColTbl::s_colTbls.GetNext(pos);
        if (tbl && tbl->file.CompareNoCase(file) == 0)
            return tbl;
    }
    return nullptr;
}

} // namespace

void CPal::SetupCtrls()
{
    InsTag(L"Select the palette range and colour table");
    InsText(fieldW, L"Start");
    InsText(tableW, L"Colour Table");
    InsText(fieldW, L"End");
    NewLn();
    InsCtrl(fieldW, CECtrl::typeEdit, start)->SetCallback(this, Update());
    auto* const tables = new CColTblCb(&master);
    tables->style = catStyle;
    tables->SetCallback(this, Update());
    InsCtrl(tableW, tables, 0);
    InsCtrl(fieldW, CECtrl::typeEdit, end)->SetCallback(this, Update());
    NewLn();
    ShiftY(gapBelow);
    m_barTop = curY;
    SetHeight(m_barTop + nameH + barH + scaleH + edge);
}

int CPal::OnCreate(LPCREATESTRUCT cs)
{
    if (CVantWnd::OnCreate(cs) == -1)
        return -1;
    PlaceBar();
    return 0;
}

void CPal::LayoutWnd(int quiet)
{
    CVantWnd::LayoutWnd(quiet);
    PlaceBar();
}

void CPal::PlaceBar()
{
    if (!m_hWnd)
        return;
    const int left = x + leftM;
    const int top = y - ScrollPos() + m_barTop + nameH;
    const CRect place(left, top, std::max<int>(left, ClientRc().right - leftM), top + barH);
    if (std::exchange(barRc, place) != place)
        Invalidate();
}

void CPal::Draw(CDC* dc)
{
    CVantWnd::Draw(dc);
    if (barRc.IsRectEmpty())
        return;
    catStyle.Set(dc);
    const CRect nameRc(barRc.left, barRc.top - nameH, barRc.right, barRc.top);
    vant::detail::DrawLine(*dc, master.name, nameRc, DT_LEFT);
    const BarPainter bar{working, start, end, wrap != 0};
    bar.DrawStrip(*dc, barRc);
    dc->SelectObject(&Vant::darkL);
    bar.DrawScale(*dc, barRc);
}

/** Turns the table to an offset from 0 up to its size. */
void CPal::TurnTo(long long by)
{
    const auto size = static_cast<long long>(master.cols.GetSize());
    if (size == 0)
        return;
    const auto to = static_cast<int>((by % size + size) % size);
    if (to != offset)
        Scroll(to);
}

void CPal::OnLButtonDown(UINT flags, CPoint point)
{
    if (!barRc.PtInRect(Dpi().ToUnits(point)))
        return CVantWnd::OnLButtonDown(flags, point);
    dragging = 1;
    m_dragX = point.x;
    m_dragOffset = offset;
    SetCapture();
    // The last thing: a field that loses the focus calls its callbacks.
    SetFocus();
}

void CPal::OnMouseMove(UINT flags, CPoint point)
{
    if (!dragging)
        return CVantWnd::OnMouseMove(flags, point);
    // The whole bar is one turn of the table.
    const long long width = std::max(1, Dpi().ToPx(barRc).Width());
    const long long entries = 2LL * (point.x - m_dragX) * master.cols.GetSize();
    TurnTo(m_dragOffset + (entries + (entries < 0 ? -width : width)) / (2 * width));
}

void CPal::OnLButtonUp(UINT flags, CPoint point)
{
    if (!dragging)
        return CVantWnd::OnLButtonUp(flags, point);
    dragging = 0;
    ::ReleaseCapture();
}

void CPal::OnCaptureChanged(CWnd* wnd)
{
    // Another window took the mouse: the table stays as it was turned.
    dragging = 0;
    CVantWnd::OnCaptureChanged(wnd);
}

BOOL CPal::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
{
    CPoint at;
    ::GetCursorPos(&at);
    ScreenToClient(&at);
    if (hitTest != HTCLIENT || wnd != this || !barRc.PtInRect(Dpi().ToUnits(at)))
        return CVantWnd::OnSetCursor(wnd, hitTest, message);
    ::SetCursor(::LoadCursorW(nullptr, IDC_SIZEWE));
    return TRUE;
}

void CPal::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    if (key == VK_LEFT)
        TurnTo(offset - 1LL);
    else if (key == VK_RIGHT)
        TurnTo(offset + 1LL);
    else
        CVantWnd::OnKeyDown(key, repeats, flags);
}

void CPal::Browse()
{
    // The dialog must not make its directory the program's.
    constexpr DWORD flags = OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR;
    CFileDialog dialog(TRUE, L"clt", L"*.clt", flags, L"CLT Files (*.clt)|*.clt|All Files|*.*||", this);
    const CString dir = DirOf(master.file);
    dialog.m_ofn.lpstrTitle = L"Select palette to load";
    dialog.m_ofn.lpstrInitialDir = dir.IsEmpty() ? nullptr : static_cast<LPCWSTR>(dir);
    if (dialog.DoModal() != IDOK)
        return;
    const CString path = dialog.GetPathName();
    master.Load(path);
    // What was read is no copy of the table that was chosen before.
    if (master.file == path)
        master.source = TableOfFile(path);
    UpdatePal();
}
