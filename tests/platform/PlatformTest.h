#pragma once

#include "platform/Vant.h"
#include "platform/detail/HelpRegistry.h"
#include "platform/detail/Startup.h"
#include "platform/detail/SystemCalls.h"
#include "platform/detail/WindowHooks.h"
#include "support/LogRecorder.h"
#include "support/ScreenLock.h"
#include "values/EUnits.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

inline std::wstring Text(const CString& text)
{
    return static_cast<LPCWSTR>(text);
}

/** One logged message, comparable and printable. */
struct Logged {
    unsigned long id;
    int level;
    std::wstring text;

    bool operator==(const Logged&) const = default;
};

inline void PrintTo(const Logged& entry, std::ostream* out)
{
    *out << entry.id << " level " << entry.level << " " << testing::PrintToString(entry.text);
}

inline std::vector<Logged> Messages(vant::detail::LogTarget target)
{
    std::vector<Logged> entries;
    for (const auto& record : vant::test::Recorder(target).Records())
        entries.push_back({record.id, record.state, Text(record.text)});
    return entries;
}

/** Leaves the process as it found it: the edges to the system, the hooks, the options and the recorded
 * messages. Sounds and help are recorded instead of started. */
class PlatformTest : public testing::Test
{
protected:
    PlatformTest();
    ~PlatformTest() override;

    struct HelpCall {
        HWND owner;
        std::wstring file;
        std::wstring page;
    };

    static inline std::vector<int> sounds;
    static inline std::vector<Logged> alarms; ///< every one that was broadcast, repeated ones too
    static inline std::vector<HelpCall> helpCalls;
    /** The pages that help was opened at. */
    static std::vector<std::wstring> PagesOfHelp();

    /** A directory for files of this test, ending in a backslash; removed with what is in it. */
    static std::wstring TempDir();

private:
    vant::test::RecordLogs m_logs;
    vant::detail::SystemCalls m_calls = vant::detail::Calls();
    vant::detail::WindowHooks m_windows = vant::detail::Windows();
    vant::detail::StartupSteps m_startup = vant::detail::Startup();
    vant::detail::HelpRegistry m_help = vant::detail::Help();
};
