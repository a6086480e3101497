#include "Compare.h"
#include "TempFile.h"

#include "platform/Vant.h"

#include <catch2/catch.hpp>

#define FMT_HEADER_ONLY
#define SPDLOG_FMT_EXTERNAL
#define SPDLOG_HEADER_ONLY
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>

#include <memory>
#include <string>

namespace
{

constexpr int lines = 200;

const char* const lineText = "00012. (12:34:56) :Unable to get value err=Not in range";
const std::string narrowLine = std::string(lineText) + "\r\n";

/** A log file that goes with its round. */
class LogFile : public TempFile
{
public:
    using TempFile::TempFile;
    bool IsComplete() const { return Size() == lines * narrowLine.size(); }
};

void OurRound(Stopwatch& watch)
{
    const LogFile file(L"ours.csv");
    const CString path = file.Path().c_str();
    const CString line = narrowLine.c_str();
    watch.Measure([&] {
        for (int i = 0; i < lines; ++i)
            Vant::AppendToFile(path, line);
    });
    REQUIRE(file.IsComplete());
}

/** What opening, writing and closing costs without anything else. */
void SystemRound(Stopwatch& watch)
{
    const LogFile file(L"system.csv");
    watch.Measure([&] {
        for (int i = 0; i < lines; ++i) {
            const HANDLE handle = ::CreateFileW(file.Path().c_str(), FILE_APPEND_DATA, FILE_SHARE_READ,
                                                nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
            DWORD written = 0;
            ::WriteFile(handle, narrowLine.data(), static_cast<DWORD>(narrowLine.size()), &written, nullptr);
            ::CloseHandle(handle);
        }
    });
    REQUIRE(file.IsComplete());
}

void SpdlogRound(Stopwatch& watch)
{
    const LogFile file(L"spdlog.csv");
    {
        auto sink = std::make_shared<spdlog::sinks::basic_file_sink_mt>(file.Path().string());
        spdlog::logger logger("bench", sink);
        logger.set_pattern("%v");
        logger.flush_on(spdlog::level::info);
        watch.Measure([&] {
            for (int i = 0; i < lines; ++i)
                logger.info("{}", lineText);
        });
    }
    REQUIRE(file.IsComplete());
}

} // namespace

TEST_CASE("logging")
{
    // Every line is there for others to see when the call returns, so each opens, writes and closes; the
    // first peer says what that costs by itself, the second what a file that stays open would save.
    Compare("logging: one line of a file (open, append, close)", OurRound, SystemRound, {.target = 1.25});
    Compare("logging: one line of a file (spdlog, file open, flushed)", OurRound, SpdlogRound);
}
