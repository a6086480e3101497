#include "values/CEVal.h"

#include <atomic>
#include <cstdint>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "support/EveryType.h"
#include "values/Bound.h"
#include "values/CStrVal.h"

using testing::ElementsAre;

namespace
{

/** A mutex whose lock can be made to fail. */
class FickleMutex : public CMutex
{
public:
    BOOL Lock(DWORD timeout = INFINITE) override
    {
        lastTimeout = timeout;
        ++locks;
        return refuse ? FALSE : CMutex::Lock(timeout);
    }
    BOOL Unlock() override
    {
        ++unlocks;
        return CMutex::Unlock();
    }

    bool refuse = false;
    int locks = 0;
    int unlocks = 0;
    DWORD lastTimeout = 0;
};

class Listener : public CObject
{
public:
    void None() { calls.push_back("none"); }
    void Int(int v) { calls.push_back("int " + std::to_string(v)); }
    void Double(double v) { calls.push_back("double " + std::to_string(v)); }
    void Ptr(void* v) { calls.push_back("ptr " + std::to_string(reinterpret_cast<std::uintptr_t>(v))); }

    std::vector<std::string> calls;
};

void ListenToAll(CEVal& value, Listener& listener)
{
    value.SetCallback(&listener, static_cast<CEVal::CbPtr>(&Listener::Ptr));
    value.SetCallback(&listener, static_cast<CEVal::CbDouble>(&Listener::Double));
    value.SetCallback(&listener, static_cast<CEVal::CbInt>(&Listener::Int));
    value.SetCallback(&listener, static_cast<CEVal::CbNone>(&Listener::None));
}

template <class T>
T AfterSetVal(double v)
{
    T variable{};
    Bound(variable).SetVal(v);
    return variable;
}

} // namespace

TEST(CEValBinding, UnboundValue)
{
    CEVal value;
    EXPECT_EQ(value.type, 0);
    EXPECT_EQ(value.pVal, nullptr);
    EXPECT_EQ(value.aux0, 1);
    EXPECT_EQ(value.units, -1);
    EXPECT_EQ(value.text, L"");
    EXPECT_EQ(value.rangeSet, 0);
    EXPECT_EQ(value.rangeMin, 0.0);
    EXPECT_EQ(value.rangeMax, 1.0);
    EXPECT_EQ(value.decimals, -1);
    EXPECT_EQ(value.scale, 1.0);
    EXPECT_EQ(value.pMutex, nullptr);
    EXPECT_EQ(value.enIf, 0);

    EXPECT_EQ(value = 5, 5);
    const int read = value;
    EXPECT_EQ(read, 0);
    const CString text = value;
    EXPECT_EQ(text, L"");
    value.SetVal(3.0);
    EXPECT_EQ(value.GetVal(), 0.0);
    value.Execute();
}

TEST(CEValBinding, EveryInitSetsItsTypeAndBinds)
{
    vant::test::EveryType variables;
    auto& [pointer, string, c, s, i, uc, us, ui, f, d, ul, i64] = variables;
    const auto check = [](auto& variable, int type) {
        const CEVal value = Bound(variable);
        EXPECT_EQ(value.type, type);
        EXPECT_EQ(value.pVal, &variable);
    };
    CEVal value;
    value.Init(&pointer);
    EXPECT_EQ(value.type, 0);
    EXPECT_EQ(value.pVal, &pointer);
    check(string, 1);
    check(c, 2);
    check(s, 3);
    check(i, 4);
    check(uc, 5);
    check(us, 6);
    check(ui, 7);
    check(f, 8);
    check(d, 9);
    check(ul, 10);
    check(i64, 11);
}

TEST(CEValBinding, FixedTextUnbindsAndInitValKeepsTheType)
{
    double first = 1.0;
    double second = 2.0;
    CEVal value = Bound(first);
    value.InitVal(&second);
    EXPECT_EQ(value.type, 9);
    EXPECT_EQ(value.GetVal(), 2.0);

    wchar_t label[] = L"Depth";
    value.Init(label);
    label[0] = L'x';
    EXPECT_EQ(value.type, 1);
    EXPECT_EQ(value.pVal, nullptr);
    EXPECT_EQ(value.GetText(1), L"Depth");
}

