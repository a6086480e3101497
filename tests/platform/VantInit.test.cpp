#include "platform/PlatformTest.h"
#include "platform/detail/Skins.h"
#include "resources/Skins.h"
#include "support/GdiCount.h"

#include <algorithm>

namespace
{

using testing::Each;
using testing::ElementsAre;

CPen* const pens[] = {&Vant::blackL, &Vant::whiteL,  &Vant::lightL, &Vant::backL, &Vant::medL,
                      &Vant::darkL,  &Vant::blueL,   &Vant::greenL, &Vant::greyL, &Vant::cyanL,
                      &Vant::redL,   &Vant::yellowL, &Vant::tealL,  &Vant::slateL};

CBrush* const brushes[] = {&Vant::blackB, &Vant::whiteB,  &Vant::lightB, &Vant::backB, &Vant::medB,
                           &Vant::darkB,  &Vant::blueB,   &Vant::greenB, &Vant::greyB, &Vant::cyanB,
                           &Vant::redB,   &Vant::yellowB, &Vant::tealB,  &Vant::slateB};

// In the order of loading.
CDC* const skins[] = {&Vant::leds,
                      &Vant::grad1,
                      &Vant::grad2,
                      &Vant::grad3,
                      &Vant::dwnAr,
                      &Vant::grGrad,
                      &Vant::check,
                      &Vant::txt,
                      &Vant::toggle,
                      &Vant::left,
                      &Vant::right,
                      &Vant::slider,
                      &Vant::msgBack,
                      &Vant::msgInfo,
                      &Vant::msgWarn,
                      &Vant::msgStop,
                      &Vant::msgYesBtn,
                      &Vant::msgNoBtn,
                      &Vant::msgBlankBtn,
                      &vant::detail::MenuSkin(),
                      &vant::detail::GlowSkin(),
                      &Vant::process};

constexpr int skinIds[] = {3002,  7003,  7009,  7009,  3001,  3003,  16002, 16003, 16004, 16006, 16007,
                           16008, 16010, 16013, 16012, 16011, 16015, 16016, 16018, 16019, 16021, 16020};

class VantInit : public PlatformTest
{
protected:
    static inline std::vector<int> loaded;
    static inline std::vector<std::string> steps;
    static inline int missing;

    VantInit()
    {
        loaded.clear();
        steps.clear();
        missing = 0;
    }
    ~VantInit() override { Vant::Exit(); }

    /** Bitmaps as wide as their number says, so that they can be told apart; one may be missing. */
    void DrawOwnSkins()
    {
        vant::detail::Calls().loadBitmap = [](int id) -> HBITMAP {
            loaded.push_back(id);
            return id == missing ? nullptr : ::CreateBitmap(id % 1000, 3, 1, 32, nullptr);
        };
    }
};

BITMAP BitmapIn(const CDC& dc)
{
    BITMAP bitmap{};
    ::GetObjectW(::GetCurrentObject(dc.GetSafeHdc(), OBJ_BITMAP), sizeof bitmap, &bitmap);
    return bitmap;
}

COLORREF ColourOf(CPen& pen)
{
    LOGPEN record{};
    EXPECT_EQ(pen.GetLogPen(&record), static_cast<int>(sizeof record));
    EXPECT_EQ(record.lopnStyle, static_cast<UINT>(PS_SOLID));
    EXPECT_EQ(record.lopnWidth.x, 1);
    return record.lopnColor;
}

COLORREF ColourOf(CBrush& brush)
{
    LOGBRUSH record{};
    EXPECT_EQ(brush.GetLogBrush(&record), static_cast<int>(sizeof record));
    EXPECT_EQ(record.lbStyle, static_cast<UINT>(BS_SOLID));
    return record.lbColor;
}

WNDCLASSW ClassNamed(const CString& name)
{
    WNDCLASSW wc{};
    EXPECT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), name, &wc));
    return wc;
}

} // namespace

TEST_F(VantInit, FontsHaveTheirShapes)
{
    Vant::Init();
    struct {
        CFont& font;
        LONG height, weight, angle;
        const wchar_t* face;
    } const rows[] = {
        {Vant::smallF, 14, 400, 0, L"Arial"},  {Vant::normalF, 16, 400, 0, L"Arial"},
        {Vant::boldF, 14, 600, 0, L"Arial"},   {Vant::headF, 30, 400, 0, L"Arial"},
        {Vant::vertF, 12, 400, 900, L"Arial"}, {Vant::scrnF, 20, 400, 0, L"Arial"},
        {Vant::medF, 12, 100, 0, L"Courier"},
    };
    for (const auto& row : rows) {
        LOGFONTW record{};
        ASSERT_NE(row.font.GetLogFont(&record), 0);
        EXPECT_EQ(record.lfHeight, row.height);
        EXPECT_EQ(record.lfWeight, row.weight);
        EXPECT_EQ(record.lfEscapement, row.angle);
        EXPECT_EQ(record.lfOrientation, row.angle);
        EXPECT_STREQ(record.lfFaceName, row.face);
        EXPECT_EQ(record.lfWidth, 0);
        const BYTE rest[] = {record.lfItalic,  record.lfUnderline,     record.lfStrikeOut,
                             record.lfCharSet, record.lfOutPrecision,  record.lfClipPrecision,
                             record.lfQuality, record.lfPitchAndFamily};
        EXPECT_THAT(rest, Each(0));
    }
    EXPECT_EQ(Vant::largeF.GetSafeHandle(), nullptr);
}

