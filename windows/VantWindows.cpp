#include "platform/Vant.h"
#include "platform/detail/ILogSink.h"
#include "platform/detail/Startup.h"
#include "windows/CConsole.h"
#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"
#include "windows/CEMsgBox.h"
#include "windows/CEToolTip.h"

/** @file
 *  The windows that the platform class owns, and what ties it to them. The style that controls copy stands
 * here too: objects of one source are made in the order in which they are written, and these need it to be
 * there. */

CEStyle CEStyle::s_default;

CConsole Vant::csl;
CCslComms Vant::comms;
CConsole Vant::status;
CCslAlm Vant::alarm;
CEMsgBox Vant::msgBox;
CEToolTip Vant::toolTip;

namespace
{

using vant::detail::LogTarget;

/** Brings a logger's messages to its console. */
class ConsoleSink : public vant::detail::ILogSink
{
public:
    explicit ConsoleSink(CConsole& console)
        : m_console(console)
    {
    }

    CECEntry* Update(unsigned long id, int& state, const CString& text) override
    {
        return m_console.UpdateEntry(id, state, text);
    }

    CECEntry* Add(unsigned long id, int level, const CString& text) override
    {
        m_console.AddEntry(id, level, text);
        return nullptr;
    }

protected:
    CConsole& m_console;
};

/** Keeps alarms that are over: -1 is a level of the alarm logger like any other negative one. */
class AlarmSink : public ConsoleSink
{
public:
    using ConsoleSink::ConsoleSink;

    CECEntry* Update(unsigned long id, int& state, const CString& text) override
    {
        return m_console.RecordEntry(id, state, text);
    }
};

void PrepareConsoles()
{
    struct Row {
        CConsole& console;
        int kind;
        const wchar_t* name;
    };
    const Row rows[] = {
        {Vant::csl, 0, L"Console"},
        {Vant::comms, 0, L"Comms"},
        {Vant::alarm, 2, L"Alarms"},
        {Vant::status, 1, L"Status"},
    };
    for (const Row& row : rows) {
        row.console.SetupCsl(row.kind);
        row.console.name = row.name;
        row.console.title = L"The Output Window";
    }
}

/** Connects the loggers while the consoles exist. */
class Connection
{
public:
    Connection()
    {
        SetLogSink(LogTarget::console, &m_csl);
        SetLogSink(LogTarget::comms, &m_comms);
        SetLogSink(LogTarget::status, &m_status);
        SetLogSink(LogTarget::alarm, &m_alarm);
        vant::detail::Startup().prepareConsoles = PrepareConsoles;
    }
    ~Connection()
    {
        for (const LogTarget target :
             {LogTarget::console, LogTarget::comms, LogTarget::status, LogTarget::alarm})
            SetLogSink(target, nullptr);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

private:
    ConsoleSink m_csl{Vant::csl};
    ConsoleSink m_comms{Vant::comms};
    ConsoleSink m_status{Vant::status};
    AlarmSink m_alarm{Vant::alarm};
};

const Connection connection;

} // namespace
