#include "controls/CCtrlCat.h"

#include "controls/CEGrid.h"
#include "controls/CELabel.h"
#include "controls/CEText.h"
#include "controls/CEWnd.h"
#include "controls/RecordingWnd.h"
#include "controls/WndTest.h"
#include "settings/CESet.h"

namespace
{

using testing::ElementsAre;

class CCtrlCatTest : public WndTest
{
protected:
    static std::vector<CRect> Places(const CCtrlCat& cat)
    {
        std::vector<CRect> places;
        for (CVantPtr* pos = cat.ctrls.GetHeadPos(); pos;)
            places.push_back(cat.ctrls.GetNext(pos)->rc);
        return places;
    }
};

} // namespace

TEST_F(CCtrlCatTest, CursorMovesAndSizeFollows)
{
    CCtrlCat cat;
    EXPECT_EQ(cat.catName, L"ROOT");
    EXPECT_EQ(cat.GetCtrlExtents(), CSize(-1, -1));

    CRect r;
    cat.CalcRect(r, 50, 0);
    EXPECT_EQ(r, CRect(10, 10, 60, 30));
    EXPECT_EQ(cat.GetCtrlWidth(), -1);
    cat.CalcRect(r, 50, 1);
    cat.CalcRect(r, 30, 1);
    EXPECT_EQ(r, CRect(62, 10, 92, 30));
    EXPECT_EQ(cat.GetCtrlExtents(), CSize(94, -1)); // the height counts with the end of the line

    cat.NewLn();
    cat.CalcRect(r, 20, 0);
    EXPECT_EQ(r, CRect(10, 34, 30, 54));
    EXPECT_EQ(cat.GetCtrlExtents(), CSize(94, 34));

    cat.ShiftX(100);
    EXPECT_EQ(cat.GetCtrlWidth(), 110);
    cat.ShiftX(-50);
    EXPECT_EQ(cat.curX, 60);
    EXPECT_EQ(cat.GetCtrlWidth(), 110);
    cat.ShiftY(6);
    EXPECT_EQ(CPoint(cat.curX, cat.curY), CPoint(60, 40));
    cat.ShiftY(-10, 0);
    EXPECT_EQ(CPoint(cat.curX, cat.curY), CPoint(0, 30));
    EXPECT_EQ(cat.GetCtrlHeight(), 40);

    cat.SetPos(200, 100);
    EXPECT_EQ(cat.GetCtrlExtents(), CSize(200, 100));
    cat.SetCtrlY(60);
    EXPECT_EQ(CPoint(cat.curX, cat.curY), CPoint(10, 60));
    cat.SetExtents(7, 8);
    EXPECT_EQ(cat.GetCtrlExtents(), CSize(7, 8));
}

TEST_F(CCtrlCatTest, HeightDependsOnTheKind)
{
    CCtrlCat cat;
    cat.SetHeight(50);
    EXPECT_EQ(cat.GetCtrlHeight(), 50);
    cat.kind = CCtrlCat::anchorCentre;
    EXPECT_EQ(cat.GetCtrlHeight(), 50);
    cat.kind = CCtrlCat::kindStacked;
    EXPECT_EQ(cat.GetCtrlHeight(), 74);
    cat.expanded = 0;
    EXPECT_EQ(cat.GetCtrlHeight(), 24);
    cat.ClearCtrls();
    EXPECT_EQ(cat.GetCtrlHeight(), 24);
}

TEST_F(CCtrlCatTest, InsertedControlsGetPlaceLevelStyleMutexAndWindow)
{
    RecordingWnd wnd;
    CMutex mutex;
    wnd.SetMutex(&mutex);
    CCtrlCat& cat = *wnd.GetCat(L"Sonar", CCtrlCat::kindStacked, 1, 3);
    cat.catStyle.txtCol = RGB(1, 2, 3);
    int gain = 5;
    CECtrl* const first = cat.InsCtrl(40, CECtrl::typeLabel, gain);
    auto* const own = new CEWnd;
    own->style.txtCol = RGB(4, 5, 6);
    EXPECT_EQ(cat.InsCtrl(60, own, 77), own);
    EXPECT_EQ(cat.InsCtrl(60, static_cast<CECtrl*>(nullptr), 78), nullptr);

    EXPECT_THAT(Places(cat), ElementsAre(CRect(25, 10, 65, 30), CRect(67, 10, 127, 30)));
    EXPECT_EQ(first->style.txtCol, RGB(1, 2, 3));
    EXPECT_EQ(own->style.txtCol, RGB(4, 5, 6));
    EXPECT_EQ(own->id, 77);
    for (const CECtrl* ctrl : {first, static_cast<CECtrl*>(own)}) {
        EXPECT_EQ(ctrl->level, 3);
        EXPECT_EQ(ctrl->pMutex, &mutex);
        EXPECT_EQ(ctrl->pWnd, &wnd);
    }
    CMutex another;
    wnd.SetMutex(&another);
    EXPECT_EQ(own->pMutex, &another);
}

