#include "display/CModel.h"
#include "display/ChartTest.h"
#include "display/Models.h"
#include "support/GdiCount.h"
#include "support/MessagePump.h"

#include <set>

#include <psapi.h>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using namespace vant::detail;

class CGLWndTest : public ViewTest
{
protected:
    static inline std::vector<std::string> calls;
    static inline GLCalls system;

    /** Notes what the windows ask of the driver. */
    void Record()
    {
        calls.clear();
        system = GL();
        GL().createContext = [](HDC dc) {
            calls.push_back("create");
            return system.createContext(dc);
        };
        GL().deleteContext = [](HGLRC rc) {
            calls.push_back("delete");
            return system.deleteContext(rc);
        };
        GL().makeCurrent = [](HDC dc, HGLRC rc) {
            calls.push_back(rc ? "current" : "none");
            return system.makeCurrent(dc, rc);
        };
        GL().shareLists = [](HGLRC from, HGLRC to) {
            calls.push_back("share");
            return system.shareLists(from, to);
        };
        GL().swapBuffers = [](HDC dc) {
            calls.push_back("swap");
            return system.swapBuffers(dc);
        };
    }
};

TEST_F(CGLWndTest, SharesListsBeforeTheContextIsCurrentAndLeavesNoneCurrent)
{
    Record();
    SceneWnd first;
    first.CreatePopup();
    EXPECT_THAT(calls, ElementsAre("create", "create", "share", "current", "none"));
    EXPECT_THAT(alarms, IsEmpty());
    EXPECT_EQ(::wglGetCurrentContext(), nullptr);
    const HGLRC shared = CDsp::s_sharedRC;
    ASSERT_NE(shared, nullptr);

    // A list made in one window is called in another one, and outlives the window it was made in.
    GLuint list = 0;
    first.InContext([&list] {
        list = glGenLists(1);
        glNewList(list, GL_COMPILE);
        glColor3f(0, 1, 0);
        glRectd(0, 0, 50, 50);
        glEndList();
    });
    calls.clear();
    SceneWnd second;
    second.CreatePopup();
    EXPECT_THAT(calls, ElementsAre("create", "share", "current", "none"));
    EXPECT_EQ(CDsp::s_sharedRC, shared);
    first.DestroyWindow();
    second.scene = [list] { glCallList(list); };
    CImage image;
    second.Capture(image, 100, 100);
    EXPECT_EQ(At(image, 10, 90), 0x00FF00u);
    EXPECT_EQ(At(image, 90, 10), 0u);

    calls.clear();
    second.DestroyWindow();
    CDsp::ReleaseLists();
    EXPECT_EQ(CDsp::s_sharedRC, nullptr);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "delete"),
              3); // the window's, its pixel buffer's, the shared
    EXPECT_THAT(alarms, IsEmpty());
}

TEST_F(CGLWndTest, CanBeMadeByNameDestroyedAndCreatedAnew)
{
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CDsp)->CreateObject());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CGLWnd)));
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CVantWnd)));

    SceneWnd wnd;
    CImage image;
    ASSERT_TRUE(image.Create(64, 48, 32));
    EXPECT_EQ(wnd.InitPB(nullptr, 64, 48), 0); // no context yet
    EXPECT_EQ(wnd.CapPB(image), 0);
    wnd.CreatePopup();
    EXPECT_EQ(wnd.CapPB(image), 0); // no buffer yet
    EXPECT_EQ(wnd.InitPB(64, 48), 1);
    wnd.DestroyWindow();
    EXPECT_EQ(wnd.PbWidth(), 0);
    EXPECT_EQ(wnd.PbHeight(), 0);
    EXPECT_EQ(wnd.CapPB(image), 0);
    wnd.CreatePopup();
    EXPECT_EQ(wnd.InitPB(64, 48), 1);
    EXPECT_EQ(wnd.CapPB(image), 1);
    EXPECT_EQ(wnd.renders, 1);
    EXPECT_THAT(alarms, IsEmpty());
}