TEST(CEValBinding, CopiesShareTheVariableAndCarryEverything)
{
    double depth = 1.0;
    int enable = 1;
    CMutex mutex;
    Listener listener;
    CEVal value = Bound(depth);
    ListenToAll(value, listener);
    value.SetMutex(&mutex);
    value.SetRange(-5.0, 5.0);
    value.tip = L"tip";
    value.aux1 = L"one";
    value.aux3 = L"three";
    value.aux4 = 4.0;
    value.units = 0;
    value.scale = 2.0;
    value.decimals = 3;
    value.pEnVar = &enable;

    CEVal copy;
    copy = value;
    copy.SetVal(7.0);
    EXPECT_EQ(depth, 7.0);
    EXPECT_EQ(copy.tip, L"tip");
    EXPECT_EQ(copy.aux1, L"one");
    EXPECT_EQ(copy.aux3, L"three");
    EXPECT_EQ(copy.aux4, 4.0);
    EXPECT_EQ(copy.units, 0);
    EXPECT_EQ(copy.scale, 2.0);
    EXPECT_EQ(copy.decimals, 3);
    EXPECT_EQ(copy.pMutex, &mutex);
    EXPECT_EQ(copy.rangeSet, 1);
    EXPECT_EQ(copy.rangeMin, -5.0);
    EXPECT_EQ(copy.pEnVar, &enable);
    copy.Execute();
    EXPECT_EQ(listener.calls.size(), 4u);
}

TEST(CEValAccess, OperatorsWriteAndReadAtTheirOwnWidth)
{
    unsigned int bits = 0xAABBCCDDu;
    CEVal value = Bound(bits);
    EXPECT_EQ(value = char{0x11}, 0x11);
    EXPECT_EQ(bits, 0xAABBCC11u);
    EXPECT_EQ(value = static_cast<short>(0x2233), 0x2233);
    EXPECT_EQ(bits, 0xAABB2233u);
    EXPECT_EQ(value = -1, -1);
    EXPECT_EQ(bits, 0xFFFFFFFFu);
    value = static_cast<unsigned char>(0x80);
    const char asChar = value;
    const unsigned char asUChar = value;
    const short asShort = value;
    const unsigned short asUShort = value;
    EXPECT_EQ(asChar, -128);
    EXPECT_EQ(asUChar, 128);
    EXPECT_EQ(asShort, -128);
    EXPECT_EQ(asUShort, 0xFF80);
    value = 4000000000ul;
    const unsigned int asUInt = value;
    EXPECT_EQ(asUInt, 4000000000u);
    value = 2.5f;
    const float asFloat = value;
    EXPECT_EQ(asFloat, 2.5f);
    EXPECT_EQ(bits, 0x40200000u); // the write is bitwise

    double real = 0;
    value.Init(real);
    EXPECT_EQ(value = -0.5, -0.5);
    const double asDouble = value;
    const __int64 asInt64 = value;
    EXPECT_EQ(asDouble, -0.5);
    EXPECT_EQ(asInt64, static_cast<__int64>(0xBFE0000000000000u));

    int target = 0;
    void* pointer = &target;
    value.Init(&pointer);
    void* const asPointer = value;
    EXPECT_EQ(asPointer, &target);
    EXPECT_EQ(value = static_cast<__int64>(0x1234), 0x1234);
    EXPECT_EQ(pointer, reinterpret_cast<void*>(0x1234));

    CString string = L"old";
    value.Init(string);
    EXPECT_EQ(value = CString(L"new"), L"new");
    const CString asString = value;
    EXPECT_EQ(asString, L"new");
    EXPECT_EQ(string, L"new");
}

TEST(CEValAccess, TextIsOnlyReadFromAndWrittenToATextVariable)
{
    double real = 0.5;
    CEVal value = Bound(real);
    const CString read = value;
    EXPECT_EQ(read, L"");
    value = CString(L"no");
    EXPECT_EQ(real, 0.5);
}

TEST(CEValNumbers, GetValOfEveryType)
{
    const auto read = [](auto variable) { return Bound(variable).GetVal(); };
    EXPECT_EQ(read(char{-5}), -5.0);
    EXPECT_EQ(read(short{-500}), -500.0);
    EXPECT_EQ(read(-70000), -70000.0);
    EXPECT_EQ(read(static_cast<unsigned char>(200)), 200.0);
    EXPECT_EQ(read(static_cast<unsigned short>(60000)), 60000.0);
    EXPECT_EQ(read(4000000000u), 4000000000.0);
    EXPECT_EQ(read(4000000000ul), 4000000000.0);
    EXPECT_EQ(read(0.1f), static_cast<double>(0.1f));
    EXPECT_EQ(read(0.1), 0.1);
    EXPECT_EQ(read(CString(L"12")), 0.0);
    EXPECT_EQ(read(static_cast<__int64>(12)), 0.0); // only its operator reads it

    void* pointer = reinterpret_cast<void*>(0x123456789AULL);
    CEVal value;
    value.Init(&pointer);
    EXPECT_EQ(value.GetVal(), 78187493530.0);
}

