#include "demo/app/CDemoApp.h"

#include "colour/CColTbl.h"
#include "demo/detail/Text.h"
#include "demo/run/Terminal.h"
#include "platform/Vant.h"
#include "resources/Ids.h"
#include "time/TmSync.h"
#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"

#include <filesystem>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include <shellapi.h>
#include <shlobj.h>

namespace demo
{
namespace
{

namespace fs = std::filesystem;

constexpr int keptLines = 500; // of a console
constexpr const wchar_t* logName = L"survey.nmea";
constexpr const wchar_t* boatName = L"boat.3ds";
constexpr std::uintmax_t longLog = 8'000'000; // bytes: reading this many may take half a second

CDemoApp theApp;

fs::path ProgramDir()
{
    wchar_t path[MAX_PATH * 4];
    const DWORD length = ::GetModuleFileNameW(nullptr, path, static_cast<DWORD>(std::size(path)));
    return fs::path(std::wstring(path, length)).parent_path();
}

/** A file that comes with the program: beside it, or in the source tree when it is run from there. */
fs::path DataFile(const wchar_t* name)
{
    const fs::path beside = ProgramDir() / L"data" / name;
    std::error_code error;
    return fs::exists(beside, error) ? beside : fs::path(L"demo") / L"data" / name;
}

/** The library's colour tables: beside the program, where they are installed, or in the source tree. */
fs::path ColourTables()
{
    std::error_code error;
    for (const fs::path& dir :
         {ProgramDir() / L"clt", ProgramDir().parent_path() / L"share" / L"VantCore" / L"clt"})
        if (fs::is_directory(dir, error))
            return dir;
    return fs::path(L"resources") / L"clt";
}

/** Where programs keep what is theirs and their user's; empty when the system does not say. */
fs::path LocalAppData()
{
    PWSTR dir = nullptr;
    const HRESULT result = ::SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &dir);
    const fs::path path = SUCCEEDED(result) ? fs::path(dir) : fs::path();
    ::CoTaskMemFree(dir);
    return path;
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
    const fs::path path = m_options.log.empty() ? DataFile(logName) : fs::path(m_options.log);
    m_logPath = path.wstring();
    std::error_code error;
    if (const std::uintmax_t size = fs::file_size(path, error); !error && size >= longLog)
        Say(L"reading " + Counted(static_cast<std::size_t>(size / 1'000'000), L"MB of ") + m_logPath);
    std::optional<std::string> bytes = Tape::BytesOf(path);
    if (!bytes) {
        Complain(L"cannot read the log " + Quoted(m_logPath));
        m_exitCode = exitUsage;
        return false;
    }
    m_tape = std::make_unique<Tape>(std::move(*bytes));
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
    if (TryOutput(m_options.out))
        return m_exitCode == 0;
    const fs::path other = m_options.usualOut ? LocalAppData() : fs::path();
    if (!other.empty() && TryOutput((other / L"VantDemo").wstring()))
        return m_exitCode == 0;
    m_keeps = false;
    Warn(L"cannot write to the directory " + Quoted(m_options.out) +
             L": settings, pictures and logs of this run are not kept",
         L"Settings, pictures and logs\nof this run are not kept:\ntheir directory cannot\nbe written.");
    return true;
}

/** Prepares a directory for what is written. @return false when that cannot be done; true also, with the exit
 * code set, when another program has it */
bool CDemoApp::TryOutput(const std::wstring& dir)
{
    std::error_code error;
    const fs::path out = fs::absolute(dir, error);
    m_outDir = (out / L"").make_preferred().wstring();
    if (!error)
        fs::create_directories(out / L"Logs", error);
    if (error)
        return false;
    if (!m_lock.Take(m_outDir)) {
        Complain(L"runs already with the directory " + Quoted(m_outDir) + L"; " + m_lock.ShowOther());
        m_exitCode = exitRuns;
        return true;
    }
    return m_log.Open((m_outDir + L"demo.log").c_str());
}

void CDemoApp::Warn(std::wstring line, std::wstring box)
{
    Tell(line);
    m_warnings.push_back({std::move(line), std::move(box)});
}

void CDemoApp::StartLibrary()
{
    Vant::appTitle = L"VantCore \u2013 survey instruments";
    Vant::projDir = m_outDir.c_str();
    Vant::dataDir = m_outDir.c_str();
    Vant::setFile = (m_outDir + (m_options.tour ? L"tour.xml" : L"VantDemo.xml")).c_str();
    if (m_options.tour)
        ::DeleteFileW(Vant::setFile); // a tour always begins as a first run does
    Vant::hIcon = LibraryIcon();
    Vant::inReplay = 1;
    Vant::Init();
    m_started = true;
    TmSync::Init();
    TmSync::AddTmFn(&m_clock);
    CColTbl::EnumColTbls(ColourTables().make_preferred().c_str());
    for (CConsole* const console : std::initializer_list<CConsole*>{&Vant::csl, &Vant::comms, &Vant::alarm}) {
        console->maxEntries = keptLines;
        console->logTo = m_keeps ? 1 : 0;
    }
    LoadSettings();
}

void CDemoApp::LoadSettings()
{
    const SettingsFound found = m_settings.Load(Vant::setFile);
    ++m_settings.runs;
    m_log.Line(L"VantCore " + std::wstring(static_cast<LPCWSTR>(Vant::swVer)) + L", run " +
               std::to_wstring(m_settings.runs) +
               (found.isThere ? L", settings loaded" : L", no settings yet"));
    m_log.Line(L"playing " + fs::path(m_logPath).filename().wstring() + L": " +
               Counted(m_tape->Size(), L"lines, ") + DurationText(m_tape->Duration()) + L" at " +
               FixedText(m_options.rate, 1) + L" times its speed");
    if (!found.trouble.empty())
        Warn(found.trouble, found.kept.empty()
                                ? L"The settings could not be read\nand are left as they are."
                                : L"Not all of the settings\ncould be read.\nA copy of them is kept.");
    for (const Warning& warning : m_warnings)
        m_log.Line(warning.line);
}

bool CDemoApp::OpenWindow()
{
    m_session.reset(new Session{.tape = *m_tape,
                                .playback = *m_playback,
                                .settings = m_settings,
                                .log = m_log,
                                .clock = m_clock,
                                .source = fs::path(m_logPath).filename().wstring(),
                                .seconds = m_options.seconds,
                                .rate = m_options.rate,
                                .scripted = m_options.script,
                                .outDir = m_outDir.c_str(),
                                .boatFile = DataFile(boatName).make_preferred().c_str(),
                                .keeps = m_keeps,
                                .pbuffers = m_options.pbuffers,
                                .touring = m_options.tour});
    m_session->Apply();
    m_bridge = std::make_unique<CBridge>(*m_session);
    m_pMainWnd = m_bridge.get();
    if (m_bridge->Open()) {
        m_lock.Mark(m_bridge->m_hWnd);
        ShowWarning();
        return true;
    }
    m_pMainWnd = nullptr;
    m_bridge.reset();
    m_session.reset();
    Complain(L"cannot open a window");
    m_exitCode = exitFailed;
    return false;
}

/** Tells in the window what the lines of the start told. */
void CDemoApp::ShowWarning()
{
    if (!m_bridge->CanDrawViews()) {
        Warn(L"this computer's graphics driver offers no OpenGL; the chart and the orbit view stay empty",
             L"This computer offers\nno OpenGL: the chart and\nthe orbit view stay empty.");
        m_log.Line(m_warnings.back().line);
    }
    // A script or a tour watches the message boxes and would wonder; the console has every line.
    if (!m_warnings.empty() && !m_options.script && !m_options.tour)
        Vant::MsgBox(Vant::msgWarnIcon, L"%s", m_warnings.front().box.c_str());
}

BOOL CDemoApp::PreTranslateMessage(MSG* message)
{
    return m_remoteKeys.Take(message) || CBaseApp::PreTranslateMessage(message);
}

} // namespace demo