TEST_F(CGLWndTest, ReportsWhatTheDriverRefusesAndStaysUsable)
{
    GL().shareLists = [](HGLRC, HGLRC) {
        ::SetLastError(ERROR_BUSY);
        return FALSE;
    };
    GL().fontOutlines = [](HDC, DWORD, DWORD, DWORD, GLYPHMETRICSFLOAT*) {
        ::SetLastError(ERROR_FILE_NOT_FOUND);
        return FALSE;
    };
    SceneWnd wnd;
    wnd.CreatePopup();
    const std::wstring busy = Text(Vant::ErrorString(ERROR_BUSY));
    const std::wstring missing = Text(Vant::ErrorString(ERROR_FILE_NOT_FOUND));
    EXPECT_THAT(AlarmTexts(), ElementsAre(L"Error in sharing display lists code = " + busy,
                                          L"Error in generating drawn font code = " + missing));
    alarms.clear();
    wnd.scene = [] {
        CGLWnd::XyText(10, 10, 0, 20, 0, L"nothing to see");
        glRectd(0, 0, 5, 5);
    };
    CImage image;
    wnd.Capture(image, 80, 60);
    EXPECT_THAT(AlarmTexts(), ElementsAre(L"(PB) Error in sharing display lists code = " + busy));
    EXPECT_EQ(Ink(image), CRect(0, 55, 5, 60));

    const ScreenLock screen;
    // No context at all: one alarm about lists that cannot be shared, and a window without a scene.
    alarms.clear();
    GL().createContext = [](HDC) -> HGLRC { return nullptr; };
    SceneWnd bare;
    bare.CreatePopup();
    bare.ShowWindow(SW_SHOWNOACTIVATE);
    bare.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(bare.renders, 0);
    EXPECT_FALSE(bare.CanDraw());
    EXPECT_TRUE(wnd.CanDraw());
    CClientDC dc(&bare);
    std::set<COLORREF> seen;
    for (int x = 0; x < 80; ++x)
        for (int y = 0; y < 30; ++y)
            seen.insert(dc.GetPixel(x, y));
    EXPECT_GT(seen.size(), 1u) << "the window says that nothing can be drawn";
    EXPECT_EQ(bare.InitPB(64, 64), 0);
    EXPECT_THAT(AlarmTexts(), ElementsAre(L"Error in sharing display lists code = " + busy));
}

TEST_F(CGLWndTest, AWindowThatGotNoListsTakesNobodysAlong)
{
    const auto makeCurrent = GL().makeCurrent;
    auto refused = std::make_unique<SceneWnd>();
    GL().makeCurrent = [](HDC, HGLRC) { return FALSE; };
    refused->CreatePopup();
    GL().makeCurrent = makeCurrent;

    SceneWnd wnd;
    wnd.CreatePopup();
    wnd.scene = [] { CGLWnd::XyText(10, 10, 0, 20, 0, L"Depth"); };
    refused.reset();
    CImage image;
    for (int i = 0; i < 2; ++i) { // what was let go of is deleted at the beginning of a drawing
        wnd.Capture(image, 80, 60);
        EXPECT_FALSE(Ink(image).IsRectEmpty()) << i;
    }
}

