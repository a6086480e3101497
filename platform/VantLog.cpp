#include "platform/Vant.h"
#include "platform/detail/LogRecorder.h"
#include "platform/detail/Windows.h"

#include <atomic>
#include <cstdarg>

namespace vant::detail
{

namespace
{

constexpr std::size_t targets = 4;
std::atomic<ILogSink*> sinks[targets];

std::size_t Index(LogTarget target) noexcept
{
    return static_cast<std::size_t>(target);
}

ILogSink& Sink(LogTarget target) noexcept
{
    ILogSink* const sink = sinks[Index(target)];
    return sink ? *sink : Recorder(target);
}

} // namespace

void SetLogSink(LogTarget target, ILogSink* sink) noexcept
{
    sinks[Index(target)] = sink;
}

LogRecorder& Recorder(LogTarget target) noexcept
{
    static LogRecorder recorders[targets];
    return recorders[Index(target)];
}

} // namespace vant::detail

namespace
{

using namespace vant::detail;

/** Formats a message and hands it on. Whatever is thrown on the way (a text that is too long, a receiver of
 * the broadcast that fails) costs this message and not its caller. */
template <class Log>
void Guarded(const CString& fmt, va_list args, Log log) noexcept
{
    try {
        CString text;
        text.FormatV(fmt, args);
        log(text);
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
        return;
    }
}

/** What an alarm does beyond being recorded. */
void Announce(CECEntry& alarm, int level)
{
    constexpr int alarmSound = 3;
    if (level == 1 || (level == 3 && alarm.state == 1))
        Vant::Snd(alarmSound);
    if (Windows().infoMsg)
        Windows().infoMsg(Vant::alarmInfo, &alarm);
}

} // namespace

void Vant::Console(int level, CString fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    Guarded(fmt, args, [&](const CString& text) { Sink(LogTarget::console).Add(0, level, text); });
    va_end(args);
}

void Vant::Comms(int level, CString fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    Guarded(fmt, args, [&](const CString& text) { Sink(LogTarget::comms).Add(0, level, text); });
    va_end(args);
}

void Vant::Status(unsigned long id, int level, CString fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    Guarded(fmt, args, [&](const CString& text) { Sink(LogTarget::status).Update(id, level, text); });
    va_end(args);
}

void Vant::Alarm(unsigned long id, int level, CString fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    Guarded(fmt, args, [&](const CString& text) {
        int state = level;
        CECEntry* const entry = Sink(LogTarget::alarm).Update(id, state, text);
        if (entry && level >= 0)
            Announce(*entry, level);
    });
    va_end(args);
}
