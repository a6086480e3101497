#include "core/CLstPtr.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace
{

using testing::ElementsAre;
using List = CLstPtr<int*>;

std::vector<int> Values(const List& list)
{
    std::vector<int> values;
    for (CVantPtr* pos = list.GetHeadPos(); pos;)
        values.push_back(*list.GetNext(pos));
    return values;
}

class CLstPtrTest : public testing::Test
{
protected:
    CLstPtrTest()
    {
        for (int& value : values)
            list.AddTail(&value);
    }

    int values[4] = {0, 1, 2, 3};
    List list;
};

} // namespace

TEST_F(CLstPtrTest, IsTwoPointers)
{
    static_assert(sizeof(List) == 2 * sizeof(void*));
    static_assert(!std::is_polymorphic_v<List>);
}

TEST_F(CLstPtrTest, RemovalsHandThePointerBack)
{
    EXPECT_EQ(list.RemoveHead(), &values[0]);
    EXPECT_EQ(list.RemoveTail(), &values[3]);
    EXPECT_EQ(list.GetCount(), 2);
    list.RemoveAt(list.GetHeadPos());
    list.RemoveAt(nullptr);
    EXPECT_EQ(list.RemoveTail(), &values[2]);
    EXPECT_EQ(list.RemoveTail(), nullptr);
    EXPECT_EQ(list.RemoveHead(), nullptr);
    EXPECT_TRUE(list.IsEmpty());
}

TEST_F(CLstPtrTest, RemoveBypassesTheNodeAndKeepsEnds)
{
    CVantPtr* const inner = list.FindIndex(1);
    list.Remove(&values[1]);
    EXPECT_THAT(Values(list), ElementsAre(0, 2, 3));
    EXPECT_EQ(list.GetAt(inner), &values[1]);
    delete inner;
    list.Remove(&values[0]);
    EXPECT_EQ(list.GetHead(), &values[0]) << "the head still points at the unlinked node";
    EXPECT_THAT(Values(list), ElementsAre(0, 2, 3));
    list.Remove(&values[3]);
    EXPECT_EQ(list.GetTail(), &values[3]);
    EXPECT_THAT(Values(list), ElementsAre(0, 2));
    int stranger = 0;
    list.Remove(&stranger);
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.RemoveHead(), &values[0]);
    EXPECT_EQ(list.RemoveHead(), &values[2]);
    EXPECT_THAT(Values(list), ElementsAre(3));
}

TEST_F(CLstPtrTest, MovesStayInsideTheList)
{
    CVantPtr* pos = list.MoveUp(list.FindIndex(1));
    EXPECT_EQ(pos, list.FindIndex(2));
    EXPECT_EQ(list.GetAt(pos), &values[1]);
    EXPECT_THAT(Values(list), ElementsAre(0, 2, 1, 3));
    EXPECT_EQ(list.MoveUp(list.GetTailPos()), list.GetTailPos());
    EXPECT_EQ(list.MoveDown(list.GetHeadPos()), list.GetHeadPos());
    EXPECT_EQ(list.MoveUp(nullptr), nullptr);
    EXPECT_EQ(list.MoveDown(nullptr), nullptr);
    EXPECT_EQ(list.MoveDown(list.FindIndex(1)), list.GetHeadPos());
    EXPECT_THAT(Values(list), ElementsAre(2, 0, 1, 3));
}

TEST_F(CLstPtrTest, CopiesPointersInOrder)
{
    List copy;
    int stranger = 9;
    copy.AddTail(&stranger);
    copy = list;
    EXPECT_THAT(Values(copy), ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(copy.GetHead(), list.GetHead());
    EXPECT_NE(copy.GetHeadPos(), list.GetHeadPos());
    copy = *&copy;
    EXPECT_EQ(copy.GetCount(), 4);
    CVantPtr* pos = copy.GetTailPos();
    copy.SetAt(pos, &stranger);
    EXPECT_EQ(*List(copy).GetTail(), 9);
    EXPECT_EQ(copy.GetIndex(&stranger), 3);
    EXPECT_EQ(copy.GetIndex(copy.InsertBefore(pos, &values[0])), 3);
    EXPECT_EQ(copy.GetIndex(copy.InsertAfter(nullptr, &values[0])), 5);
    EXPECT_EQ(copy.Find(&values[0], copy.FindIndex(1)), copy.FindIndex(3));
}