TEST_F(CCtrlCatTest, BindsEveryTypeWithItsCode)
{
    CCtrlCat cat;
    void* p = &cat;
    CString text = L"text";
    wchar_t buffer[] = L"buffer";
    wchar_t* pointer = buffer;
    char c = 1;
    short s = 2;
    int i = 3;
    unsigned char uc = 4;
    unsigned short us = 5;
    unsigned int ui = 6;
    float f = 7;
    double d = 8;
    unsigned long ul = 9;
    __int64 big = 10;
    constexpr int code = CECtrl::typeLabel;
    const std::vector<CECtrl*> ctrls = {
        cat.InsCtrl(10, code, p),  cat.InsCtrl(10, code, text), cat.InsCtrl(10, code, c),
        cat.InsCtrl(10, code, s),  cat.InsCtrl(10, code, i),    cat.InsCtrl(10, code, uc),
        cat.InsCtrl(10, code, us), cat.InsCtrl(10, code, ui),   cat.InsCtrl(10, code, f),
        cat.InsCtrl(10, code, d),  cat.InsCtrl(10, code, ul),   cat.InsCtrl(10, code, big),
    };
    const std::vector<void*> variables = {&p, &text, &c, &s, &i, &uc, &us, &ui, &f, &d, &ul, &big};
    for (int type = 0; type < 12; ++type) {
        EXPECT_EQ(ctrls[static_cast<std::size_t>(type)]->type, type);
        EXPECT_EQ(ctrls[static_cast<std::size_t>(type)]->pVal, variables[static_cast<std::size_t>(type)]);
    }
    EXPECT_EQ(cat.InsCtrl(10, code, &p)->pVal, &p);
    // Wide buffers of every kind are fixed texts.
    const std::vector<CECtrl*> texts = {cat.InsCtrl(10, code, buffer), cat.InsCtrl(10, code, pointer),
                                        cat.InsCtrl(10, code, L"buffer")};
    for (const CECtrl* ctrl : texts) {
        EXPECT_EQ(ctrl->type, 1);
        EXPECT_EQ(ctrl->pVal, nullptr);
        EXPECT_EQ(ctrl->text, L"buffer");
    }
}

TEST_F(CCtrlCatTest, MakesControlsByTheirCodes)
{
    CCtrlCat cat;
    const int codes[] = {16, 32, 128, 256, 512, 1024, 2048, 4096, 8192, 16384, 32768, 2097152, 4194304};
    for (const int code : codes) {
        const CECtrl* const ctrl = cat.NewCtrl(10, code);
        ASSERT_NE(ctrl, nullptr) << code;
        EXPECT_EQ(ctrl->ctrlType, code);
    }
    const CPoint cursor(cat.curX, cat.curY);
    int variable = 0;
    for (const int code : {0, 17, 8, 4, -1}) {
        EXPECT_EQ(cat.NewCtrl(10, code), nullptr) << code;
        EXPECT_EQ(cat.InsCtrl(10, code, variable), nullptr) << code;
    }
    EXPECT_EQ(CPoint(cat.curX, cat.curY), cursor);
    EXPECT_EQ(cat.ctrls.GetCount(), static_cast<int>(std::size(codes)));
}

TEST_F(CCtrlCatTest, TextsTagsAndButtons)
{
    CCtrlCat cat;
    CEStyle style;
    style.txtCol = RGB(9, 9, 9);
    const CEText* const text = cat.InsText(100, L"Depth", &style, DT_RIGHT);
    EXPECT_EQ(text->text, L"Depth");
    EXPECT_EQ(text->style.txtCol, RGB(9, 9, 9));
    cat.NewLn();
    cat.leftM = 25;
    cat.NewLn();
    cat.ctrlH = 30;
    const CEText* const tag = cat.InsTag(L"Transmitter");
    EXPECT_EQ(tag->rc, CRect(25, 58, 340, 72));
    EXPECT_EQ(tag->style.pFont, &Vant::smallF);
    // The next line starts at 10, not at the margin, 16 below.
    EXPECT_EQ(CPoint(cat.curX, cat.curY), CPoint(10, 74));
    EXPECT_EQ(cat.GetCtrlHeight(), 74);
    EXPECT_EQ(cat.ctrlH, 30);
    EXPECT_EQ(cat.hdrH, 34);

    CEStyle tagStyle;
    tagStyle.name = L"Tag";
    tagStyle.txtCol = RGB(7, 7, 7);
    CEStyle::AddStyle(tagStyle);
    EXPECT_EQ(cat.InsTag(L"Receiver")->style.txtCol, RGB(7, 7, 7));
    // Styles live as long as the process: under another name this one is out of the way of what runs next.
    CEStyle::GetStyle(L"Tag")->name = L"Tag of a test";
}

