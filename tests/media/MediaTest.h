#pragma once

#include "media/detail/AviCalls.h"
#include "media/detail/WmvCalls.h"
#include "platform/PlatformTest.h"

#include <cstring>
#include <string>
#include <utility>
#include <vector>

/** A device-independent section whose bytes all differ from their neighbours. */
class TestFrame
{
public:
    TestFrame(int width, int height, int bits, bool topDown = false)
        : pixels(static_cast<std::size_t>((width * bits + 31) / 32 * 4 * height))
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = topDown ? -height : height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = static_cast<WORD>(bits);
        void* memory = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
        for (std::size_t i = 0; i < pixels.size(); ++i)
            pixels[i] = static_cast<unsigned char>(i * 7);
        std::memcpy(memory, pixels.data(), pixels.size());
    }
    ~TestFrame() { ::DeleteObject(m_bitmap); }
    TestFrame(const TestFrame&) = delete;
    TestFrame& operator=(const TestFrame&) = delete;
    operator HBITMAP() const { return m_bitmap; }

    std::vector<unsigned char> pixels; ///< as they lie in memory

private:
    HBITMAP m_bitmap = nullptr;
};

/** Alarms recorded, and the edges to both video libraries put back in the end. */
class MediaTest : public PlatformTest
{
protected:
    ~MediaTest() override
    {
        vant::detail::Avi() = m_avi;
        vant::detail::Wmv() = m_wmv;
    }

    static std::vector<std::wstring> Texts(const std::vector<Logged>& entries)
    {
        std::vector<std::wstring> texts;
        for (const Logged& entry : entries)
            texts.push_back(entry.text);
        return texts;
    }
    /** The alarms' texts since the last time. */
    static std::vector<std::wstring> AlarmTexts() { return Texts(std::exchange(alarms, {})); }
    static std::vector<std::wstring> ConsoleTexts()
    {
        return Texts(Messages(vant::detail::LogTarget::console));
    }
    static std::wstring Path(const wchar_t* name) { return TempDir() + name; }

private:
    const vant::detail::AviCalls m_avi = vant::detail::Avi();
    const vant::detail::WmvCalls m_wmv = vant::detail::Wmv();
};
