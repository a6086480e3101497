#include "core/CPtrAry.h"

#include "core/Counted.h"
#include "support/FatalMemory.h"

#include <afx.h>

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace
{

using testing::ElementsAre;
using vant::test::PrintFatalErrors;
using Array = CPtrAry<Counted>;

std::vector<int> Values(const Array& array)
{
    std::vector<int> values;
    for (unsigned i = 0; i < array.GetSize(); ++i)
        values.push_back(array[i]->value);
    return values;
}

Array Numbers(int from, int to)
{
    Array array;
    for (int v = from; v <= to; ++v)
        array.Append(new Counted(v));
    return array;
}

class CPtrAryTest : public testing::Test
{
protected:
    void TearDown() override { EXPECT_EQ(Counted::alive, 0); }
};

struct Entry {
    int value = 0;
    void Serialize(CArchive& ar)
    {
        if (ar.IsStoring())
            ar << value;
        else
            ar >> value;
    }
};

} // namespace

TEST_F(CPtrAryTest, IsACountAndABlock)
{
    static_assert(sizeof(Array) == 2 * sizeof(void*));
    static_assert(!std::is_polymorphic_v<Array>);
    const Array array = Numbers(7, 8);
    unsigned count = 0;
    memcpy(&count, &array, sizeof count);
    EXPECT_EQ(count, 2u);
}

TEST_F(CPtrAryTest, EmptyArray)
{
    const Array array;
    EXPECT_EQ(array.GetSize(), 0u);
    EXPECT_FALSE(array.ValidIndex(0));
    EXPECT_EQ(array.GetHead(), nullptr);
    EXPECT_EQ(array.GetTail(), nullptr);
    EXPECT_EQ(array.GetIndex(nullptr), -1);
}

TEST_F(CPtrAryTest, KeepsTheVeryObjects)
{
    Array array = Numbers(1, 2);
    auto* elem = new Counted(3);
    array.Append(elem);
    EXPECT_EQ(array.GetTail(), elem);
    EXPECT_EQ(array.GetIndex(elem), 2);
    const Counted alike(3);
    EXPECT_EQ(array.GetIndex(&alike), -1);
    array.Swap(0, 2);
    EXPECT_EQ(array.GetHead(), elem);
    EXPECT_THAT(Values(array), ElementsAre(3, 2, 1));
    EXPECT_TRUE(array.ValidIndex(0));
    EXPECT_TRUE(array.ValidIndex(2));
    EXPECT_FALSE(array.ValidIndex(3));
    EXPECT_FALSE(array.ValidIndex(-1));
}

TEST_F(CPtrAryTest, SizesAtTheEnd)
{
    Array array = Numbers(1, 4);
    const Counted* const first = array[0];
    array.SetSize(2);
    EXPECT_EQ(Counted::alive, 2);
    array.Grow(2);
    EXPECT_THAT(Values(array), ElementsAre(1, 2, 0, 0));
    EXPECT_EQ(array[0], first);
    array.SetSize(4);
    array.SetSize(0);
    EXPECT_EQ(Counted::alive, 0);
    array.SetSize(1);
    EXPECT_THAT(Values(array), ElementsAre(0));
}

TEST_F(CPtrAryTest, CopiesByValue)
{
    Array array = Numbers(1, 3);
    Array copy(array);
    copy[0]->value = 9;
    EXPECT_THAT(Values(array), ElementsAre(1, 2, 3));
    const Counted* const first = array[0];
    array = copy;
    EXPECT_THAT(Values(array), ElementsAre(9, 2, 3));
    EXPECT_EQ(array[0], first) << "elements are assigned to in place";
    array = Numbers(5, 5);
    EXPECT_THAT(Values(array), ElementsAre(5));
    array = *&array;
    EXPECT_THAT(Values(array), ElementsAre(5));
    array = Array();
    EXPECT_EQ(array.GetSize(), 0u);
}

TEST_F(CPtrAryTest, ArchivesCountAndElements)
{
    constexpr int many = 10000; // more than one batch
    CPtrAry<Entry> array;
    for (int i = 0; i < many; ++i)
        array.Append(new Entry{i});
    CMemFile file;
    CArchive out(&file, CArchive::store);
    array.Serialize(out);
    out.Close();
    ASSERT_EQ(file.GetLength(), 4u + 4u * many);

    for (const unsigned before : {0u, 100u, 20000u}) {
        file.SeekToBegin();
        CArchive in(&file, CArchive::load);
        CPtrAry<Entry> back;
        back.SetSize(before);
        const Entry* const first = back.GetHead();
        back.Serialize(in);
        ASSERT_EQ(back.GetSize(), static_cast<unsigned>(many));
        for (unsigned i = 0; i < many; ++i)
            ASSERT_EQ(back[i]->value, static_cast<int>(i));
        EXPECT_TRUE(!before || back.GetHead() == first);
    }
}

TEST_F(CPtrAryTest, ADamagedCountDoesNotExhaustMemory)
{
    CMemFile file;
    CArchive out(&file, CArchive::store);
    out << 0xFFFFFFFFu << 1 << 2;
    out.Close();
    file.SeekToBegin();
    CArchive in(&file, CArchive::load);
    CPtrAry<Entry> array;
    EXPECT_ANY_THROW(array.Serialize(in));
    EXPECT_LT(array.GetSize(), 10000u);
    EXPECT_EQ(array[1]->value, 2);
}

TEST(CPtrAryDeathTest, ExhaustedMemoryEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            CPtrAry<Entry>().SetSize(0xFFFFFFFF);
        },
        testing::ExitedWithCode(1),
        "insufficient memory\r?\nCause: Realloc cannot allocate 34359738360 bytes");
}
