#include "demo/CDemoApp.h"

#include "demo/Terminal.h"
#include "demo/detail/Text.h"
#include "platform/Vant.h"
#include "resources/Ids.h"
#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include <shellapi.h>

namespace demo
{
namespace
{

namespace fs = std::filesystem;

constexpr int exitFailed = 1;  // something could not be written
constexpr int exitUsage = 2;   // an argument or the log is no good
constexpr int exitScript = 3;  // the program did not do what its script expects
constexpr int keptLines = 500; // of each console
constexpr const wchar_t* logName = L"survey.nmea";

CDemoApp theApp;

fs::path ProgramDir()
{
    wchar_t path[MAX_PATH * 4];
    const DWORD length = ::GetModuleFileNameW(nullptr, path, static_cast<DWORD>(std::size(path)));
    return fs::path(std::wstring(path, length)).parent_path();
}

/** The log that comes with the program: beside it, or in the source tree when it is run from there. */
fs::path DefaultLog()
{
    const fs::path beside = ProgramDir() / L"data" / logName;
    std::error_code error;
    return fs::exists(beside, error) ? beside : fs::path(L"demo") / L"data" / logName;
}

std::wstring Quoted(const std::wstring& text)
{
    return L"'" + text + L"'";
}

std::wstring Counted(std::size_t count, const wchar_t* what)
{
    return std::to_wstring(count) + L" " + what;
}

std::size_t CountOn(const Playback& playback)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(alarmIds, [&](AlarmId id) { return playback.Alarms().IsOn(id); }));
}

HICON LibraryIcon()
{
    return ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(VANT_IDI_APP));
}

} // namespace

CDemoApp::CDemoApp() = default;
CDemoApp::~CDemoApp() = default;

BOOL CDemoApp::InitInstance()
{
    if (!ReadCommandLine() || !ReadLog() || !PrepareOutput())
        return FALSE;
    StartLibrary();
    return OpenWindow() ? TRUE : FALSE;
}

int CDemoApp::ExitInstance()
{
    if (m_session) {
        SaveSettings();
        Summarise();
    }
    m_bridge.reset();
    if (m_started)
        Vant::Exit();
    CBaseApp::ExitInstance();
    return m_exitCode;
}

bool CDemoApp::ReadCommandLine()
{
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::wstring_view> arguments;
    for (int i = 1; i < count; ++i)
        arguments.emplace_back(words[i]);
    m_options = Options::Parse(arguments);
    ::LocalFree(words);

    if (m_options.help) {
        const std::string_view help = Options::Help();
        std::wstring text;
        for (const char c : help.substr(0, help.size() - 1))
            text += c == '\n' ? std::wstring(L"\r\n") : std::wstring(1, static_cast<wchar_t>(c));
        Say(text);
        return false;
    }
    if (!m_options.error.empty()) {
        Complain(m_options.error + L" (--help tells more)");
        m_exitCode = exitUsage;
        return false;
    }
    return true;
}

bool CDemoApp::ReadLog()
{
    const fs::path path = m_options.log.empty() ? DefaultLog() : fs::path(m_options.log);
    m_logPath = path.wstring();
    std::error_code error;
    std::ifstream file(path, std::ios::binary);
    if (!fs::is_regular_file(path, error) || !file) {
        Complain(L"cannot read the log " + Quoted(m_logPath));
        m_exitCode = exitUsage;
        return false;
    }
    std::string bytes(std::istreambuf_iterator<char>(file), {});
    m_tape = std::make_unique<Tape>(std::move(bytes));
    if (m_tape->Accepted() == 0) {
        Complain(L"no NMEA 0183 sentence that can be used in the log " + Quoted(m_logPath));
        m_exitCode = exitUsage;
        return false;
    }
    m_playback = std::make_unique<Playback>(*m_tape);
    return true;
}

bool CDemoApp::PrepareOutput()
{
    std::error_code error;
    const fs::path out = fs::absolute(m_options.out, error);
    if (!error)
        fs::create_directories(out, error);
    m_outDir = (out / L"").make_preferred().wstring();
    if (!error)
        fs::create_directories(out / L"Logs", error);
    if (error || !m_log.Open((m_outDir + L"demo.log").c_str())) {
        Complain(L"cannot write to the directory " + Quoted(m_options.out));
        m_exitCode = exitUsage;
        return false;
    }
    return true;
}