namespace
{

struct Anchor {
    int kind;
    CPoint plain;  // of the block
    CPoint headed; // of the block of a category with a header
    CPoint header; // of that header, 200 x 20
};

} // namespace

TEST_F(CCtrlCatTest, AnchorsToNinePlaces)
{
    // A client area of 401 x 303; the block is 65 wide and 37 high. Halves are cut one by one.
    const Anchor anchors[] = {
        {CCtrlCat::anchorTopLeft, {5, 5}, {5, 29}, {5, 5}},
        {CCtrlCat::anchorTopCentre, {168, 5}, {168, 29}, {100, 5}},
        {CCtrlCat::anchorTopRight, {331, 5}, {331, 29}, {196, 5}},
        {CCtrlCat::anchorMiddleLeft, {5, 133}, {5, 133}, {5, 109}},
        {CCtrlCat::anchorCentre, {168, 133}, {168, 133}, {100, 109}},
        {CCtrlCat::anchorMiddleRight, {331, 133}, {331, 133}, {196, 109}},
        {CCtrlCat::anchorBottomLeft, {5, 261}, {5, 237}, {5, 274}},
        {CCtrlCat::anchorBottomCentre, {168, 261}, {168, 237}, {100, 274}},
        {CCtrlCat::anchorBottomRight, {331, 261}, {331, 237}, {196, 274}},
    };
    RecordingWnd wnd;
    std::vector<CECtrl*> ctrls;
    for (const int headed : {0, 1}) {
        for (const Anchor& anchor : anchors) {
            CString category;
            category.Format(L"%d %d", anchor.kind, headed);
            CCtrlCat& cat = *wnd.GetCat(category, anchor.kind, headed, 0);
            ctrls.push_back(cat.InsText(53, L"x"));
            cat.SetHeight(37);
        }
    }
    wnd.CreatePopup(401, 303);
    auto ctrl = ctrls.begin();
    for (const int headed : {0, 1}) {
        for (const Anchor& anchor : anchors) {
            const CPoint origin = headed ? anchor.headed : anchor.plain;
            EXPECT_EQ(PlaceOf(**ctrl), CRect(10, 10, 63, 30) + origin) << anchor.kind << " " << headed;
            ++ctrl;
        }
    }
    std::vector<CPoint> headers;
    for (HWND child = ::GetWindow(wnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const CWnd* const label = CWnd::FromHandlePermanent(child);
        if (dynamic_cast<const CELabel*>(label))
            headers.push_back(PlaceOf(*label).TopLeft());
    }
    std::vector<CPoint> expected;
    for (const Anchor& anchor : anchors)
        expected.push_back(anchor.header);
    EXPECT_THAT(headers, testing::UnorderedElementsAreArray(expected));

    // The places follow the window's size.
    wnd.MoveWindow(0, 0, 501, 403);
    EXPECT_EQ(PlaceOf(*ctrls[8]), CRect(10, 10, 63, 30) + CPoint(431, 361));
}

TEST_F(CCtrlCatTest, AnchoredCategoryWithoutControlsPlacesNothing)
{
    RecordingWnd wnd;
    CCtrlCat& cat = *wnd.GetCat(L"Empty", CCtrlCat::anchorBottomRight, 0, 0);
    wnd.CreatePopup();
    wnd.LayoutWnd();
    EXPECT_EQ(cat.GetCtrlExtents(), CSize(-1, -1));
    EXPECT_EQ(::GetWindow(wnd, GW_CHILD), nullptr);
}

TEST_F(CCtrlCatTest, SwitchesLevelsByExactMatchOnly)
{
    RecordingWnd wnd;
    CCtrlCat& cat = *wnd.GetCat(L"Levels", CCtrlCat::kindStacked, 1, 1);
    const CECtrl* const basic = cat.InsText(20, L"1");
    cat.ShowLevel(2, 1);
    EXPECT_EQ(cat.lvlMask, 3);
    const CECtrl* const both = cat.InsText(20, L"3");
    cat.lvlMask = 2;
    CECtrl* const expert = cat.InsText(20, L"2");
    cat.lvlMask = 3;
    wnd.CreatePopup();

    cat.ShowLevel(2, 0);
    EXPECT_EQ(cat.lvlMask, 1);
    EXPECT_TRUE(IsShown(*basic));
    EXPECT_TRUE(IsShown(*both)) << "level 3 is not level 2";
    EXPECT_FALSE(IsShown(*expert));
    EXPECT_EQ(expert->state, 7);
    // Neither an update nor a layout brings it back.
    cat.UpdCtrls();
    wnd.LayoutWnd();
    EXPECT_FALSE(IsShown(*expert));
    EXPECT_EQ(expert->state, 7);

    cat.ShowLevel(2, 1);
    EXPECT_TRUE(IsShown(*expert));
    EXPECT_EQ(expert->state, 3);

    // A closed section shows nothing, whatever the level.
    cat.ShowLevel(2, 0);
    cat.expanded = 0;
    wnd.LayoutWnd();
    cat.ShowLevel(2, 1);
    EXPECT_FALSE(IsShown(*expert));
    cat.expanded = 1;
    wnd.LayoutWnd();
    EXPECT_TRUE(IsShown(*expert));

    // What the application hides stays hidden.
    expert->state &= ~CECtrl::stShown;
    wnd.LayoutWnd();
    EXPECT_FALSE(IsShown(*expert));
}

TEST_F(CCtrlCatTest, KeepsTheExpandedFlagUnderItsNameWithUnderscores)
{
    CESet stored(1);
    CESetObj& out = *stored.AddCol(L"c")->AddObj(L"o", L"t");
    CCtrlCat cat;
    cat.catName = L"My own  section";
    cat.expanded = 0;
    cat.Settings(out);
    ASSERT_EQ(out.GetCount(), 1);
    EXPECT_EQ(out.GetHead()->m_name, L"My_own__section");

    CESet loaded(0);
    CESetObj& in = *loaded.AddCol(L"c")->AddObj(L"o", L"t");
    in.Add(L"My own  section", L"5");
    cat.Settings(in);
    EXPECT_EQ(cat.expanded, 0);
    in.Add(L"My_own__section", L"7");
    cat.Settings(in);
    EXPECT_EQ(cat.expanded, 7);
}

TEST_F(CCtrlCatTest, DestroyingDeletesControlsAndTheirFlexibleRecords)
{
    const int before = CECtrl::s_eCtrls.GetCount();
    RecordingWnd wnd;
    wnd.minW = 100;
    CEFlex flex(0, 0, 1, 0);
    CCtrlCat& cat = *wnd.GetCat(L"a", CCtrlCat::kindStacked, 0, 0);
    CECtrl* const kept = wnd.InsText(10, L"kept", nullptr, DT_LEFT, &flex);
    CECtrl* const gone = cat.InsText(10, L"gone", nullptr, DT_LEFT, &flex);
    wnd.CreatePopup();
    const HWND window = gone->m_hWnd;
    ASSERT_NE(wnd.GetFlex(gone), nullptr);
    cat.DestroyCtrls();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(wnd.GetFlex(gone), nullptr);
    EXPECT_NE(wnd.GetFlex(kept), nullptr);
    EXPECT_EQ(CPoint(cat.curX, cat.curY), CPoint(25, 10));
    wnd.UpdateFlex();
    cat.InsText(10, L"in a section");
    wnd.GetCat(L"b", CCtrlCat::anchorCentre, 0, 0)->InsText(10, L"in a block");
    wnd.DestroyCtrls();
    EXPECT_EQ(CECtrl::s_eCtrls.GetCount(), before + 2); // the header's box and title
    {
        CCtrlCat alone;
        alone.InsText(10, L"x");
    }
    EXPECT_EQ(CECtrl::s_eCtrls.GetCount(), before + 2);
}

TEST_F(CCtrlCatTest, ClearingForgetsControlsWithoutDeleting)
{
    CCtrlCat cat;
    const std::unique_ptr<CECtrl> ctrl(cat.InsText(10, L"x"));
    cat.NewLn();
    cat.ClearCtrls();
    EXPECT_TRUE(cat.ctrls.IsEmpty());
    EXPECT_EQ(CPoint(cat.curX, cat.curY), CPoint(10, 10));
    EXPECT_EQ(cat.GetCtrlExtents(), CSize(-1, -1));
    EXPECT_EQ(ctrl->text, L"x");
}

TEST_F(CCtrlCatTest, HasRoomForAGrid)
{
    CCtrlCat cat;
    const CEGrid* const inserted = cat.InsGrid(300, L"Log", 5, 150);
    EXPECT_EQ(inserted->rc, CRect(10, 10, 310, 160));
    EXPECT_EQ(inserted->id, 5);
    EXPECT_EQ(inserted->aux1, L"Log");
    EXPECT_EQ(cat.GetCtrlHeight(), 160);
}
