#include "display/GLTest.h"

#include <cstring>
#include <set>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using namespace vant::detail;

/** A driver that can be told what it lacks. What it does not lack is the real one. */
class Pictures : public GLTest
{
protected:
    static inline GLCalls real;
    static inline std::string missing; // entry point
    static inline std::string extensions;

    static const char* WINAPI Extensions(HDC) { return extensions.empty() ? nullptr : extensions.c_str(); }

    Pictures()
    {
        real = GL();
        missing.clear();
        extensions = "WGL_ARB_multisample WGL_ARB_pbuffer WGL_ARB_pixel_format WGL_ARB_pixel_format_float";
        GL().lookUp = [](LPCSTR name) -> void* {
            if (name == missing)
                return nullptr;
            return name == std::string("wglGetExtensionsStringARB") ? reinterpret_cast<void*>(&Extensions)
                                                                    : real.lookUp(name);
        };
        wnd.CreatePopup();
    }

    /** The alarms of an attempt that fails. */
    std::vector<std::wstring> Failing()
    {
        alarms.clear();
        EXPECT_EQ(wnd.InitPB(64, 48), 0);
        return AlarmTexts();
    }

    SceneWnd wnd;
};

TEST_F(Pictures, AreUprightInImagesOfBothKinds)
{
    // Red in the upper left corner, green in the lower right one, blue in the lower left one.
    wnd.scene = [] {
        glColor3f(1, 0, 0);
        glRectd(0, 40, 20, 60);
        glColor3f(0, 1, 0);
        glRectd(60, 0, 80, 10);
        glColor4f(0, 0, 1, 0.5F);
        glRectd(0, 0, 10, 10);
    };
    for (const bool topDown : {false, true}) {
        CImage image;
        wnd.Capture(image, 80, 60, topDown);
        ASSERT_EQ(image.GetPitch() > 0, topDown);
        EXPECT_EQ(At(image, 10, 10), 0xFF0000u) << topDown;
        EXPECT_EQ(At(image, 10, 19), 0xFF0000u) << topDown;
        EXPECT_EQ(At(image, 10, 20), 0u) << topDown;
        EXPECT_EQ(At(image, 70, 55), 0x00FF00u) << topDown;
        EXPECT_EQ(At(image, 5, 55), 0x0000FFu) << topDown;
        EXPECT_EQ(At(image, 70, 5), 0u) << topDown;
        EXPECT_NEAR(static_cast<const BYTE*>(image.GetPixelAddress(5, 55))[3], 128, 1) << topDown;
    }
    EXPECT_EQ(::wglGetCurrentContext(), nullptr);
}

TEST_F(Pictures, OfAnotherSizeOrDepthAreLeftAsTheyAre)
{
    ASSERT_EQ(wnd.InitPB(80, 60), 1);
    wnd.scene = [] { glRectd(0, 0, 80, 60); };
    struct Size {
        int width, height, depth;
    };
    for (const Size& size : {Size{80, 61, 32}, Size{79, 60, 32}, Size{80, 60, 24}, Size{160, 120, 32}}) {
        CImage image;
        ASSERT_TRUE(image.Create(size.width, size.height, size.depth));
        std::memset(image.GetPixelAddress(0, size.height - 1), 0, 3);
        EXPECT_EQ(wnd.CapPB(image), 0);
    }
    CImage none;
    EXPECT_EQ(wnd.CapPB(none), 0);
    EXPECT_EQ(wnd.renders, 0);
}

TEST_F(Pictures, NeedWhatTheDriverHasAndSayWhatItLacks)
{
    missing = "wglGetExtensionsStringARB";
    EXPECT_THAT(Failing(), ElementsAre(L"Could not get wgl extensions"));
    missing.clear();

    for (const char* const without : {"", "WGL_ARB_multisample", "WGL_ARB_pbuffer_x xWGL_ARB_pbuffer"}) {
        extensions = without;
        EXPECT_THAT(Failing(), ElementsAre(L"PBuffer not supported"));
    }
    CImage image;
    ASSERT_TRUE(image.Create(64, 48, 32));
    EXPECT_EQ(wnd.CapPB(image), 0);
    EXPECT_EQ(wnd.renders, 0);

    extensions = "WGL_ARB_pbuffer WGL_ARB_pixel_format_float";
    for (const char* const name : {"wglCreatePbufferARB", "wglGetPbufferDCARB", "wglReleasePbufferDCARB",
                                   "wglDestroyPbufferARB", "wglQueryPbufferARB"}) {
        missing = name;
        EXPECT_THAT(Failing(), ElementsAre(L"Could not find one or all function pointers for pbuffer"))
            << name;
    }
    missing.clear();
    EXPECT_THAT(Failing(), ElementsAre(L"Could not get wgl pixel format"));

    extensions = "WGL_ARB_pixel_format WGL_ARB_pbuffer";
    missing = "wglChoosePixelFormatARB";
    EXPECT_THAT(Failing(), ElementsAre(L"Could not get a valid function for pixel format"));
    EXPECT_EQ(alarms[0].id, 0u);
    EXPECT_EQ(alarms[0].level, 1);
    EXPECT_EQ(wnd.PbWidth(), 0);

    missing.clear();
    EXPECT_EQ(wnd.InitPB(64, 48), 1);
    EXPECT_EQ(wnd.CapPB(image), 1);
}

