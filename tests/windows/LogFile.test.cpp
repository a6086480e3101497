#include "windows/detail/LogFile.h"

#include "platform/Vant.h"
#include "windows/CCslAlm.h"
#include "windows/WindowsTest.h"

#include <atomic>
#include <filesystem>
#include <thread>

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using vant::detail::LogFile;

/** A file whose name a directory has, until it is freed. */
class LogFileTest : public WindowsTest
{
protected:
    LogFileTest() { std::filesystem::create_directories(Text(m_file)); }
    ~LogFileTest() override { Vant::alarm.ClearList(); }

    void Free() { std::filesystem::remove(Text(m_file)); }

    static int Alarms()
    {
        CECEntry alarm;
        return Vant::alarm.GetEntry(6010, alarm) ? alarm.repeats : 0;
    }

    const CString m_file = (Dir() + L"log.csv").c_str();
};

} // namespace

TEST_F(LogFileTest, LinesWaitInTheirOrderAfterOneAlarm)
{
    LogFile log(0);
    for (const wchar_t* const line : {L"one", L"two", L"thr\u00E9e"})
        log.Write(m_file, line);
    EXPECT_EQ(Alarms(), 1);
    Free();
    log.Write(m_file, L"four");
    log.Write(m_file, L"five");
    EXPECT_THAT(FileLines(m_file), ElementsAre("one", "two",
                                               "thr\xE9"
                                               "e",
                                               "four", "five"));
    std::filesystem::remove(Text(m_file));
    std::filesystem::create_directories(Text(m_file));
    log.Write(m_file, L"six");
    EXPECT_EQ(Alarms(), 2) << "it has worked in between";
}

TEST_F(LogFileTest, IsTriedAgainAfterAPauseWithAnotherFileAndAtTheEnd)
{
    LogFile log(3'600'000);
    log.Write(m_file, L"one");
    Free();
    log.Write(m_file, L"two");
    EXPECT_FALSE(std::filesystem::exists(Text(m_file)));
    const CString other = (Dir() + L"other.csv").c_str();
    log.Write(other, L"three");
    EXPECT_THAT(FileLines(other), ElementsAre("one", "two", "three"));

    std::filesystem::create_directories(Text(m_file));
    log.Write(m_file, L"four");
    Free();
    log.Flush();
    EXPECT_THAT(FileLines(m_file), ElementsAre("four"));
}

TEST_F(LogFileTest, KeepsALineThatComesWhileTheOthersAreOffered)
{
    // It is on its way to those that wait when they have just reached the file.
    constexpr int rounds = 150;
    LogFile log(3'600'000);
    std::atomic<int> round = -1;
    std::atomic<int> done = -1;
    std::jthread other([&] {
        for (int i = 0; i < rounds; ++i) {
            while (round != i)
                std::this_thread::yield();
            log.Write(m_file, L"late");
            done = i;
        }
    });
    std::size_t written = 0;
    for (int i = 0; i < rounds; ++i) {
        std::filesystem::create_directories(Text(m_file));
        log.Write(m_file, L"early");
        Free();
        round = i;
        log.Flush();
        while (done != i)
            std::this_thread::yield();
        log.Flush();
        written += FileLines(m_file).size();
        std::filesystem::remove(Text(m_file));
    }
    EXPECT_EQ(written, 2U * rounds);
}

TEST_F(LogFileTest, TellsHowManyLinesCouldNotWait)
{
    LogFile log(0);
    const CString line(L'x', 1022); // 1024 with its end
    constexpr int fit = static_cast<int>(LogFile::mostWaiting / 1024);
    for (int i = 0; i < fit + 7; ++i)
        log.Write(m_file, line);
    Free();
    log.Flush();
    const auto lines = FileLines(m_file);
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(fit + 1));
    EXPECT_THAT(lines.back(), HasSubstr("7 lines are missing here"));
    EXPECT_EQ(Alarms(), 1);
}

TEST_F(LogFileTest, AFullDiskIsOneAlarmToo)
{
    const CString full = L"Z:\\dev\\full";
    const HANDLE there =
        ::CreateFileW(full, FILE_APPEND_DATA, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (there == INVALID_HANDLE_VALUE)
        GTEST_SKIP() << "this machine has no full disk";
    ::CloseHandle(there);
    LogFile log(0);
    for (int i = 0; i < 50; ++i)
        log.Write(full, L"line");
    EXPECT_EQ(Alarms(), 1);
    CECEntry alarm;
    ASSERT_TRUE(Vant::alarm.GetEntry(6010, alarm));
    EXPECT_THAT(Text(alarm.text), HasSubstr(L"The disk is full."));
}
