#include "platform/PlatformTest.h"

#include <filesystem>
#include <fstream>
#include <thread>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using vant::detail::LogTarget;
namespace fs = std::filesystem;

class VantFiles : public PlatformTest
{
protected:
    const std::wstring dir = TempDir();

    std::wstring At(const wchar_t* name) const { return dir + name; }

    static std::string Bytes(const std::wstring& file)
    {
        std::ifstream in(fs::path(file), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    static void Touch(const fs::path& file)
    {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << "x";
    }

    static wchar_t MissingDrive()
    {
        for (wchar_t letter = L'B'; letter <= L'Z'; ++letter)
            if ((GetLogicalDrives() >> (letter - L'A') & 1) == 0)
                return letter;
        return 0;
    }
};

} // namespace

TEST_F(VantFiles, AppendingMakesDirectoriesAndKeepsTheTextAsItIs)
{
    const std::wstring file = At(L"Logs\\2026\\Console.csv");
    Vant::AppendToFile(file.c_str(), L"first, 1.5\r\n");
    Vant::AppendToFile(file.c_str(), L"");
    Vant::AppendToFile(file.c_str(), L"second\nno end \x00B0");
    const std::string text = Bytes(file);
    EXPECT_EQ(text.substr(0, 26), "first, 1.5\r\nsecond\nno end ");
    EXPECT_GT(text.size(), 26u);
    EXPECT_THAT(Messages(LogTarget::alarm), IsEmpty());
}

TEST_F(VantFiles, AppendingNowhereDoesNothing)
{
    Vant::AppendToFile(L"", L"text");
    EXPECT_THAT(Messages(LogTarget::alarm), IsEmpty());
}

TEST_F(VantFiles, LinesOfManyThreadsArriveWhole)
{
    constexpr int threads = 4;
    constexpr int lines = 200;
    const std::wstring file = At(L"shared.csv");
    std::vector<std::thread> writers;
    for (int t = 0; t < threads; ++t)
        writers.emplace_back([&, t] {
            for (int i = 0; i < lines; ++i)
                Vant::AppendToFile(file.c_str(), CString(static_cast<wchar_t>(L'a' + t), 40) + L"\n");
        });
    for (auto& writer : writers)
        writer.join();
    std::ifstream in{fs::path(file)};
    int count = 0;
    for (std::string line; std::getline(in, line); ++count)
        EXPECT_EQ(line, std::string(40, line.empty() ? '?' : line[0]));
    EXPECT_EQ(count, threads * lines);
}

TEST_F(VantFiles, AFileThatCannotBeOpenedRaisesAlarm6010WithTheLine)
{
    fs::create_directories(At(L"a.csv"));
    Vant::AppendToFile(At(L"a.csv").c_str(), L"12,Alarm");
    EXPECT_THAT(Messages(LogTarget::alarm),
                ElementsAre(Logged{6010, 1,
                                   L"Append To File: Could not open file <" + At(L"a.csv") +
                                       L"> to log string <12,Alarm>"}));
}

TEST_F(VantFiles, ALockedFileRaisesAlarm6010OnceItIsTried)
{
    const std::wstring file = At(L"locked.csv");
    const HANDLE lock = ::CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    Vant::AppendToFile(file.c_str(), L"kept out");
    ::CloseHandle(lock);
    EXPECT_THAT(Messages(LogTarget::alarm), ElementsAre(Logged{6010, 1,
                                                               L"Append To File: Could not open file <" +
                                                                   file + L"> to log string <kept out>"}));
    Vant::AppendToFile(file.c_str(), L"let in");
    EXPECT_EQ(Bytes(file), "let in");
}

TEST_F(VantFiles, LongLinesAreWrittenWhole)
{
    const std::wstring file = At(L"long.csv");
    for (const int length : {255, 256, 257, 100000})
        Vant::AppendToFile(file.c_str(), CString(L'\x00E9', length) + L"\n");
    std::ifstream in{fs::path(file)};
    std::vector<std::size_t> lengths;
    for (std::string line; std::getline(in, line);)
        lengths.push_back(line.size());
    const std::size_t unit = static_cast<std::size_t>(
        ::WideCharToMultiByte(CP_ACP, 0, L"\x00E9", 1, nullptr, 0, nullptr, nullptr));
    EXPECT_THAT(lengths, ElementsAre(255 * unit, 256 * unit, 257 * unit, 100000 * unit));
}

TEST_F(VantFiles, AFullDiskRaisesAlarm6010WithTheCause)
{
    const HANDLE full = ::CreateFileW(L"Z:\\dev\\full", FILE_APPEND_DATA, FILE_SHARE_WRITE, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    if (full == INVALID_HANDLE_VALUE)
        GTEST_SKIP() << "no device that is always full on this system";
    ::CloseHandle(full);
    Vant::AppendToFile(L"Z:\\dev\\full", L"lost");
    ASSERT_EQ(alarms.size(), 1u);
    EXPECT_EQ(alarms[0].id, 6010u);
    EXPECT_EQ(alarms[0].text, L"Append To File: Could not open file <Z:\\dev\\full> to log string <lost> "
                              L"cause:The disk is full.");
}

TEST_F(VantFiles, AnAlarmWhoseOwnLineFailsIsReportedOnce)
{
    // An alarm sink that logs to a file that cannot be opened either, as a console with a bad log file does.
    class Logging : public vant::test::LogRecorder
    {
    public:
        CECEntry* Update(unsigned long id, int& state, const CString& text) override
        {
            CECEntry* const entry = LogRecorder::Update(id, state, text);
            ++updates;
            Vant::CreateDirPath(directory);
            Vant::AppendToFile(file, text);
            return entry;
        }
        CString directory;
        CString file;
        int updates = 0;
    };
    fs::create_directories(At(L"bad.csv"));
    Logging sink;
    sink.file = At(L"bad.csv").c_str();
    vant::detail::SetLogSink(LogTarget::alarm, &sink);
    Vant::AppendToFile(At(L"bad.csv").c_str(), L"line");
    EXPECT_EQ(sink.updates, 1);

    Touch(At(L"file"));
    sink.directory = At(L"file\\below").c_str();
    Vant::CreateDirPath(At(L"file\\other").c_str());
    EXPECT_EQ(sink.updates, 2);

    // Where the log's own directory can be made, the line that reports another file arrives.
    sink.directory.Empty();
    sink.file = At(L"new\\alarms.csv").c_str();
    Vant::AppendToFile(At(L"bad.csv").c_str(), L"line");
    EXPECT_EQ(sink.updates, 3);
    EXPECT_THAT(Bytes(At(L"new\\alarms.csv")), StartsWith("Append To File: Could not open file <"));
    vant::detail::SetLogSink(LogTarget::alarm, &vant::test::Recorder(LogTarget::alarm));
}

TEST_F(VantFiles, DirectoriesAreMadeFromEveryKindOfPath)
{
    EXPECT_EQ(Vant::CreateDirPath(At(L"").c_str()), 1);
    EXPECT_EQ(Vant::CreateDirPath(At(L"a\\b\\c\\").c_str()), 1);
    EXPECT_TRUE(fs::is_directory(At(L"a\\b\\c")));
    std::wstring slashes = At(L"d/e");
    std::replace(slashes.begin(), slashes.end(), L'\\', L'/');
    EXPECT_EQ(Vant::CreateDirPath(slashes.c_str()), 1);
    EXPECT_TRUE(fs::is_directory(At(L"d\\e")));

    const fs::path before = fs::current_path();
    fs::current_path(dir);
    EXPECT_EQ(Vant::CreateDirPath(L"relative\\path"), 1);
    fs::current_path(before);
    EXPECT_TRUE(fs::is_directory(At(L"relative\\path")));
    EXPECT_THAT(Messages(LogTarget::alarm), IsEmpty());
}

TEST_F(VantFiles, DirectoriesDeeperThanTwentyAreLeftOut)
{
    // The drive and the directory of the test count too; two levels more than fit are asked for.
    std::wstring path = dir;
    const auto depth = static_cast<int>(std::count(dir.begin(), dir.end(), L'\\'));
    for (int i = depth; i < 22; ++i)
        path += L"n\\";
    EXPECT_EQ(Vant::CreateDirPath(path.c_str()), 1);
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(fs::is_directory(path.substr(0, path.size() - 4)));
}

TEST_F(VantFiles, AMissingDriveAndAFileInTheWayAreReported)
{
    const wchar_t drive = MissingDrive();
    ASSERT_NE(drive, 0);
    EXPECT_EQ(Vant::CreateDirPath(CString(drive) + L":\\Data\\Logs"), 0);
    EXPECT_THAT(Messages(LogTarget::alarm),
                ElementsAre(Logged{0, 1, L"Cannot create directory Invalid Drive"}));
    vant::test::Recorder(LogTarget::alarm).Clear();
    alarms.clear();

    Touch(At(L"file"));
    EXPECT_EQ(Vant::CreateDirPath(At(L"file\\below").c_str()), 0);
    ASSERT_EQ(alarms.size(), 1u);
    EXPECT_EQ(alarms[0].id, 0u);
    EXPECT_EQ(alarms[0].text,
              L"Cannot create directory, Err=" + Text(Vant::ErrorString(ERROR_ALREADY_EXISTS)));
    vant::test::Recorder(LogTarget::alarm).Clear();
    alarms.clear();

    // A line for a drive that is not there: the directory's failure is told, then the file's.
    const CString file = CString(drive) + L":\\Logs\\a.csv";
    Vant::AppendToFile(file, L"x");
    EXPECT_THAT(
        Messages(LogTarget::alarm),
        ElementsAre(
            Logged{0, 1, L"Cannot create directory Invalid Drive"},
            Logged{6010, 1, L"Append To File: Could not open file <" + Text(file) + L"> to log string <x>"}));
}

TEST_F(VantFiles, SharesAreFollowedFromTheirRoot)
{
    // The machine's own drive through the device name: "\\?\C:" is a root as a share is.
    EXPECT_EQ(Vant::CreateDirPath((L"\\\\?\\" + At(L"unc\\below")).c_str()), 1);
    EXPECT_TRUE(fs::is_directory(At(L"unc\\below")));

    EXPECT_EQ(Vant::CreateDirPath(L"\\\\no.such.host.invalid\\share\\below"), 0);
    ASSERT_EQ(alarms.size(), 1u);
    EXPECT_THAT(Text(alarms[0].text.c_str()), StartsWith(L"Cannot create directory, Err="));
}

TEST_F(VantFiles, ClearingDeletesMatchesAndTheDirectoriesThatBecomeEmpty)
{
    Touch(At(L"a.tmp"));
    Touch(At(L"keep.csv"));
    Touch(At(L"page.tmpl"));
    Touch(At(L"emptied\\deeper\\B.TMP"));
    Touch(At(L"mixed\\c.tmp"));
    Touch(At(L"mixed\\keep.csv"));
    fs::create_directories(At(L"already empty"));
    Vant::ClearDirOfFiles(dir.c_str(), L"*.tmp");

    std::vector<std::wstring> left;
    for (const auto& entry : fs::recursive_directory_iterator(dir))
        left.push_back(entry.path().lexically_relative(dir).generic_wstring());
    EXPECT_THAT(left, testing::UnorderedElementsAre(L"keep.csv", L"page.tmpl", L"mixed", L"mixed/keep.csv"));

    Vant::ClearDirOfFiles(dir.substr(0, dir.size() - 1).c_str(), L"*.*");
    EXPECT_TRUE(fs::is_empty(dir));
    Vant::ClearDirOfFiles(L"", L"*.*");
    Vant::ClearDirOfFiles(At(L"not there").c_str(), L"*");
}

TEST_F(VantFiles, ClearingDoesNotFollowLinks)
{
    Touch(At(L"elsewhere\\mine.tmp"));
    fs::create_directories(At(L"cleared"));
    if (!::CreateSymbolicLinkW(At(L"cleared\\link").c_str(), At(L"elsewhere").c_str(),
                               SYMBOLIC_LINK_FLAG_DIRECTORY | 2)) // 2: also without the privilege
        GTEST_SKIP() << "no links on this system";
    Vant::ClearDirOfFiles(At(L"cleared").c_str(), L"*");
    EXPECT_TRUE(fs::exists(At(L"elsewhere\\mine.tmp")));
}

TEST(VantNames, TheNameIsWhatFollowsTheLastSlash)
{
    CString name;
    EXPECT_EQ(Vant::NamePart(L"C:\\Data\\track.csv", name), 1);
    EXPECT_EQ(name, L"track.csv");
    EXPECT_EQ(Vant::NamePart(L"C:/Data/track.csv", name), 1);
    EXPECT_EQ(name, L"track.csv");
    EXPECT_EQ(Vant::NamePart(L"C:\\Data\\", name), 1);
    EXPECT_EQ(name, L"");
    EXPECT_EQ(Vant::NamePart(L"track.csv", name), 0);
    EXPECT_EQ(name, L"track.csv");
    name = L"D:\\a.csv";
    EXPECT_EQ(Vant::NamePart(name, name), 1);
    EXPECT_EQ(name, L"a.csv");
}

TEST(VantNames, FileCausesHaveTheirTexts)
{
    EXPECT_EQ(Vant::FileExceptionStr(0), L"No Error");
    EXPECT_EQ(Vant::FileExceptionStr(1), L"An unspecified error occurred.");
    EXPECT_EQ(Vant::FileExceptionStr(2), L"The file could not be located");
    EXPECT_EQ(Vant::FileExceptionStr(3), L"All or part of the path is invalid.");
    EXPECT_EQ(Vant::FileExceptionStr(4), L"The permitted number of open files was exceeded.");
    EXPECT_EQ(Vant::FileExceptionStr(5), L"The file could not be accessed.");
    EXPECT_EQ(Vant::FileExceptionStr(6), L"There was an attempt to use an invalid file handle.");
    EXPECT_EQ(Vant::FileExceptionStr(7), L"The current working directory cannot be removed.");
    EXPECT_EQ(Vant::FileExceptionStr(8), L"There are no more directory entries.");
    EXPECT_EQ(Vant::FileExceptionStr(9), L"There was an error trying to set the file pointer.");
    EXPECT_EQ(Vant::FileExceptionStr(10), L"There was a hardware error.");
    EXPECT_EQ(Vant::FileExceptionStr(11), L"SHARE.EXE was not loaded, or a shared region was locked.");
    EXPECT_EQ(Vant::FileExceptionStr(12), L"There was an attempt to lock a region that was already locked.");
    EXPECT_EQ(Vant::FileExceptionStr(13), L"The disk is full.");
    EXPECT_EQ(Vant::FileExceptionStr(14), L"The end of file was reached.");
    EXPECT_EQ(Vant::FileExceptionStr(15), L"Unknown Error");
    EXPECT_EQ(Vant::FileExceptionStr(-1), L"Unknown Error");
}

TEST(VantNames, SystemErrorsAreOneLineAndNeverEmpty)
{
    const CString text = Vant::ErrorString(ERROR_FILE_NOT_FOUND);
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_EQ(text.FindOneOf(L"\r\n"), -1);
    EXPECT_EQ(Vant::ErrorString(0xDEADBEEF), L"Error 3735928559");
}