TEST_F(Pictures, TellWhichAttributeNoFormatHas)
{
    static std::vector<std::vector<int>> asked;
    asked.clear();
    ASSERT_EQ(wnd.InitPB(64, 48), 1);
    Pbuffers().choosePixelFormat = [](HDC, const int* attributes, const FLOAT* floats, UINT, int*,
                                      UINT* count) -> BOOL {
        EXPECT_EQ(floats, nullptr);
        std::vector<int> list;
        for (; *attributes; attributes += 2)
            list.insert(list.end(), {attributes[0], attributes[1]});
        asked.push_back(list);
        *count = list.size() == 2 ? static_cast<UINT>(asked.size()) : 0;
        return list.size() == 2 && list[0] != 0x2022; // the depth's own question fails altogether
    };
    EXPECT_THAT(Failing(), ElementsAre(L"Could not get a valid pixel format", L"CGLWnd::InitPB 2",
                                       L"CGLWnd::InitPB 3", L"CGLWnd::InitPB 4", L"CGLWnd::InitPB 5",
                                       L"CGLWnd::InitPB 6", L"CGLWnd::InitPB 7", L"CGLWnd::InitPB 8",
                                       L"CGLWnd::InitPB 0", L"CGLWnd::InitPB 10"));
    for (std::size_t i = 1; i < alarms.size(); ++i)
        EXPECT_EQ(alarms[i].id, 8800 + i);
    ASSERT_EQ(asked.size(), 10u);
    EXPECT_THAT(asked[0], ElementsAre(0x2010, 1, 0x202D, 1, 0x2015, 8, 0x2019, 8, 0x2017, 8, 0x201B, 8,
                                      0x2022, 16, 0x2011, 0));
    const std::vector<std::vector<int>> alone(asked.begin() + 1, asked.end());
    EXPECT_EQ(alone, (std::vector<std::vector<int>>{{0x2010, 1},
                                                    {0x202D, 1},
                                                    {0x2071, 1},
                                                    {0x2015, 8},
                                                    {0x2019, 8},
                                                    {0x2017, 8},
                                                    {0x201B, 8},
                                                    {0x2022, 16},
                                                    {0x2011, 0}}));
    // The buffer of before is still there.
    EXPECT_EQ(wnd.PbWidth(), 64);
    CImage image;
    wnd.Capture(image, 64, 48);
}

TEST_F(Pictures, KeepThePreviousBufferWhenANewOneFailsAndFreeEachOnce)
{
    static PbufferCalls system;
    static std::set<PbufferHandle> live;
    static std::vector<std::string> order;
    live.clear();
    ASSERT_EQ(wnd.InitPB(8, 8), 1); // looks everything up
    wnd.DestroyWindow();
    system = Pbuffers();
    Pbuffers().createPbuffer = [](HDC dc, int format, int width, int height, const int* attributes) {
        EXPECT_EQ(std::vector<int>(attributes, attributes + 5),
                  (std::vector<int>{0x2072, 0x2076, 0x2073, 0x207A, 0}));
        const PbufferHandle made = system.createPbuffer(dc, format, width, height, attributes);
        live.insert(made);
        return made;
    };
    Pbuffers().releasePbufferDC = [](PbufferHandle handle, HDC dc) {
        EXPECT_EQ(live.count(handle), 1u);
        order.push_back("release");
        return system.releasePbufferDC(handle, dc);
    };
    Pbuffers().destroyPbuffer = [](PbufferHandle handle) {
        EXPECT_EQ(live.erase(handle), 1u);
        order.push_back("destroy");
        return system.destroyPbuffer(handle);
    };

    wnd.CreatePopup();
    Pbuffers().queryPbuffer = [](PbufferHandle, int attribute, int* value) -> BOOL {
        *value = attribute == 0x2034 ? 64 : 40; // granted smaller than asked for
        return TRUE;
    };
    EXPECT_THAT(Failing(), ElementsAre(L"Widths and heights of pbuffer are not matching"));
    EXPECT_EQ(wnd.PbWidth(), 0);
    EXPECT_EQ(wnd.PbHeight(), 0);
    EXPECT_THAT(live, IsEmpty());
    EXPECT_THAT(order, ElementsAre("release", "destroy"));
    Pbuffers().queryPbuffer = system.queryPbuffer;

    ASSERT_EQ(wnd.InitPB(100, 50), 1);
    EXPECT_EQ(live.size(), 1u);
    GL().createContext = [](HDC) -> HGLRC { return nullptr; };
    EXPECT_THAT(Failing(), ElementsAre(L"Could not create pbuffer context"));
    GL().createContext = real.createContext;
    const auto create = Pbuffers().createPbuffer;
    Pbuffers().createPbuffer = [](HDC, int, int, int, const int*) -> PbufferHandle { return nullptr; };
    EXPECT_THAT(Failing(), ElementsAre(L"Could not create pbuffer context"));
    Pbuffers().createPbuffer = create;
    EXPECT_EQ(live.size(), 1u);
    EXPECT_EQ(wnd.PbWidth(), 100);
    CImage image;
    wnd.Capture(image, 100, 50);

    ASSERT_EQ(wnd.InitPB(64, 48), 1);
    EXPECT_EQ(live.size(), 1u);
    wnd.DestroyWindow();
    EXPECT_THAT(live, IsEmpty());
    {
        SceneWnd other;
        other.CreatePopup();
        ASSERT_EQ(other.InitPB(64, 48), 1);
        EXPECT_EQ(live.size(), 1u);
    }
    EXPECT_THAT(live, IsEmpty());
}

} // namespace