TEST(CEValNumbers, OnlyTheLowByteOfTheTypeCounts)
{
    int variable = 7;
    CEVal value = Bound(variable);
    value.type = 0x104;
    EXPECT_EQ(value.GetVal(), 7.0);
    EXPECT_EQ(value.GetText(0), L"7");
    value.SetVal(8.0);
    EXPECT_EQ(variable, 8);
}

TEST(CEValNumbers, SetValRoundsHalfUpAndKeepsTheLowBits)
{
    EXPECT_EQ(AfterSetVal<int>(2.5), 3);
    EXPECT_EQ(AfterSetVal<int>(-2.5), -2);
    EXPECT_EQ(AfterSetVal<int>(-2.51), -3);
    EXPECT_EQ(AfterSetVal<char>(300.0), 44);
    EXPECT_EQ(AfterSetVal<char>(128.0), -128);
    EXPECT_EQ(AfterSetVal<unsigned char>(-1.0), 255);
    EXPECT_EQ(AfterSetVal<short>(32768.0), -32768);
    EXPECT_EQ(AfterSetVal<unsigned short>(65537.0), 1);
    EXPECT_EQ(AfterSetVal<unsigned int>(4294967295.0), 4294967295u);
    EXPECT_EQ(AfterSetVal<unsigned long>(4294967295.0), 4294967295ul);
    EXPECT_EQ(AfterSetVal<unsigned int>(4294967298.0), 2u);
    EXPECT_EQ(AfterSetVal<int>(4294967298.0), 2);
    EXPECT_EQ(AfterSetVal<float>(0.1), 0.1f);
    EXPECT_EQ(AfterSetVal<double>(0.1), 0.1);
    EXPECT_EQ(AfterSetVal<__int64>(5.0), 0);
    EXPECT_EQ(AfterSetVal<CString>(5.0), L"");
}

