#include "windows/WindowsTest.h"

#include "platform/CBaseApp.h"
#include "platform/Vant.h"
#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace
{

namespace fs = std::filesystem;

fs::path DirPath()
{
    return fs::temp_directory_path() / (L"vant-windows-" + std::to_wstring(::GetCurrentProcessId()));
}

CBaseApp theApp;

} // namespace

WindowsTest::WindowsTest()
{
    sounds.clear();
    vant::detail::Calls().playSound = [](int id) { sounds.push_back(id); };
    fs::create_directories(DirPath());
    Vant::dataDir = Dir().c_str();
    Vant::Init();
    // The consoles live as long as the process, with what other tests have logged.
    const std::array<CConsole*, 4> consoles{&Vant::csl, &Vant::status, &Vant::alarm, &Vant::comms};
    for (CConsole* const console : consoles) {
        console->ClearList();
        console->logTo = 0;
    }
}

WindowsTest::~WindowsTest()
{
    Vant::Exit();
    vant::detail::Calls() = m_calls;
    std::error_code ignored;
    fs::remove_all(DirPath(), ignored);
}

std::wstring WindowsTest::Dir()
{
    return DirPath().wstring() + L"\\";
}

std::string WindowsTest::Bytes(const CString& file)
{
    std::ifstream in(fs::path(static_cast<LPCWSTR>(file)), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> WindowsTest::FileLines(const CString& file)
{
    std::istringstream in(Bytes(file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        EXPECT_TRUE(line.ends_with('\r')) << line;
        lines.push_back(line.substr(0, line.size() - 1));
    }
    return lines;
}

std::vector<std::wstring> WindowsTest::Messages(CConsole& console)
{
    const CSingleLock guard(&console.entryLock, TRUE);
    std::vector<std::wstring> messages;
    for (CVantPtr* pos = console.entries.GetHeadPos(); pos;) {
        const std::wstring text = Text(console.entries.GetNext(pos)->text);
        messages.push_back(text.substr(text.find(L") :") + 3));
    }
    return messages;
}

std::vector<unsigned int> WindowsTest::Ids(CConsole& console)
{
    const CSingleLock guard(&console.entryLock, TRUE);
    std::vector<unsigned int> ids;
    for (CVantPtr* pos = console.entries.GetHeadPos(); pos;)
        ids.push_back(console.entries.GetNext(pos)->id);
    return ids;
}
