#pragma once

#include "media/detail/AviCalls.h"
#include "media/detail/WmvCalls.h"
#include "platform/PlatformTest.h"

#include <string>
#include <vector>

/** A device-independent section whose bytes all differ from their neighbours. */
class TestFrame
{
public:
    TestFrame(int width, int height, int bits, bool topDown = false);
    ~TestFrame() { ::DeleteObject(m_bitmap); }
    TestFrame(const TestFrame&) = delete;
    TestFrame& operator=(const TestFrame&) = delete;

    operator HBITMAP() const { return m_bitmap; }
    /** The pixels as they lie in memory. */
    std::vector<unsigned char>& Pixels() { return m_pixels; }
    /** Takes over what was changed in Pixels(). */
    void Update();

private:
    std::vector<unsigned char> m_pixels;
    void* m_bits = nullptr;
    HBITMAP m_bitmap = nullptr;
};

/** Alarms recorded, and the edges to both video libraries put back in the end. */
class MediaTest : public PlatformTest
{
protected:
    ~MediaTest() override;

    /** The alarms' texts since the last time. */
    static std::vector<std::wstring> AlarmTexts();
    static std::vector<std::wstring> ConsoleTexts();
    static std::wstring Path(const wchar_t* name) { return TempDir() + name; }

private:
    const vant::detail::AviCalls m_avi = vant::detail::Avi();
    const vant::detail::WmvCalls m_wmv = vant::detail::Wmv();
};
