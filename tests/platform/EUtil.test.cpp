#include "platform/EUtil.h"

#include "platform/PlatformTest.h"
#include "support/FatalMemory.h"
#include "support/NoLargeBlocks.h"

#include <cstdlib>
#include <cstring>

namespace
{

using vant::test::LeaveNoRoomBeyond;
using vant::test::PrintFatalErrors;

} // namespace

TEST(EUtil, BlocksKeepTheirContentsWhenTheyGrowAndShrink)
{
    auto* block = static_cast<char*>(EUtil::Malloc(4));
    std::memcpy(block, "abcd", 4);
    block = static_cast<char*>(EUtil::Realloc(block, 100000));
    EXPECT_EQ(std::memcmp(block, "abcd", 4), 0);
    block = static_cast<char*>(EUtil::Realloc(block, 2));
    EXPECT_EQ(std::memcmp(block, "ab", 2), 0);
    std::free(block);
    std::free(EUtil::Realloc(nullptr, 10));
}

TEST(EUtil, EmptyBlocksAreNotNull)
{
    void* block = EUtil::Malloc(0);
    EXPECT_NE(block, nullptr);
    block = EUtil::Realloc(block, 0);
    EXPECT_NE(block, nullptr);
    std::free(block);
}

TEST(EUtilDeathTest, FatalErrorsNameTheApplicationAndTheCause)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            Vant::appTitle = L"Boat";
            EUtil::FatalErr(L"no keel");
        },
        testing::ExitedWithCode(1), "\\[Boat\\] Boat has to exit due to an error\r?\nCause: no keel");
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            EUtil::FatalMemErr(L"sounder");
        },
        testing::ExitedWithCode(1),
        "No Assigned Title has to exit due to insufficient memory\r?\nCause: sounder");
}

TEST(EUtilDeathTest, ExhaustedMemoryEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            LeaveNoRoomBeyond(0);
            EUtil::Malloc(0xFFFFFFFF);
        },
        testing::ExitedWithCode(1), "Cause: Malloc cannot allocate -1 bytes");
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            LeaveNoRoomBeyond(0);
            EUtil::Realloc(nullptr, 0x7FFFFFFF);
        },
        testing::ExitedWithCode(1), "Cause: Realloc cannot allocate 2147483647 bytes");
}

// Neither way of allocating goes through EUtil; starting the platform class makes both end there.
TEST(EUtilDeathTest, ExhaustedMemoryEndsTheProcessWhicheverWayItWasAskedFor)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    constexpr int large = 10'000'000; // characters
    constexpr auto message = "No Assigned Title has to exit due to insufficient memory\r?\n"
                             "Cause: New cannot allocate memory";
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            Vant::Init();
            const vant::test::NoLargeBlocks exhausted(L"VantAfx.dll");
            const CString text(L'x', large);
        },
        testing::ExitedWithCode(1), message);
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            Vant::Init();
            const CString text(L'x', large);
            const vant::test::NoLargeBlocks exhausted(L"VantCore.dll");
            Vant::AppendToFile(L"nul", text); // its bytes are a buffer of the library's operator new
        },
        testing::ExitedWithCode(1), message);
}
