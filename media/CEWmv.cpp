#include "media/CEWmv.h"

#include "media/detail/DibFrame.h"
#include "media/detail/WmvWriter.h"
#include "platform/Vant.h"

using vant::detail::DibFrame;
using vant::detail::WmvAlarm;
using vant::detail::WmvWriter;

namespace
{

int Fail(WmvAlarm id, LPCWSTR text)
{
    constexpr int alarmLevel = 1;
    Vant::Alarm(static_cast<unsigned long>(id), alarmLevel, text);
    return 0;
}

} // namespace

CEWmv::CEWmv() = default;

CEWmv::~CEWmv()
{
    Close();
}

int CEWmv::Open(CString path)
{
    Close();
    m_writer = WmvWriter::Open(path);
    return m_writer != nullptr;
}

int CEWmv::AddDib(HBITMAP bitmap)
{
    if (!m_writer)
        return Fail(WmvAlarm::notOpen, L"Cannot add bitmap - wmv not open");
    if (!bitmap)
        return Fail(WmvAlarm::invalidHandle, L"Cannot add bitmap - invalid handle");
    const std::optional<DibFrame> frame = DibFrame::Of(bitmap);
    if (!frame)
        return Fail(WmvAlarm::notDib, L"Cannot add bitmap - not a valid DIB");
    return m_writer->Add(bitmap, *frame);
}

void CEWmv::Close()
{
    m_writer.reset();
}
