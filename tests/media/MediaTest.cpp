#include "media/MediaTest.h"

#include <cstring>
#include <utility>

TestFrame::TestFrame(int width, int height, int bits, bool topDown)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = topDown ? -height : height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = static_cast<WORD>(bits);
    m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
    m_pixels.resize(static_cast<std::size_t>((width * bits + 31) / 32 * 4 * height));
    for (std::size_t i = 0; i < m_pixels.size(); ++i)
        m_pixels[i] = static_cast<unsigned char>(i * 7);
    Update();
}

void TestFrame::Update()
{
    ::GdiFlush();
    std::memcpy(m_bits, m_pixels.data(), m_pixels.size());
}

MediaTest::~MediaTest()
{
    vant::detail::Avi() = m_avi;
    vant::detail::Wmv() = m_wmv;
}

std::vector<std::wstring> MediaTest::AlarmTexts()
{
    std::vector<std::wstring> texts;
    for (const Logged& alarm : std::exchange(alarms, {}))
        texts.push_back(alarm.text);
    return texts;
}

std::vector<std::wstring> MediaTest::ConsoleTexts()
{
    std::vector<std::wstring> texts;
    for (const Logged& line : Messages(vant::detail::LogTarget::console))
        texts.push_back(line.text);
    return texts;
}
