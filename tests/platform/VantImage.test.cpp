#include "platform/PlatformTest.h"

#include <atlimage.h>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using vant::detail::LogTarget;

/** A window with a frame and a client area of known colours as the main window. */
class VantImage : public PlatformTest
{
protected:
    static constexpr COLORREF paint = RGB(10, 200, 30);
    static constexpr int width = 120;
    static constexpr int height = 80;

    void ShowMainWindow()
    {
        WNDCLASSW wc{};
        wc.lpfnWndProc = ::DefWindowProcW;
        wc.hInstance = ::GetModuleHandleW(nullptr);
        wc.hbrBackground = m_brush;
        wc.lpszClassName = L"VantImageTest";
        ::RegisterClassW(&wc);
        m_main.Attach(::CreateWindowExW(WS_EX_TOPMOST, wc.lpszClassName, L"", WS_POPUP | WS_BORDER, 40, 40,
                                        width, height, nullptr, nullptr, wc.hInstance, nullptr));
        AfxGetApp()->m_pMainWnd = &m_main;
        // Not activated: the window need not wait for a window manager then.
        ::ShowWindow(m_main.m_hWnd, SW_SHOWNOACTIVATE);
        ::RedrawWindow(m_main.m_hWnd, nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ERASENOW | RDW_UPDATENOW);
    }

    ~VantImage() override
    {
        AfxGetApp()->m_pMainWnd = nullptr;
        ::DestroyWindow(m_main.Detach());
        ::DeleteObject(m_brush);
    }

    const ScreenLock m_screen;
    CWnd m_main;
    const HBRUSH m_brush = ::CreateSolidBrush(paint);
};

/** A bitmap file, read byte by byte so that nothing under test is needed to look at it. */
struct Bmp {
    explicit Bmp(const std::wstring& path)
    {
        std::ifstream file(std::filesystem::path(path), std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(file), {});
        if (bytes.size() < sizeof(BITMAPFILEHEADER) + sizeof header)
            return;
        BITMAPFILEHEADER start{};
        std::memcpy(&start, bytes.data(), sizeof start);
        std::memcpy(&header, bytes.data() + sizeof start, sizeof header);
        offset = start.bfOffBits;
    }

    COLORREF At(int x, int y) const
    {
        const int size = header.biBitCount / 8;
        const int pitch = (header.biWidth * size + 3) / 4 * 4;
        const int row = header.biHeight > 0 ? header.biHeight - 1 - y : y;
        const auto* const pixel =
            reinterpret_cast<const unsigned char*>(bytes.data()) + offset + row * pitch + x * size;
        return RGB(pixel[2], pixel[1], pixel[0]);
    }

    std::vector<char> bytes;
    BITMAPINFOHEADER header{};
    std::size_t offset = 0;
};

} // namespace

TEST_F(VantImage, ScreenShotHoldsTheWindowWithItsFrame)
{
    ShowMainWindow();
    const std::wstring path = TempDir() + L"screen.bmp";
    ASSERT_EQ(Vant::PrintScn(path.c_str()), 1);

    const Bmp bmp(path);
    ASSERT_EQ(bmp.header.biWidth, width);
    ASSERT_EQ(std::abs(bmp.header.biHeight), height);
    EXPECT_GE(bmp.header.biBitCount, 24);
    EXPECT_EQ(bmp.At(width / 2, height / 2), paint);
    EXPECT_EQ(bmp.At(1, 1), paint);
    EXPECT_EQ(bmp.At(width - 2, height - 2), paint);
    for (const auto& [x, y] : {std::pair{0, 0}, {width - 1, 0}, {0, height - 1}, {width - 1, height - 1}})
        EXPECT_EQ(bmp.At(x, y), ::GetSysColor(COLOR_WINDOWFRAME)) << x << ' ' << y;
    EXPECT_THAT(Messages(LogTarget::alarm), IsEmpty());
}

