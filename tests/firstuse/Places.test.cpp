// Folders and languages other than the developer's.
#include "colour/CColTbl.h"
#include "display/CModel.h"
#include "firstuse/FirstUse.h"
#include "media/CEAvi.h"
#include "settings/CESet.h"
#include "windows/CCslAlm.h"

#include <clocale>

namespace
{

using testing::HasSubstr;
using testing::StartsWith;

constexpr const wchar_t* folder = L"\u017Dofia M\u00FCller \u6D4B\u8BD5";

/** One that begins with the machine's own and goes back to it. */
class Environment
{
public:
    Environment(const wchar_t* name, const std::wstring& value)
        : m_name(name)
    {
        wchar_t before[1024];
        m_before.assign(before,
                        ::GetEnvironmentVariableW(name, before, static_cast<DWORD>(std::size(before))));
        ::SetEnvironmentVariableW(name, value.c_str());
    }
    ~Environment() { ::SetEnvironmentVariableW(m_name, m_before.c_str()); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const wchar_t* m_name;
    std::wstring m_before;
};

} // namespace

TEST_F(FirstUse, RunsInAndWritesToAFolderOutsideTheCodePage)
{
    const fs::path home = m_dir / folder;
    const fs::path bin = home / "bin";
    fs::create_directories(bin);
    fs::create_directories(home / "Temp");
    for (const char* const file : {"VantDemo.exe", "VantCore.dll", "VantAfx.dll"})
        fs::copy_file(TestDir() / file, bin / file);
    for (const char* const dir : {"data", "clt"})
        fs::copy(TestDir() / dir, bin / dir, fs::copy_options::recursive);
    fs::rename(bin / "data" / "survey.nmea", home / L"\u6D4B.nmea");
    PutSettings(home / "out");
    const Environment temp(L"TEMP", (home / "Temp").wstring());
    const Environment tmp(L"TMP", (home / "Temp").wstring());
    for (int run = 1; run <= 2; ++run) {
        Program program(home, L"--seconds 0.5 --log \u6D4B.nmea --out out", bin);
        ASSERT_EQ(0, program.ExitCode()) << program.Err();
        EXPECT_EQ("", program.Err());
        EXPECT_THAT(program.Out(), HasSubstr("\xC5\xBDofia M\xC3\xBCller \xE6\xB5\x8B\xE8\xAF\x95"));
    }
    EXPECT_THAT(Contents(home / "out" / "demo.png"), StartsWith("\x89PNG"));
    EXPECT_EQ("2", Item(Contents(home / "out" / "VantDemo.xml"), "Runs"));
    const std::string console = Contents(home / "out" / "Logs" / "Console.csv");
    EXPECT_THAT(console, HasSubstr("run 1"));
    EXPECT_THAT(console, HasSubstr("run 2")) << "the second run found the file again";
    EXPECT_FALSE(fs::exists(home / "out" / "Logs" / "Alarms.csv"));
}

TEST_F(FirstUse, FilesOfEveryKindOpenInAFolderOutsideTheCodePage)
{
    const fs::path home = m_dir / folder;
    fs::copy(TestDir() / "data", home, fs::copy_options::recursive);
    fs::copy_file(TestDir() / "clt" / "depths.clt", home / L"\u6D4B.clt");
    const auto in = [&](const wchar_t* name) { return CString((home / name).c_str()); };

    CColTbl table;
    EXPECT_TRUE(table.Load(in(L"\u6D4B.clt")));
    EXPECT_EQ(nullptr, Vant::alarm.FindEntry(70));
    CModel model;
    EXPECT_TRUE(model.Read3DS(in(L"boat.3ds")));
    unsigned char pixels[2 * 2 * 4] = {};
    EXPECT_TRUE(Vant::WriteImg(in(L"\u6D4B.png"), 2, 2, pixels));
    EXPECT_TRUE(Vant::WriteImg(in(L"\u6D4B.bmp"), 2, 2, pixels));
    CEAvi video;
    EXPECT_TRUE(video.Open(in(L"\u6D4B.avi")));
    video.Close();
    EXPECT_TRUE(fs::exists(home / L"\u6D4B.avi"));
    CESet written(1);
    written.AddCol(L"One");
    EXPECT_TRUE(written.Save(in(L"\u6D4B.xml")));
    CESet read(0);
    EXPECT_TRUE(read.Load(in(L"\u6D4B.xml")));
    EXPECT_TRUE(read.GetCol(L"One"));
}

TEST_F(FirstUse, AnApplicationsLanguageChangesNoFile)
{
    const auto write = [&](const fs::path& dir) {
        fs::create_directories(dir);
        CESet set(1);
        CESetObj* const obj = set.AddCol(L"One")->AddObj(L"Two", L"Three");
        double number = 1234.5;
        obj->Item(L"Number", number);
        Vant::AppendToFile((dir / "log.csv").c_str(), EUnits::Get(0, 2.5, L"%0.2lf", 1));
        EXPECT_TRUE(set.Save((dir / "set.xml").c_str()));
        CESet back(0);
        EXPECT_TRUE(back.Load((dir / "set.xml").c_str()));
        number = 0;
        back.GetCol(L"One")->GetObj(L"Two")->Item(L"Number", number);
        EXPECT_EQ(1234.5, number);
        CColTbl table;
        table.Load((TestDir() / "clt" / "depths.clt").c_str());
        std::string colours;
        for (unsigned i = 0; table.cols.ValidIndex(static_cast<int>(i)); ++i)
            colours += std::to_string(table.cols[i]->red) + ' ';
        const std::string settings = Contents(dir / "set.xml");
        return Contents(dir / "log.csv") + settings.substr(settings.find("<Collection")) + colours;
    };
    const std::string plain = write(m_dir / "plain");
    if (!std::setlocale(LC_ALL, "German_Germany.1252"))
        GTEST_SKIP() << "this system has no German language";
    const std::string german = write(m_dir / "german");
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(plain, german);
    EXPECT_THAT(plain, HasSubstr("2.50"));
}
