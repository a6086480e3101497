#pragma once

#include "media/detail/ComPtr.h"
#include "media/detail/DibFrame.h"
#include "media/detail/WmvCalls.h"

#include <memory>

namespace vant::detail
{

/** The alarms' ids, one for each message; those of opening in the order of the steps. */
enum class WmvAlarm : unsigned long {
    profileManager = 1221,
    profileManager2,
    profileVersion,
    loadProfile,
    createWriter,
    setProfile,
    inputCount,
    inputProperties,
    inputType,
    noVideoInput,
    outputFile,
    notOpen,
    invalidHandle,
    notDib,
    otherSize,
    setInput,
    beginWriting,
    allocateSample,
    writeSample,
    endWriting
};

/** The format block of a video's media type, as the Windows Media writer lays it out. */
struct WmvVideoFormat {
    RECT source;
    RECT target;
    DWORD bitRate;
    DWORD bitErrorRate;
    LONGLONG frameTime; ///< units of 100 ns
    BITMAPINFOHEADER bitmap;
};

/** The kinds of media type that matter here. */
inline constexpr GUID wmvVideo{0x73646976, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};
inline constexpr GUID wmvRgb24{0xE436EB7D, 0x524F, 0x11CE, {0x9F, 0x53, 0x00, 0x20, 0xAF, 0x0B, 0xA7, 0x70}};
inline constexpr GUID wmvRgb32{0xE436EB7E, 0x524F, 0x11CE, {0x9F, 0x53, 0x00, 0x20, 0xAF, 0x0B, 0xA7, 0x70}};

/** COM on the calling thread, as long as this exists. */
class ComScope
{
public:
    ComScope()
        : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))
    {
    }
    ~ComScope()
    {
        if (SUCCEEDED(m_result))
            ::CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

private:
    const HRESULT m_result; // fails where the thread has already chosen the other kind, which serves as well
};

/** A Windows Media writer with the embedded profile, and its video input. The destructor ends the writing.
 * What fails raises its alarm. */
class WmvWriter
{
public:
    /** @return null if a step fails */
    static std::unique_ptr<WmvWriter> Open(LPCWSTR path);
    ~WmvWriter();
    WmvWriter(const WmvWriter&) = delete;
    WmvWriter& operator=(const WmvWriter&) = delete;

    bool Add(HBITMAP bitmap, const DibFrame& frame);

private:
    WmvWriter() = default;
    bool SetProfile();
    bool FindVideoInput();
    ComPtr<IWMInputMediaProps> OfferedInput(const GUID& subtype);
    HRESULT DescribeInput(IWMInputMediaProps* input, const GUID& subtype, const DibFrame& frame);
    bool Begin(const DibFrame& frame);
    bool FillSample(INSSBuffer* sample, HBITMAP bitmap, const DibFrame& frame) const;
    std::size_t SampleBytes() const noexcept;
    unsigned long long NextTime();

    ComScope m_com; // outlives the objects
    ComPtr<IWMWriter> m_writer;
    ComPtr<IWMInputMediaProps> m_input;
    DWORD m_inputNumber = 0;
    bool m_writing = false;
    LONG m_width = 0;  // pixels, of the first frame
    LONG m_height = 0; // pixels
    int m_bits = 0;    // per pixel of the samples
    bool m_hasTime = false;
    unsigned long long m_start = 0; // units of 100 ns
    unsigned long long m_time = 0;  // of the last frame, from the start
};

} // namespace vant::detail
