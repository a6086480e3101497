// Runs a program that takes a picture, and says whether that shows something: client PICTURE PROGRAM [ARG...]
#include "../../support/ScreenLock.h"

#include <afxwin.h>
#include <atlimage.h>

#include <algorithm>
#include <cstdio>
#include <map>

namespace
{

constexpr int leastSide = 64;           // pixels
constexpr std::size_t leastColours = 8; // text alone has more, by its smoothed edges
constexpr double mostOfOne = 0.97;

constexpr DWORD longest = 60'000; // milliseconds

bool IsTaken(CString command)
{
    const ScreenLock screen;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, command.GetBuffer(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                          &process)) {
        std::printf("cannot be started\n");
        return false;
    }
    DWORD code = 1;
    if (::WaitForSingleObject(process.hProcess, longest) == WAIT_OBJECT_0)
        ::GetExitCodeProcess(process.hProcess, &code);
    else
        ::TerminateProcess(process.hProcess, code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    std::printf("exit code %lu\n", code);
    return code == 0;
}

bool IsGood(const CString& file)
{
    CImage image;
    if (FAILED(image.Load(file))) {
        std::printf("no picture\n");
        return false;
    }
    std::map<COLORREF, int> colours;
    const int width = image.GetWidth();
    const int height = image.GetHeight();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            ++colours[image.GetPixel(x, y)];
    int most = 0;
    for (const auto& [colour, count] : colours)
        most = std::max(most, count);
    const double share = most / (1.0 * width * height);
    std::printf("%d x %d, %zu colours, %.1f %% of one\n", width, height, colours.size(), 100 * share);
    return std::min(width, height) >= leastSide && colours.size() >= leastColours && share <= mostOfOne;
}

} // namespace

int main(int argc, char** argv)
{
    CString command;
    for (int i = 2; i < argc; ++i)
        command += L'"' + CString(argv[i]) + L"\" ";
    return argc > 2 && IsTaken(command) && IsGood(CString(argv[1])) ? 0 : 1;
}