void CDemoApp::StartLibrary()
{
    Vant::appTitle = L"VantCore \u2013 survey instruments";
    Vant::projDir = m_outDir.c_str();
    Vant::dataDir = m_outDir.c_str();
    Vant::setFile = (m_outDir + L"VantDemo.xml").c_str();
    Vant::hIcon = LibraryIcon();
    Vant::inReplay = 1;
    Vant::Init();
    m_started = true;
    for (CConsole* const console : std::initializer_list<CConsole*>{&Vant::csl, &Vant::comms, &Vant::alarm}) {
        console->maxEntries = keptLines;
        console->logTo = 1;
    }

    const bool known = m_settings.Load(Vant::setFile);
    ++m_settings.runs;
    m_log.Line(L"VantCore " + std::wstring(static_cast<LPCWSTR>(Vant::swVer)) + L", run " +
               std::to_wstring(m_settings.runs) + (known ? L", settings loaded" : L", no settings yet"));
    m_log.Line(L"playing " + m_logPath + L": " + Counted(m_tape->Size(), L"lines, ") +
               DurationText(m_tape->Duration()) + L" at " + FixedText(m_options.rate, 1) +
               L" times its speed");
}

bool CDemoApp::OpenWindow()
{
    m_session.reset(new Session{*m_tape, *m_playback, m_settings, m_log,
                                fs::path(m_logPath).filename().wstring(), m_options.seconds, m_options.rate,
                                m_options.script, m_outDir.c_str()});
    m_session->Apply();
    m_bridge = std::make_unique<CBridge>(*m_session);
    m_pMainWnd = m_bridge.get();
    if (m_bridge->Open())
        return true;
    m_pMainWnd = nullptr;
    m_bridge.reset();
    m_session.reset();
    Complain(L"cannot open a window");
    m_exitCode = exitFailed;
    return false;
}

void CDemoApp::SaveSettings()
{
    if (!m_settings.Save(Vant::setFile)) {
        Complain(L"cannot save the settings to " + Quoted(std::wstring(static_cast<LPCWSTR>(Vant::setFile))));
        m_exitCode = exitFailed;
    }
    if (!m_session->pictureSaved) {
        Complain(L"cannot save the picture to " + Quoted(m_outDir + pictureName));
        m_exitCode = exitFailed;
    }
    const LineCounts& counts = m_playback->Counts();
    const std::size_t alarms = m_session->alarms;
    m_log.Line(L"end: " + Counted(counts.read, L"sentences read, ") +
               Counted(counts.rejected, L"rejected, ") +
               Counted(alarms, alarms == 1 ? L"alarm, " : L"alarms, ") +
               Counted(m_session->frames, L"frames drawn"));
    if (!m_log.IsGood()) {
        Complain(L"cannot write to " + Quoted(m_outDir + L"demo.log"));
        m_exitCode = exitFailed;
    }
    if (m_session->failed) {
        Complain(L"the script failed");
        m_exitCode = exitScript;
    }
}

void CDemoApp::Summarise() const
{
    const LineCounts& counts = m_playback->Counts();
    Say(L"log:       " + m_logPath + L", " + DurationText(std::min(m_playback->Time(), m_tape->Duration())) +
        L" of " + DurationText(m_tape->Duration()) + L" played");
    Say(L"sentences: " + Counted(counts.read, L"read, ") + Counted(counts.accepted, L"used, ") +
        Counted(counts.ignored, L"of other types, ") + Counted(counts.rejected, L"rejected"));
    Say(L"alarms:    " + Counted(m_session->alarms, L"raised, ") +
        Counted(CountOn(*m_playback), L"still on"));
    Say(L"frames:    " + Counted(m_session->frames, L"drawn"));
    Say(L"picture:   " + m_outDir + pictureName);
    Say(L"settings:  " + std::wstring(static_cast<LPCWSTR>(Vant::setFile)));
    Say(L"run log:   " + m_outDir + L"demo.log");
    Say(L"other logs: " + m_outDir + L"Logs");
}

} // namespace demo