TEST_F(VantInit, PensAndBrushesShowTheColoursThatStandWhenItRuns)
{
    const COLORREF back = Vant::back;
    Vant::back = RGB(1, 2, 3);
    Vant::Init();
    Vant::back = back;

    const COLORREF expected[] = {RGB(0, 0, 0), RGB(255, 255, 255), Vant::light, RGB(1, 2, 3), Vant::med,
                                 Vant::dark,   Vant::blue,         Vant::green, Vant::grey,   Vant::cyan,
                                 Vant::red,    Vant::yellow,       Vant::teal,  Vant::slate};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(ColourOf(*pens[i]), expected[i]) << i;
        EXPECT_EQ(ColourOf(*brushes[i]), expected[i]) << i;
    }
}

TEST_F(VantInit, WindowClassesAreRegistered)
{
    Vant::hIcon = ::LoadIconW(nullptr, IDI_WARNING);
    Vant::Init();
    const HICON icon = std::exchange(Vant::hIcon, nullptr);

    const WNDCLASSW wnd = ClassNamed(Vant::wndClass);
    EXPECT_EQ(wnd.style, 0x2008u);
    EXPECT_EQ(wnd.hCursor, ::LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_EQ(wnd.hbrBackground, static_cast<HBRUSH>(Vant::backB));
    EXPECT_EQ(wnd.hIcon, icon);

    const WNDCLASSW ctl = ClassNamed(Vant::ctlClass);
    EXPECT_EQ(ctl.style, 0x2000u);
    EXPECT_EQ(ctl.hCursor, ::LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_EQ(ctl.hbrBackground, static_cast<HBRUSH>(Vant::backB));
    EXPECT_EQ(ctl.hIcon, nullptr);
}

TEST_F(VantInit, SkinsAreLoadedInOrderIntoTheirContexts)
{
    DrawOwnSkins();
    Vant::Init();
    EXPECT_TRUE(std::ranges::equal(loaded, skinIds));
    for (std::size_t i = 0; i < std::size(skins); ++i)
        EXPECT_EQ(BitmapIn(*skins[i]).bmWidth, skinIds[i] % 1000) << skinIds[i];
    EXPECT_EQ(Vant::ctrl.GetSafeHdc(), nullptr);
}

TEST_F(VantInit, LibraryHasABitmapForEverySkin)
{
    Vant::Init();
    for (std::size_t i = 0; i < std::size(skins); ++i) {
        const auto* const drawn = std::ranges::find(vant::skins::kAll, skinIds[i], &vant::skins::Skin::id);
        ASSERT_NE(drawn, std::end(vant::skins::kAll)) << skinIds[i];
        const BITMAP bitmap = BitmapIn(*skins[i]);
        EXPECT_EQ(bitmap.bmWidth, drawn->width) << skinIds[i];
        EXPECT_EQ(bitmap.bmHeight, drawn->height) << skinIds[i];
        EXPECT_EQ(bitmap.bmBitsPixel, 32) << skinIds[i];
    }
}

TEST_F(VantInit, MissingSkinDoesNotStopIt)
{
    DrawOwnSkins();
    missing = 7009;
    Vant::Init();
    EXPECT_TRUE(std::ranges::equal(loaded, skinIds));
    for (std::size_t i = 0; i < std::size(skins); ++i) {
        ASSERT_NE(skins[i]->GetSafeHdc(), nullptr);
        EXPECT_EQ(BitmapIn(*skins[i]).bmWidth, skinIds[i] == missing ? 1 : skinIds[i] % 1000);
    }

    // The bitmap turns up for the next start.
    missing = 0;
    Vant::Exit();
    Vant::Init();
    EXPECT_EQ(BitmapIn(Vant::grad2).bmWidth, 9);
}

TEST_F(VantInit, EveryStepFindsWhatTheEarlierOnesMade)
{
    vant::detail::Startup() = {
        .createToolTip =
            [] {
                steps.emplace_back("tool tip");
                EXPECT_EQ(ClassNamed(Vant::wndClass).hbrBackground, static_cast<HBRUSH>(Vant::backB));
                EXPECT_NE(ClassNamed(Vant::ctlClass).style, 0u);
                EXPECT_NE(Vant::medF.GetSafeHandle(), nullptr);
                EXPECT_NE(Vant::slateL.GetSafeHandle(), nullptr);
                EXPECT_NE(Vant::slateB.GetSafeHandle(), nullptr);
            },
        .prepareConsoles = [] { steps.emplace_back("consoles"); },
        .destroyWindows =
            [] {
                steps.emplace_back("windows");
                EXPECT_NE(Vant::blackL.GetSafeHandle(), nullptr);
                EXPECT_EQ(ClassNamed(Vant::wndClass).hbrBackground, static_cast<HBRUSH>(Vant::backB));
            },
        .releaseLists = [] { steps.emplace_back("lists"); },
    };
    vant::detail::Calls().loadBitmap = [](int id) -> HBITMAP {
        if (id == 3002)
            steps.emplace_back("skins");
        return nullptr;
    };
    Vant::Init();
    EXPECT_THAT(steps, ElementsAre("tool tip", "consoles", "skins"));
    Vant::Exit();
    EXPECT_THAT(steps, ElementsAre("tool tip", "consoles", "skins", "windows", "lists"));
    vant::detail::Startup() = {}; // the fixture stops the platform once more
}

TEST_F(VantInit, ExitDeletesAllButWhatOutlivesIt)
{
    DrawOwnSkins();
    Vant::Init();
    std::vector<HGDIOBJ> handles;
    for (std::size_t i = 0; i < std::size(pens); ++i) {
        handles.push_back(pens[i]->GetSafeHandle());
        handles.push_back(brushes[i]->GetSafeHandle());
    }
    Vant::Exit();

    EXPECT_EQ(ColourOf(Vant::slateL), Vant::slate);
    EXPECT_EQ(ColourOf(Vant::slateB), Vant::slate);
    handles.resize(handles.size() - 2);
    for (std::size_t i = 0; i < handles.size(); ++i) {
        EXPECT_EQ(::GetObjectType(handles[i]), 0u) << i;
        EXPECT_EQ((i % 2 ? static_cast<CGdiObject*>(brushes[i / 2]) : pens[i / 2])->GetSafeHandle(), nullptr);
    }
    LOGFONTW font{};
    EXPECT_NE(Vant::headF.GetLogFont(&font), 0);
    EXPECT_EQ(BitmapIn(Vant::slider).bmWidth, 8);
    // Windows that are still there must not be painted with a brush that is gone.
    EXPECT_NE(::GetObjectType(ClassNamed(Vant::wndClass).hbrBackground), 0u);
    EXPECT_NE(::GetObjectType(ClassNamed(Vant::ctlClass).hbrBackground), 0u);
}

TEST_F(VantInit, ExitWithoutInitDoesNothing)
{
    if (!Vant::wndClass.IsEmpty())
        GTEST_SKIP() << "another test of this process has started the platform";
    Vant::Exit();
    EXPECT_TRUE(Vant::wndClass.IsEmpty());
}

TEST_F(VantInit, StartsAgainAfterExit)
{
    Vant::Init();
    const HWND survivor = ::CreateWindowExW(0, Vant::wndClass, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                            AfxGetInstanceHandle(), nullptr);
    ASSERT_NE(survivor, nullptr);
    Vant::Exit();
    const COLORREF red = std::exchange(Vant::red, RGB(9, 8, 7));
    Vant::Init();
    Vant::red = red;
    EXPECT_EQ(ColourOf(Vant::redL), RGB(9, 8, 7));
    EXPECT_EQ(ClassNamed(Vant::wndClass).hbrBackground, static_cast<HBRUSH>(Vant::backB));
    EXPECT_EQ(::GetClassLongPtrW(survivor, GCLP_HBRBACKGROUND),
              reinterpret_cast<ULONG_PTR>(Vant::backB.m_hObject));
    ::DestroyWindow(survivor);
}

TEST_F(VantInit, ThousandStartsLoseNothing)
{
    Vant::Init();
    DrawOwnSkins(); // takes the place of the library's bitmaps, which are slow to decode a thousand times
    Vant::Init();
    Vant::Exit();
    const int before = vant::test::GdiObjectCount();
    ASSERT_GT(before, 0);
    for (int round = 0; round < 1000; ++round) {
        Vant::Init();
        Vant::Exit();
    }
    EXPECT_EQ(vant::test::GdiObjectCount(), before);

    // Nor does a start without the stop before it.
    Vant::Init();
    const int started = vant::test::GdiObjectCount();
    EXPECT_EQ(started - before, 26); // the pens and brushes that Exit deletes
    Vant::Init();
    EXPECT_EQ(vant::test::GdiObjectCount(), started);
}