TEST_F(CGLWndTest, DrawsWithInsetsOnTheScreenAndNothingWhileHidden)
{
    const ScreenLock screen;
    SceneWnd wnd;
    wnd.insetLeft = 10;
    wnd.insetTop = 20;
    wnd.insetRight = 30;
    wnd.insetBottom = 40;
    CRect viewport;
    wnd.scene = [&viewport] {
        GLint box[4]{};
        glGetIntegerv(GL_VIEWPORT, box);
        viewport = CRect(CPoint(box[0], box[1]), CSize(box[2], box[3]));
        glColor3f(1, 0, 0);
        glRectd(0, 0, 1000, 1000);
    };
    wnd.CreatePopup(200, 150, CPoint(30, 40));
    Record();
    {
        CClientDC dc(&wnd);
        wnd.Draw(&dc);
    }
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(wnd.renders, 0);

    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    vant::test::PumpPending();
    calls.clear();
    wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_THAT(calls, ElementsAre("current", "swap", "none"));
    EXPECT_EQ(viewport, CRect(10, 40, 170, 130));
    glFinish();
    CClientDC dc(&wnd);
    // Inside the four insets, and just outside each of them: what the scene clears is black.
    EXPECT_EQ(dc.GetPixel(12, 22), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(167, 107), RGB(255, 0, 0));
    for (const CPoint outside : {CPoint(7, 60), CPoint(100, 17), CPoint(173, 60), CPoint(100, 113)})
        EXPECT_EQ(dc.GetPixel(outside.x, outside.y), RGB(0, 0, 0)) << outside.x << ", " << outside.y;

    // A new size shows the scene anew, however the window changed; more insets than window are no error.
    const int before = wnd.renders;
    wnd.SetWindowPos(nullptr, 0, 0, 20, 20, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(vant::test::PumpUntil([&] { return wnd.renders > before; }));
    EXPECT_EQ(viewport.Size(), CSize(0, 0));
}

TEST_F(CGLWndTest, DrawsAnotherWindowWhileOneRenders)
{
    SceneWnd outer;
    SceneWnd inner;
    outer.CreatePopup();
    inner.CreatePopup();
    ASSERT_EQ(inner.InitPB(32, 32), 1);
    CImage innerImage;
    ASSERT_TRUE(innerImage.Create(32, 32, 32));
    outer.scene = [&] {
        inner.CapPB(innerImage);
        inner.DestroyWindow();
        inner.CreatePopup();
        glRectd(0, 0, 8, 8);
    };
    CImage image;
    outer.Capture(image, 64, 64);
    EXPECT_EQ(inner.renders, 1);
    EXPECT_EQ(Ink(image), CRect(0, 56, 8, 64));
    EXPECT_EQ(Ink(innerImage), CRect(0, 0, 0, 0));
    EXPECT_EQ(::wglGetCurrentContext(), nullptr);
}

class ModelMdl : public CMdl
{
public:
    explicit ModelMdl(const CString& file) { EXPECT_EQ(model.Read3DS(file), 1); }
    void Draw(CDsp& dsp) override
    {
        model.DrawModel(dsp);
        dsp.Label({}, L"Round", RGB(255, 255, 255));
    }
    void GetInf(CMdlInf& inf) override { inf.hasExt = model.GetExtents(inf.lower, inf.upper); }

    CModel model;
};

/** A view with everything that it can have, picked in and destroyed, before or after what it follows. */
void RoundOfView(int number, const CString& file)
{
    auto grp = std::make_unique<CDspGrp>();
    auto pos = std::make_unique<CMdlPos>();
    auto mdl = std::make_unique<ModelMdl>(file);
    auto view = std::make_unique<ChartWnd>();
    for (CDspLight& light : view->lights)
        light.on = 1;
    view->graticule = view->northArrow = view->scaleBar = 1;
    view->Open({}, 320, 240);
    view->Follow(pos.get());
    pos->SetFromMdl(mdl.get(), {0.5, 0, 0}, 8, 0);
    CImage image;
    view->Capture(image);
    CDspMInf inf;
    EXPECT_EQ(view->Pick(160, 120, inf), 1);
    if (number % 2) {
        view.reset();
    } else {
        grp.reset();
        mdl.reset();
        pos.reset();
    }
}

std::size_t WorkingSet()
{
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.WorkingSetSize;
}

TEST_F(CGLWndTest, RoundsOfWindowsWithPixelBuffersLeaveNothingBehind)
{
    const char* const given = std::getenv("VANT_GL_ROUNDS");
    const int rounds = given ? std::atoi(given) : 40;
    static int contexts;
    static int buffers;
    static std::set<PbufferHandle> live;
    static PbufferCalls real;
    Record();
    SceneWnd keeper; // the lists can be counted as long as one window is there
    keeper.CreatePopup();
    ASSERT_EQ(keeper.InitPB(64, 64), 1);
    contexts = 0;
    GL().createContext = [](HDC dc) {
        ++contexts;
        return system.createContext(dc);
    };
    GL().deleteContext = [](HGLRC rc) {
        --contexts;
        return system.deleteContext(rc);
    };
    GL().makeCurrent = system.makeCurrent;
    real = Pbuffers();
    Pbuffers().createPbuffer = [](HDC dc, int format, int width, int height, const int* attributes) {
        const PbufferHandle made = real.createPbuffer(dc, format, width, height, attributes);
        ++buffers;
        live.insert(made);
        return made;
    };
    Pbuffers().destroyPbuffer = [](PbufferHandle handle) {
        EXPECT_EQ(live.erase(handle), 1u) << "destroyed twice";
        return real.destroyPbuffer(handle);
    };

    const CString file = WriteModel(L"round.3ds", support::Cube());
    const auto round = [&file](int number) {
        RoundOfView(number, file);
        SceneWnd wnd;
        wnd.scene = [] { CGLWnd::XyText(10, 10, 0, 20, 0, L"Round"); };
        wnd.CreatePopup();
        CImage image;
        wnd.Capture(image, 320, 240);
        wnd.Capture(image, 300, 200); // a second buffer in place of the first
        if (number % 2)
            wnd.DestroyWindow(); // else by the object's destructor
    };
    for (int i = 0; i < 10; ++i) // what the driver keeps for good
        round(i);
    const int lists = ListCount(keeper);
    const int gdi = vant::test::GdiObjectCount();
    const int handles = vant::test::KernelHandleCount();
    const std::size_t memory = WorkingSet();
    for (int i = 0; i < rounds; ++i)
        round(i);
    const auto grown = static_cast<long long>(WorkingSet()) - static_cast<long long>(memory);
    std::printf("%d rounds: %d contexts, %d buffers of %d, %d lists, %d GDI objects, %d handles, %lld KB\n",
                rounds, contexts, static_cast<int>(live.size()), buffers, ListCount(keeper) - lists,
                vant::test::GdiObjectCount() - gdi, vant::test::KernelHandleCount() - handles, grown / 1024);
    EXPECT_EQ(contexts, 0);
    EXPECT_THAT(live, IsEmpty());
    EXPECT_EQ(buffers, 3 * (rounds + 10));
    EXPECT_EQ(ListCount(keeper), lists);
    EXPECT_EQ(vant::test::GdiObjectCount(), gdi);
    EXPECT_EQ(vant::test::KernelHandleCount(), handles);
    // A context takes megabytes, a buffer's pixels or a set of glyphs a quarter of one: 10 MB in 40 rounds.
    // The heap's own play is 2.5 to 5.6 MB, in 200 rounds as well.
    EXPECT_LT(grown, 1024LL * (7168 + 32 * rounds));
    Pbuffers() = real;
}

} // namespace
