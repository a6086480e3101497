// Records AVI files whose every pixel is known, and compares what a player makes of them.
//
//   RecordAvi record NAME WIDTH HEIGHT BITS top-down|bottom-up FRAMES [LIMIT]
//       writes NAME.avi, and the same pixels as NAME.raw: rows from the top, three bytes per pixel. LIMIT is
//       the most bytes of a file.
//   RecordAvi kill NAME WIDTH HEIGHT BITS top-down|bottom-up
//       does so in a process of its own, which it ends while that records
//   RecordAvi compare RAW FRAME_BYTES MOST_MISSING DECODED...
//       whether the decoded files, one after the other, are RAW, less at most so many frames at the end
#include "media/CEAvi.h"
#include "media/detail/AviCalls.h"
#include "platform/CBaseApp.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace
{

// The application object that the library finds through the application framework.
CBaseApp theApp;

struct Kind {
    int width;
    int height;
    int bits;
    bool topDown;
};

/** A section whose pixels are written directly. */
class Section
{
public:
    explicit Section(const Kind& kind)
        : m_kind(kind)
    {
        struct {
            BITMAPINFOHEADER header{};
            RGBQUAD colours[256]{};
        } info;
        info.header.biSize = sizeof info.header;
        info.header.biWidth = kind.width;
        info.header.biHeight = kind.topDown ? -kind.height : kind.height;
        info.header.biPlanes = 1;
        info.header.biBitCount = static_cast<WORD>(kind.bits);
        for (int i = 0; i < 256; ++i)
            info.colours[i] = Colour(i);
        m_bitmap = ::CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS,
                                      &m_pixels, nullptr, 0);
    }
    ~Section() { ::DeleteObject(m_bitmap); }
    Section(const Section&) = delete;
    Section& operator=(const Section&) = delete;

    HBITMAP Bitmap() const { return m_bitmap; }

    /** Draws the next pixels at random. @return the same as rows from the top of blue, green and red */
    std::vector<char> Draw()
    {
        std::vector<char> shown;
        const int bytes = m_kind.bits / 8;
        const int stride = (m_kind.width * bytes + 3) / 4 * 4;
        for (int y = 0; y < m_kind.height; ++y) {
            auto* row =
                static_cast<std::uint8_t*>(m_pixels) + (m_kind.topDown ? y : m_kind.height - 1 - y) * stride;
            for (int x = 0; x < m_kind.width; ++x, row += bytes) {
                for (int i = 0; i < bytes; ++i)
                    row[i] = Next();
                Append(shown, row);
            }
        }
        return shown;
    }

private:
    static RGBQUAD Colour(int index)
    {
        const auto i = static_cast<BYTE>(index);
        return {i, static_cast<BYTE>(255 - i), static_cast<BYTE>(i ^ 0x55), 0};
    }
    std::uint8_t Next()
    {
        m_state = m_state * 1664525 + 1013904223;
        return static_cast<std::uint8_t>(m_state >> 24);
    }
    void Append(std::vector<char>& shown, const std::uint8_t* pixel) const
    {
        std::uint8_t colours[3] = {pixel[0], pixel[1], pixel[2]};
        if (m_kind.bits == 8) {
            const RGBQUAD colour = Colour(pixel[0]);
            std::memcpy(colours, &colour, sizeof colours);
        }
        shown.insert(shown.end(), colours, colours + 3);
    }

    Kind m_kind;
    HBITMAP m_bitmap = nullptr;
    void* m_pixels = nullptr;
    std::uint32_t m_state = 1;
};

int Record(const std::wstring& name, const Kind& kind, int frames, DWORD pause)
{
    Section section(kind);
    std::ofstream raw(std::string(name.begin(), name.end()) + ".raw", std::ios::binary);
    CEAvi avi;
    if (!section.Bitmap() || !avi.Open((name + L".avi").c_str()))
        return 1;
    for (int i = 0; i < frames; ++i) {
        const std::vector<char> shown = section.Draw();
        raw.write(shown.data(), static_cast<std::streamsize>(shown.size())).flush();
        if (!avi.AddDib(section.Bitmap()))
            return 1;
        ::Sleep(pause);
    }
    return 0;
}

long long SizeOf(const std::wstring& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    return ::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) ? data.nFileSizeLow : 0;
}

/** Ends a recording process at a moment that nothing foresees. */
int Kill(const std::wstring& name, std::wstring commandLine, const Kind& kind)
{
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                          &process))
        return 1;
    constexpr int fewFrames = 60;
    constexpr ULONGLONG patience = 30000; // milliseconds
    const long long enough = static_cast<long long>(kind.width) * kind.height * 3 * fewFrames;
    const ULONGLONG begin = ::GetTickCount64();
    while (SizeOf(name + L".raw") < enough && ::GetTickCount64() - begin < patience)
        ::Sleep(1);
    LARGE_INTEGER counter{};
    ::QueryPerformanceCounter(&counter);
    ::Sleep(static_cast<DWORD>(counter.QuadPart % 200));
    const bool killed =
        ::WaitForSingleObject(process.hProcess, 0) == WAIT_TIMEOUT && ::TerminateProcess(process.hProcess, 1);
    ::WaitForSingleObject(process.hProcess, INFINITE);
    return killed && SizeOf(name + L".raw") >= enough ? 0 : 1;
}

std::vector<char> Contents(const std::wstring& path)
{
    std::ifstream file(std::string(path.begin(), path.end()), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

int Compare(int count, wchar_t** arguments)
{
    const std::vector<char> recorded = Contents(arguments[0]);
    const auto frameBytes = static_cast<std::size_t>(::_wtoi(arguments[1]));
    const auto mostMissing = static_cast<std::size_t>(::_wtoi(arguments[2]));
    std::vector<char> decoded;
    for (int i = 3; i < count; ++i) {
        const std::vector<char> part = Contents(arguments[i]);
        decoded.insert(decoded.end(), part.begin(), part.end());
    }
    std::printf("recorded %zu frames, decoded %zu\n", recorded.size() / frameBytes,
                decoded.size() / frameBytes);
    if (decoded.empty() || decoded.size() % frameBytes || decoded.size() > recorded.size() ||
        recorded.size() - decoded.size() >= (mostMissing + 1) * frameBytes)
        return 1;
    for (std::size_t i = 0; i < decoded.size(); ++i) {
        if (decoded[i] != recorded[i]) {
            std::printf("first difference in frame %zu, byte %zu\n", i / frameBytes, i % frameBytes);
            return 1;
        }
    }
    return 0;
}

} // namespace

int main()
{
    int count = 0;
    wchar_t** arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    const std::wstring verb = count > 1 ? arguments[1] : L"";
    if (verb == L"compare" && count > 5)
        return Compare(count - 2, arguments + 2);
    if (count < 7)
        return 2;
    const std::wstring name = arguments[2];
    const Kind kind{::_wtoi(arguments[3]), ::_wtoi(arguments[4]), ::_wtoi(arguments[5]),
                    std::wstring(arguments[6]) == L"top-down"};
    if (verb == L"kill") {
        std::wstring commandLine = L"\"" + std::wstring(arguments[0]) + L"\" endless";
        for (int i = 2; i < count; ++i)
            commandLine.append(L" ").append(arguments[i]);
        return Kill(name, commandLine, kind);
    }
    if (verb == L"endless") {
        constexpr DWORD pause = 3; // milliseconds
        return Record(name, kind, INT_MAX, pause);
    }
    if (count > 8)
        vant::detail::Avi().fileLimit = ::_wtoi(arguments[8]);
    return Record(name, kind, count > 7 ? ::_wtoi(arguments[7]) : 0, 0);
}
