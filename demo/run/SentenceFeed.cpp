#include "demo/run/SentenceFeed.h"

#include "demo/detail/NmeaReadings.h"
#include "platform/Vant.h"

#include <algorithm>
#include <string>

namespace demo
{
namespace
{

/** A line as it can be shown, whatever a damaged cable made of it. */
std::wstring Printable(std::string_view line)
{
    std::wstring text;
    for (const char c : line.substr(0, NmeaSentence::maxLength))
        text += c >= 0x20 && c < 0x7F ? static_cast<wchar_t>(c) : L'.';
    return text;
}

} // namespace

void SentenceFeed::Feed(const Tape& tape, const Playback& playback)
{
    m_next = std::min(m_next, playback.Played());
    for (; m_next < playback.Played(); ++m_next) {
        const std::string_view line = tape.Line(m_next);
        const bool damaged = NmeaReadings().Read(line) == Verdict::Rejected;
        Vant::Comms(damaged ? damagedLevel : 0, L"%s", Printable(line).c_str());
    }
}

} // namespace demo
