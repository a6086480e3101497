#include "platform/CECEntry.h"
#include "platform/Vant.h"
#include "platform/detail/ILogSink.h"
#include "platform/detail/WindowHooks.h"

#include <atomic>
#include <cstdarg>

namespace vant::detail
{

namespace
{

constexpr std::size_t targets = 4;
constinit std::atomic<ILogSink*> sinks[targets];

std::atomic<ILogSink*>& Sink(LogTarget target) noexcept
{
    return sinks[static_cast<std::size_t>(target)];
}

} // namespace

ILogSink* SetLogSink(LogTarget target, ILogSink* sink) noexcept
{
    return Sink(target).exchange(sink);
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

void Add(LogTarget target, int level, const CString& text)
{
    if (ILogSink* const sink = Sink(target))
        sink->Add(0, level, text);
}

CECEntry* Update(LogTarget target, unsigned long id, int& state, const CString& text)
{
    ILogSink* const sink = Sink(target);
    return sink ? sink->Update(id, state, text) : nullptr;
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
    Guarded(fmt, args, [&](const CString& text) { Add(LogTarget::console, level, text); });
    va_end(args);
}

void Vant::Comms(int level, CString fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    Guarded(fmt, args, [&](const CString& text) { Add(LogTarget::comms, level, text); });
    va_end(args);
}

void Vant::Status(unsigned long id, int level, CString fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    Guarded(fmt, args, [&](const CString& text) { Update(LogTarget::status, id, level, text); });
    va_end(args);
}

void Vant::Alarm(unsigned long id, int level, CString fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    Guarded(fmt, args, [&](const CString& text) {
        int state = level;
        CECEntry* const entry = Update(LogTarget::alarm, id, state, text);
        if (entry && level >= 0)
            Announce(*entry, level);
    });
    va_end(args);
}