TEST_F(VantImage, ExtensionChoosesTheFormat)
{
    ShowMainWindow();
    struct {
        const wchar_t* name;
        std::string_view signature;
    } const rows[] = {{L"a.png", "\x89PNG"},
                      {L"a.jpg", "\xFF\xD8\xFF"},
                      {L"a.gif", "GIF8"},
                      {L"a.tif", "II*"},
                      {L"a.BMP", "BM"}};
    for (const auto& row : rows) {
        const std::wstring path = TempDir() + row.name;
        EXPECT_EQ(Vant::PrintScn(path.c_str()), 1);
        const Bmp file(path);
        EXPECT_EQ(std::string_view(file.bytes.data(), file.bytes.size()).substr(0, row.signature.size()),
                  row.signature);
    }
}

TEST_F(VantImage, ScreenShotsThatFailRaiseTheirAlarm)
{
    EXPECT_EQ(Vant::PrintScn(L"C:\\no main window.bmp"), 0);
    ShowMainWindow();
    EXPECT_EQ(Vant::PrintScn(L"C:\\no\\such\\100%s\\dir.png"), 0);
    EXPECT_EQ(Vant::PrintScn((TempDir() + L"no.format").c_str()), 0);
    EXPECT_EQ(Vant::PrintScn(L""), 0);
    EXPECT_THAT(alarms, ElementsAre(Logged{120, 1, L"Unable to save screen to C:\\no main window.bmp"},
                                    Logged{120, 1, L"Unable to save screen to C:\\no\\such\\100%s\\dir.png"},
                                    Logged{120, 1, L"Unable to save screen to " + TempDir() + L"no.format"},
                                    Logged{120, 1, L"Unable to save screen to "}));
}

TEST_F(VantImage, PixelBufferIsWrittenFromTheTopInBlueGreenRed)
{
    constexpr int w = 5;
    constexpr int h = 3;
    unsigned char bits[w * h * 4];
    for (int i = 0; i < w * h; ++i) {
        bits[4 * i] = static_cast<unsigned char>(10 + i);  // blue
        bits[4 * i + 1] = static_cast<unsigned char>(100); // green
        bits[4 * i + 2] = static_cast<unsigned char>(200 - i);
        bits[4 * i + 3] = static_cast<unsigned char>(i % 2 ? 0 : 255);
    }
    const std::wstring path = TempDir() + L"pixels.bmp";
    ASSERT_EQ(Vant::WriteImg(path.c_str(), w, h, bits), 1);
    const Bmp bmp(path);
    ASSERT_EQ(bmp.header.biWidth, w);
    ASSERT_EQ(std::abs(bmp.header.biHeight), h);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x)
            EXPECT_EQ(bmp.At(x, y), RGB(200 - y * w - x, 100, 10 + y * w + x)) << x << ' ' << y;
    }

    const std::wstring png = TempDir() + L"pixels.png";
    ASSERT_EQ(Vant::WriteImg(png.c_str(), w, h, bits), 1);
    CImage read;
    ASSERT_TRUE(SUCCEEDED(read.Load(png.c_str())));
    // The fourth byte does not make a pixel transparent.
    EXPECT_EQ(read.GetPixel(1, 0), RGB(199, 100, 11));
    EXPECT_EQ(read.GetPixel(4, 2), RGB(186, 100, 24));
    EXPECT_THAT(Messages(LogTarget::alarm), IsEmpty());
}

TEST_F(VantImage, PixelBuffersThatCannotBeWrittenRaiseTheirAlarm)
{
    unsigned char bits[4] = {};
    const std::wstring path = TempDir() + L"never.bmp";
    EXPECT_EQ(Vant::WriteImg(path.c_str(), 1, 1, nullptr), 0);
    EXPECT_EQ(Vant::WriteImg(path.c_str(), 0, 1, bits), 0);
    EXPECT_EQ(Vant::WriteImg(path.c_str(), 1, -1, bits), 0);
    EXPECT_EQ(Vant::WriteImg(path.c_str(), 0x40000000, 1, bits), 0);
    EXPECT_EQ(Vant::WriteImg(path.c_str(), 0x10000, 0x10000, bits), 0);
    EXPECT_EQ(Vant::WriteImg(L"Q:\\no drive.png", 1, 1, bits), 0);
    auto expected = std::vector(5, Logged{130, 1, L"Unable to save image to " + path});
    expected.push_back({130, 1, L"Unable to save image to Q:\\no drive.png"});
    EXPECT_EQ(alarms, expected);
    EXPECT_FALSE(std::filesystem::exists(path));
}
