#include "demo/detail/Tape.h"

#include "Files.h"
#include "Lines.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>

#include <windows.h>

using demo::Tape;
using testing::DoubleEq;
using testing::ElementsAre;

namespace
{

/** A log of one line per word: "hhmmss" gives an RMC of that time, "x" a heading, "?" a damaged line. */
std::string Log(std::initializer_list<std::string_view> words)
{
    std::string log;
    for (const std::string_view word : words) {
        if (word == "x")
            log += Line("HEHDT,65.7,T");
        else if (word == "?")
            log += "$HEHDT,65.7,T*00";
        else
            log += Line(std::string("GPRMC,") + std::string(word) + ",V,,,,,,,170624,,");
        log += "\r\n";
    }
    return log;
}

std::vector<double> Times(const Tape& tape)
{
    std::vector<double> times;
    for (std::size_t i = 0; i < tape.Size(); ++i)
        times.push_back(tape.Time(i));
    return times;
}

} // namespace

TEST(Tape, SpreadsLinesBetweenTheTimes)
{
    const Tape tape(Log({"094120", "x", "x", "?", "094121", "x", "094123", "x"}));
    EXPECT_THAT(Times(tape), ElementsAre(0, 0.25, 0.5, 0.75, 1, 2, 3, 4));
    EXPECT_EQ("$HEHDT,65.7,T*00", tape.Line(3));
    EXPECT_EQ(4.0, tape.Duration());
}

TEST(Tape, LinesOfOneTimeBelongToOneStep)
{
    EXPECT_THAT(Times(Tape(Log({"094120", "094120", "x", "x", "094121", "094121"}))),
                ElementsAre(0, 0.25, 0.5, 0.75, 1, 1.25));
}

TEST(Tape, LinesBeforeTheFirstTimeAreDueAtOnce)
{
    EXPECT_THAT(Times(Tape(Log({"x", "x", "094120", "x", "094121"}))), ElementsAre(0, 0, 0, 0.5, 1));
}

TEST(Tape, WithoutTimesTenLinesASecond)
{
    EXPECT_THAT(Times(Tape(Log({"x", "?", "x"}))), ElementsAre(DoubleEq(0), DoubleEq(0.1), DoubleEq(0.2)));
    EXPECT_THAT(Times(Tape(Log({"094120", "x"}))), ElementsAre(DoubleEq(0), DoubleEq(0.1)));
}

TEST(Tape, PassesMidnightAndOddClocks)
{
    EXPECT_THAT(Times(Tape(Log({"235959", "000000", "000001"}))), ElementsAre(0, 1, 2));
    EXPECT_THAT(Times(Tape(Log({"100000", "100001", "095000", "095001"}))), ElementsAre(0, 1, 1, 2))
        << "set back: one step stands still";
    EXPECT_THAT(Times(Tape(Log({"100000", "110000", "110001"}))), ElementsAre(0, 60, 61)) << "a pause is cut";
}

TEST(Tape, ReadsAFileAsFarAsItIsPlayed)
{
    const vant::test::TempDir dir;
    const fs::path file = dir.Path(L"log.nmea").GetString();
    const std::string log(3'000'000, 'x');
    std::ofstream(file, std::ios::binary) << log;
    EXPECT_TRUE(Tape::BytesOf(file) == log);
    EXPECT_EQ(2'500'000U, Tape::BytesOf(file, 2'500'000).value().size());
    EXPECT_FALSE(Tape::BytesOf(file.parent_path())) << "a directory";
    fs::remove(file);
    EXPECT_FALSE(Tape::BytesOf(file)) << "no file";
}

TEST(Tape, TakesAnyBytes)
{
    EXPECT_EQ(0U, Tape("").Size());
    EXPECT_EQ(0.0, Tape("").Duration());
    EXPECT_EQ(0U, Tape("\r\n\n\r\n").Size());
    const Tape noise(std::string("\0\xFF\x80 no line end", 15));
    ASSERT_EQ(1U, noise.Size());
    EXPECT_EQ(15U, noise.Line(0).size());
}
