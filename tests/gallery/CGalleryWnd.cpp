#include "CGalleryWnd.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

CCounter counter;

namespace
{

constexpr const wchar_t* stateNames[stateCount] = {L"Normal",  L"Hot",      L"Focused",
                                                   L"Pressed", L"Disabled", L"Invalid"};
constexpr int scales[] = {96, 144, 192}; // DPI
constexpr UINT scaleMsg = WM_APP + 1;

// Units. All even, so that three halves of them are whole pixels too.
constexpr int left = 16;
constexpr int namesW = 116;
constexpr int cellsW = 640;
constexpr int between = 8; // cells
constexpr int titleH = 20;
constexpr int codeDrop = 18;  // from the name to the code
constexpr int leastRowH = 38; // for both
constexpr int rowGap = 8;
constexpr int wideGap = 8; // more, between rows of two lines

constexpr int levelOfCodes = 2;

constexpr UINT_PTR updateTimer = 1;
constexpr UINT updatePeriod = 100; // milliseconds

constexpr unsigned pictured = Has(stHot) | Has(stFocused) | Has(stPressed);

CEStyle TitleStyle()
{
    CEStyle style;
    style.pFont = &Vant::smallF;
    style.txtCol = Vant::cyan;
    return style;
}

} // namespace

BEGIN_MESSAGE_MAP(CGalleryWnd, CVantWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_TIMER()
    ON_MESSAGE(WM_DPICHANGED, &CGalleryWnd::OnDpiChanged)
    ON_MESSAGE(scaleMsg, &CGalleryWnd::OnScaleChosen)
END_MESSAGE_MAP()

CGalleryWnd::CGalleryWnd()
{
    name = L"Gallery";
}

void CGalleryWnd::SetupCtrls()
{
    AddOptions();
    for (const Section& section : {FieldRows(), ButtonRows(), WideRows(), DrawnRows(), MenuRows()})
        AddSection(section);
}

/** The window is a category itself, whose controls stand above the sections. */
void CGalleryWnd::AddOptions()
{
    ctrlH = 24;
    SetX(left);
    CECtrl& codes = *InsCtrl(110, CECtrl::typeCheck, m_codes);
    codes.text = L"Type codes";
    codes.tip = L"Controls belong to user levels: the codes to level 2";
    codes.SetCallback(this, static_cast<CEVal::CbNone>(&CGalleryWnd::OnCodes));
    CECtrl& us = *InsCtrl(160, CECtrl::typeCheck, m_us);
    us.text = L"US customary units";
    us.SetCallback(this, static_cast<CEVal::CbNone>(&CGalleryWnd::OnUnits));
    auto& scale = static_cast<CEBtnList&>(*InsCtrl(210, CECtrl::typeBtnList, m_scale));
    scale.AddBtns(L"100 %|150 %|200 %");
    scale.SetCallback(this, static_cast<CEVal::CbNone>(&CGalleryWnd::OnScale));
    ShiftX(24);
    InsText(120, L"Callbacks called:");
    InsCtrl(60, CECtrl::typeText, counter.count);
    NewLn();
    ShiftY(8);
}

void CGalleryWnd::AddSection(const Section& section)
{
    CCtrlCat& cat = *GetCat(section.name, kindStacked, 1, 0);
    cat.SetPos(left, 10);
    for (const Row& row : section.rows)
        AddRow(cat, row, section.columns,
               section.columns == 3 || (section.columns > 1 && &row == &section.rows.front()));
}

void CGalleryWnd::AddRow(CCtrlCat& cat, const Row& row, int columns, bool withTitles)
{
    const CEStyle title = TitleStyle();
    const int pitch = (cellsW + between) / (columns > 1 ? columns : stateCount);
    const int width = pitch - between;

    cat.ctrlH = row.height;
    CECtrl* model = nullptr;
    if (row.states & pictured) {
        cat.SetX(left + namesW);
        model = row.insert(cat, width, stHot);
        model->state = CECtrl::stEnabled; // not to be seen
    }
    const int lines = columns > 1 ? stateCount / columns : 1;
    for (int line = 0; line < lines; ++line) {
        const int first = line * columns;
        if (withTitles) {
            cat.ctrlH = titleH;
            for (int i = 0; i < columns; ++i) {
                cat.SetX(left + namesW + i * pitch);
                cat.InsText(width, stateNames[first + i], &title);
            }
            cat.ShiftY(titleH);
        }
        if (line == 0)
            AddName(cat, row);
        cat.ctrlH = row.height;
        for (int i = 0; i < columns; ++i) {
            cat.SetX(left + namesW + i * pitch);
            AddCell(cat, row, static_cast<State>(first + i), width, model);
        }
        // Beside two lines there is room for name and code.
        cat.ShiftY((lines > 1 ? row.height : std::max(row.height, leastRowH)) + rowGap);
    }
    if (lines > 1)
        cat.ShiftY(wideGap);
}

void CGalleryWnd::AddName(CCtrlCat& cat, const Row& row)
{
    CEStyle bold;
    bold.pFont = &Vant::boldF;
    const CEStyle small = TitleStyle();
    CString code = L"no code";
    if (row.code)
        code.Format(L"%d", row.code);
    cat.ctrlH = titleH;
    const int line = cat.curY;
    cat.SetX(left);
    cat.InsText(namesW - between, row.what, &bold);
    cat.SetPos(left, line + codeDrop);
    cat.lvlMask = levelOfCodes;
    cat.InsText(namesW - between, code, &small);
    cat.lvlMask = 1;
    cat.SetPos(left, line);
}

void CGalleryWnd::AddCell(CCtrlCat& cat, const Row& row, State state, int width, CECtrl* model)
{
    if (!(row.states & Has(state))) {
        cat.ctrlH = titleH;
        cat.InsText(width, L"\u2013");
        cat.ctrlH = row.height;
        return;
    }
    if (pictured & Has(state)) {
        m_stills.push_back(new CStill(*model, state, row.what));
        cat.InsCtrl(width, m_stills.back(), 0);
        return;
    }
    CECtrl& ctrl = *row.insert(cat, width, state);
    if (state == stDisabled) {
        // The rule that every control has: it is enabled while a variable has a value.
        static int isAvailable = 0;
        ctrl.enIf = 1;
        ctrl.pEnVar = &isAvailable;
        ctrl.enVal = 1;
    }
    if (state == stInvalid && row.spoil)
        m_spoilt.push_back({&ctrl, row.spoil});
}

int CGalleryWnd::OnCreate(LPCREATESTRUCT cs)
{
    if (CVantWnd::OnCreate(cs) == -1)
        return -1;
    for (const auto& [ctrl, spoil] : m_spoilt)
        spoil(*ctrl);
    SetTimer(updateTimer, updatePeriod);
    return 0;
}

void CGalleryWnd::OnDestroy()
{
    CVantWnd::OnDestroy();
    ::PostQuitMessage(0);
}

/** Lamps blink, attempts time out and buttons follow their variables by this. */
void CGalleryWnd::OnTimer(UINT_PTR timer)
{
    if (timer != updateTimer)
        return CVantWnd::OnTimer(timer);
    m_tm += updatePeriod / 1000.0;
    CECtrl::UpdateAuCtrls(m_tm);
    if (counter.count != m_shownCount) {
        m_shownCount = counter.count;
        UpdateLabels();
    }
}

void CGalleryWnd::DrawEWnd(CEWnd* ctrl, CDC* dc, CRect& r)
{
    DrawRoll(*ctrl, *dc, r);
}

bool CGalleryWnd::TakeStills()
{
    const HWND focus = ::GetFocus();
    const int count = counter.count; // what is posed calls its callbacks too
    bool isGood = true;
    for (CStill* const still : m_stills) {
        still->Take();
        if (still->LooksNormal()) {
            isGood = false;
            std::printf("%ls: %ls looks as normal does\n", static_cast<LPCWSTR>(still->what),
                        stateNames[still->posed]);
        }
    }
    ::SetFocus(focus);
    counter.count = count;
    return isGood;
}

void CGalleryWnd::ShowAt(int dpi, const CRect& place)
{
    SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
}

LRESULT CGalleryWnd::OnDpiChanged(WPARAM dpi, LPARAM suggested)
{
    const LRESULT result = CVantWnd::OnDpiChanged(dpi, suggested);
    const auto* const chosen = std::find(std::begin(scales), std::end(scales), Dpi().Dpi());
    m_scale = static_cast<int>(chosen - std::begin(scales)); // none is chosen for another one
    TakeStills();
    return result;
}

void CGalleryWnd::OnCodes()
{
    for (CVantPtr* pos = Cats().GetHeadPos(); pos;)
        Cats().GetNext(pos)->ShowLevel(levelOfCodes, m_codes);
}

void CGalleryWnd::OnUnits()
{
    EUnits::system = m_us;
    UpdateAllWnds();
    for (const auto& [ctrl, spoil] : m_spoilt)
        spoil(*ctrl);
}

void CGalleryWnd::OnScale()
{
    // Once the button that was clicked is done.
    PostMessage(scaleMsg);
}

LRESULT CGalleryWnd::OnScaleChosen(WPARAM, LPARAM)
{
    // As large in units as it was, which is what the system suggests.
    const CDpi from = Dpi();
    const CDpi to(scales[m_scale]);
    CRect place;
    GetWindowRect(place);
    const CSize size = to.ToPx(from.ToUnits(CRect(CPoint(0, 0), place.Size()))).Size();
    place = CRect(place.TopLeft(), size);
    ShowAt(to.Dpi(), place);
    return 0;
}
