#include "platform/PlatformTest.h"

#include "platform/CBaseApp.h"

#include <filesystem>

using namespace vant::detail;

namespace
{

std::filesystem::path TempPath()
{
    return std::filesystem::temp_directory_path() /
           (L"vant-platform-" + std::to_wstring(::GetCurrentProcessId()));
}

// What hears of alarms beside the test.
void (*infoMsgBefore)(int message, void* data);

// The application object that the library finds through the application framework.
CBaseApp theApp;

} // namespace

PlatformTest::PlatformTest()
{
    sounds.clear();
    alarms.clear();
    helpCalls.clear();
    Calls().playSound = [](int id) { sounds.push_back(id); };
    infoMsgBefore = Windows().infoMsg;
    Windows().infoMsg = [](int message, void* data) {
        const auto& entry = *static_cast<CECEntry*>(data);
        if (message == Vant::alarmInfo)
            alarms.push_back({entry.id, entry.state, Text(entry.text)});
        if (infoMsgBefore)
            infoMsgBefore(message, data);
    };
    Calls().openHelp = [](HWND owner, LPCWSTR file, LPCWSTR page) {
        helpCalls.push_back({owner, file, page});
    };
}

PlatformTest::~PlatformTest()
{
    Calls() = m_calls;
    Windows() = m_windows;
    Startup() = m_startup;
    Help() = m_help;
    EUnits::system = 0;
    Vant::options = 0x29;
    std::error_code ignored;
    std::filesystem::remove_all(TempPath(), ignored);
}

std::vector<std::wstring> PlatformTest::PagesOfHelp()
{
    std::vector<std::wstring> pages;
    for (const HelpCall& call : helpCalls)
        pages.push_back(call.page);
    return pages;
}

std::wstring PlatformTest::TempDir()
{
    std::filesystem::create_directories(TempPath());
    return TempPath().wstring() + L"\\";
}