TEST(CEValNumbers, SetValOfWhatNoIntegerHolds)
{
    for (const double v :
         {1e30, -1e30, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(AfterSetVal<int>(v), 0) << v;
        EXPECT_EQ(AfterSetVal<unsigned int>(v), 0u) << v;
    }
    EXPECT_EQ(AfterSetVal<float>(1e300), std::numeric_limits<float>::infinity());
}

TEST(CEValNumbers, SetValLeavesTheNeighboursAlone)
{
    unsigned char bytes[4] = {1, 2, 3, 4};
    Bound(bytes[1]).SetVal(255.0);
    EXPECT_THAT(bytes, ElementsAre(1, 255, 3, 4));
    unsigned short words[3] = {1, 2, 3};
    Bound(words[1]).SetVal(65535.0);
    EXPECT_THAT(words, ElementsAre(1, 65535, 3));
}

TEST(CEValNumbers, AdjustValReturnsTheNegativeOfTheChange)
{
    int whole = 5;
    double real = 5.0;
    EXPECT_EQ(Bound(whole).AdjustVal(0.4), 0.0);
    EXPECT_EQ(whole, 5);
    EXPECT_EQ(Bound(whole).AdjustVal(2.0), -2.0);
    EXPECT_EQ(whole, 7);
    EXPECT_EQ(Bound(real).AdjustVal(-0.5), 0.5);
    EXPECT_EQ(real, 4.5);
}

TEST(CEValCallbacks, FireInOrderWithTheirArguments)
{
    double real = -3.75;
    Listener listener;
    CEVal value = Bound(real);
    ListenToAll(value, listener);
    value.Execute();
    // The low half of -3.75 is 0.
    EXPECT_THAT(listener.calls, ElementsAre("none", "int -3", "double -3.750000", "ptr 0"));
}

TEST(CEValCallbacks, PointerArgument)
{
    Listener listener;
    CEVal value;
    value.SetCallback(&listener, static_cast<CEVal::CbPtr>(&Listener::Ptr));
    void* pointer = reinterpret_cast<void*>(0x123456789AULL);
    value.Init(&pointer);
    value.Execute();
    unsigned char bytes[8] = {9, 8, 7, 6, 5, 4, 3, 2};
    value.Init(bytes[0]);
    value.Execute();
    __int64 wide = 0x1122334455667788;
    value.Init(wide);
    value.Execute();
    EXPECT_THAT(listener.calls, ElementsAre("ptr 78187493530", "ptr 9", "ptr 1432778632"));
}

TEST(CEValCallbacks, RegisteringAnotherTargetRedirectsAll)
{
    int whole = 1;
    Listener first;
    Listener second;
    CEVal value = Bound(whole);
    value.SetCallback(&first, static_cast<CEVal::CbNone>(&Listener::None));
    value.SetCallback(&second, static_cast<CEVal::CbInt>(&Listener::Int));
    value.Execute();
    EXPECT_TRUE(first.calls.empty());
    EXPECT_THAT(second.calls, ElementsAre("none", "int 1"));
    value.pCbObj = nullptr;
    value.Execute();
    EXPECT_EQ(second.calls.size(), 2u);
}

TEST(CEValLocking, EverySingleAccessTakesTheMutexWithoutATimeLimit)
{
    int whole = 1;
    FickleMutex mutex;
    CEVal value;
    value.SetMutex(&mutex);
    value.Init(whole);
    EXPECT_EQ(mutex.locks, 1);
    EXPECT_EQ(mutex.lastTimeout, INFINITE);
    value = 5;
    const int read = value;
    EXPECT_EQ(read, 5);
    EXPECT_EQ(mutex.locks, 3);
    value.AdjustVal(1.0); // reads, writes and reads, each on its own
    EXPECT_EQ(mutex.locks, 6);
    EXPECT_EQ(mutex.unlocks, 6);

    CString string;
    value.Init(string);
    value = CString(L"x");
    EXPECT_EQ(value.GetText(0), L"x");
    EXPECT_EQ(mutex.locks, 9);
    EXPECT_EQ(mutex.unlocks, 9);
}

TEST(CEValLocking, LockThatFailsMakesWritesNothingAndReadsZero)
{
    double real = 1.5;
    CString string = L"kept";
    FickleMutex mutex;
    CEVal value = Bound(real);
    value.SetMutex(&mutex);
    mutex.refuse = true;

    EXPECT_EQ(value = 2.5, 2.5);
    value.SetVal(3.5);
    value.SetText(L"4.5");
    EXPECT_EQ(real, 1.5);
    const double read = value;
    EXPECT_EQ(read, 0.0);
    EXPECT_EQ(value.GetVal(), 0.0);
    EXPECT_EQ(value.GetText(0), L"0");

    value.Init(string); // the type changes although the binding cannot
    EXPECT_EQ(value.type, 1);
    EXPECT_EQ(value.pVal, &real);

    mutex.refuse = false;
    value.Init(string);
    mutex.refuse = true;
    value = CString(L"lost");
    EXPECT_EQ(string, L"kept");
    const CString text = value;
    EXPECT_EQ(text, L"");
    EXPECT_EQ(mutex.unlocks, 1);
}

TEST(CEValLocking, TwoThreadsNeverSeeATornValue)
{
    // Two equal halves, in a variable that crosses a cache line, where the processor alone would tear it.
    constexpr std::size_t cacheLine = 64;
    alignas(cacheLine) unsigned char lines[2 * cacheLine] = {};
    void* const straddling = lines + cacheLine - sizeof(__int64) / 2;
    CMutex mutex;
    CEVal value;
    value.type = 11;
    value.InitVal(straddling);
    value.SetMutex(&mutex);

    constexpr __int64 twoHalves = 0x0000000100000001;
    constexpr int reads = 5000;
    std::atomic<int> writes = 0;
    std::atomic<bool> enough = false;
    std::thread writer([&writes, &enough, copy = value]() mutable {
        while (!enough) {
            copy = twoHalves * (writes & 0xFFFF);
            ++writes;
        }
    });
    while (writes == 0) {
        std::this_thread::yield();
    }
    int torn = 0;
    for (int i = 0; i < reads; ++i) {
        const __int64 seen = value;
        std::atomic_signal_fence(std::memory_order_seq_cst); // each round reads anew
        torn += static_cast<std::uint32_t>(seen) != static_cast<std::uint32_t>(seen >> 32) ? 1 : 0;
    }
    enough = true;
    writer.join();
    EXPECT_EQ(torn, 0);
}

TEST(CStrVal, CarriesATextAndANumber)
{
    const CStrVal none;
    EXPECT_EQ(none.text, L"");
    EXPECT_EQ(none.value, 0.0);
    const CStrVal metres(L"Metres", 1.5);
    CStrVal copy;
    copy = metres;
    EXPECT_EQ(copy.text, L"Metres");
    EXPECT_EQ(copy.value, 1.5);
}
