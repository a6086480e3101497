#include "colour/CPal.h"
#include "colour/CPalBar.h"
#include "colour/CPalCb.h"
#include "colour/ColourTest.h"
#include "controls/ControlsTest.h"
#include "support/MessagePump.h"

#include <filesystem>

namespace
{

/** Windows that look at a palette. */
class ShowWnd : public CVantWnd
{
public:
    explicit ShowWnd(CPal& from)
        : pal(&from)
    {
    }
    void SetupCtrls() override
    {
        InsText(60, L"Palette");
        InsCtrl(140, new CPalCb(pal), 0);
        NewLn();
        ctrlH = 44;
        InsCtrl(250, Bar(), 0);
        SetY(curY + 54);
        SetX(leftM);
        ctrlH = 150;
        InsCtrl(64, Bar(), 0);
        ShiftX(20);
        ctrlH = 20;
        InsCtrl(150, Bar(), 0);
    }

    CPal* pal;

private:
    CPalBar* Bar() const
    {
        auto* const bar = new CPalBar;
        bar->Init(pal->working, pal->start, pal->end);
        return bar;
    }
};

/** With VANT_PICTURES naming a directory, what the screen shows is saved there. */
void SaveScreen(const CWnd& wnd, const std::wstring& name)
{
    const wchar_t* const dir = ::_wgetenv(L"VANT_PICTURES");
    if (!dir)
        return;
    for (int i = 0; i < 20; ++i) {
        vant::test::PumpPending();
        ::Sleep(20);
    }
    CRect place;
    wnd.GetWindowRect(&place);
    Canvas canvas(place.Width(), place.Height());
    const HDC screen = ::GetDC(nullptr);
    ::BitBlt(canvas.Dc(), 0, 0, place.Width(), place.Height(), screen, place.left, place.top, SRCCOPY);
    ::ReleaseDC(nullptr, screen);
    canvas.Save(std::filesystem::path(dir) / name);
}

class ColourPictures : public ControlsTest
{
protected:
    ~ColourPictures() override { CColTbl::s_colTbls.RemoveAll(); }
};

TEST_F(ColourPictures, AllThatIsShippedCanBeChosenAndShown)
{
    // They stand beside the programs.
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    CColTbl::EnumColTbls((std::filesystem::path(program).parent_path() / L"clt").c_str());
    ASSERT_EQ(CColTbl::s_colTbls.GetCount(), 6);
    EXPECT_EQ(Alarms().size(), 0u);
    for (const wchar_t* name : {L"Grey", L"Depths", L"Even", L"Diverging", L"Compass", L"Blue Yellow"}) {
        const CColTbl* const tbl = CColTbl::GetColTbl(name);
        ASSERT_NE(tbl, nullptr) << testing::PrintToString(std::wstring(name));
        ASSERT_EQ(tbl->cols.GetSize(), 256u);
        EXPECT_FALSE(*tbl->cols[0] == *tbl->cols[128]);
    }
    ShowParent();
    for (const int dpi : {96, 192}) {
        const CDpi scale(dpi);
        scale.Set(parent);
        parent.SetWindowPos(nullptr, 0, 0, scale.ToPx(346), scale.ToPx(425), SWP_NOMOVE | SWP_NOZORDER);
        CPal pal;
        pal.name = L"Sonar";
        ShowWnd show(pal);
        ASSERT_TRUE(pal.CreateWnd(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 346, 170), &parent, 1));
        pal.SetOption(L"Load", L"Depths");
        pal.end = 120;
        pal.Scroll(0);
        pal.UpdatePal();
        ASSERT_TRUE(show.CreateWnd(L"", WS_CHILD | WS_VISIBLE, CRect(0, 180, 346, 480), &parent, 2));
        SaveScreen(parent, L"palette-" + std::to_wstring(dpi) + L".png");
        show.DestroyWindow();
        pal.DestroyWindow();
    }
}

} // namespace
