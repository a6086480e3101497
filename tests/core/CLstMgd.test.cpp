#include "core/CLstMgd.h"

#include "core/Counted.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <type_traits>
#include <vector>

namespace
{

using testing::ElementsAre;
using List = CLstMgd<Counted>;

// What an element that has left its node shows as.
constexpr int nothing = -100;

std::vector<int> Values(const List& list)
{
    std::vector<int> values;
    for (CVantPtr* pos = list.GetHeadPos(); pos;) {
        const Counted* elem = list.GetNext(pos);
        values.push_back(elem ? elem->value : nothing);
    }
    return values;
}

std::vector<int> ValuesFromTail(const List& list)
{
    std::vector<int> values;
    for (CVantPtr* pos = list.GetTailPos(); pos;) {
        const Counted* elem = list.GetPrev(pos);
        values.push_back(elem ? elem->value : nothing);
    }
    return values;
}

void Fill(List& list, int from, int to)
{
    for (int v = from; v <= to; ++v)
        list.AddTail(new Counted(v));
}

class CLstMgdTest : public testing::Test
{
protected:
    void TearDown() override { EXPECT_EQ(Counted::alive, 0); }
};

struct Unfinished;
struct Holder {
    Holder();
    ~Holder();
    CLstMgd<Unfinished> list;
};

} // namespace

TEST_F(CLstMgdTest, IsThreePointersWithOneVirtualOperation)
{
    static_assert(sizeof(List) == 3 * sizeof(void*));
    static_assert(sizeof(CVantPtr) == 3 * sizeof(void*));
    static_assert(std::has_virtual_destructor_v<List>);
    static_assert(sizeof(Holder) == sizeof(List), "an element class may be declared only");
    List list;
    Fill(list, 1, 2);
    // The order of the fields is part of the interface: previous, next, element.
    void* fields[3];
    memcpy(fields, list.GetTailPos(), sizeof fields);
    EXPECT_EQ(fields[0], list.GetHeadPos());
    EXPECT_EQ(fields[1], nullptr);
    EXPECT_EQ(fields[2], list.GetTail());
}

TEST_F(CLstMgdTest, EmptyListAnswersNull)
{
    List list;
    CVantPtr* pos = nullptr;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetHead(), nullptr);
    EXPECT_EQ(list.GetTail(), nullptr);
    EXPECT_EQ(list.GetAt(nullptr), nullptr);
    EXPECT_EQ(list.GetNext(pos), nullptr);
    EXPECT_EQ(list.GetPrev(pos), nullptr);
    EXPECT_EQ(pos, nullptr);
    EXPECT_EQ(list.Find(nullptr), nullptr);
    list.RemoveHead();
    list.RemoveTail();
    list.RemoveAt(nullptr);
    list.RemoveBefore(nullptr);
    list.RemoveAfter(nullptr);
    list.RemoveAll();
    list.SetAt(nullptr, nullptr);
    list.Swap(nullptr, nullptr);
    list.ShiftUp(nullptr);
    list.ShiftDn(nullptr);
    list.ShiftToHead(nullptr);
    list.ShiftToTail(nullptr);
    EXPECT_TRUE(list.IsEmpty());
}

TEST_F(CLstMgdTest, InsertsWhereAsked)
{
    List list;
    auto* first = new Counted(3);
    CVantPtr* three = list.InsertBefore(nullptr, first);
    EXPECT_EQ(list.GetAt(three), first) << "the very object is kept";
    CVantPtr* five = list.InsertAfter(nullptr, new Counted(5));
    list.InsertAfter(five, new Counted(6));
    list.InsertBefore(five, new Counted(4));
    list.InsertBefore(three, new Counted(1));
    list.InsertBefore(three, new Counted(2));
    list.AddHead(new Counted(0));
    EXPECT_THAT(Values(list), ElementsAre(0, 1, 2, 3, 4, 5, 6));
    EXPECT_THAT(ValuesFromTail(list), ElementsAre(6, 5, 4, 3, 2, 1, 0));
    EXPECT_EQ(list.GetHead()->value, 0);
    EXPECT_EQ(list.GetTail()->value, 6);
}

TEST_F(CLstMgdTest, FindsByPositionIndexAndIdentity)
{
    List list;
    Fill(list, 0, 3);
    const Counted alike(2);
    CVantPtr* two = list.FindIndex(2);
    Counted* elem = list.GetAt(two);
    EXPECT_EQ(elem->value, 2);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
    EXPECT_EQ(list.FindIndex(4), nullptr);
    EXPECT_EQ(list.Find(elem), two);
    EXPECT_EQ(list.Find(elem, two), two) << "the start is looked at too";
    EXPECT_EQ(list.Find(elem, list.FindIndex(3)), nullptr);
    EXPECT_EQ(list.Find(&alike), nullptr) << "an equal value is not the same object";
    EXPECT_EQ(list.GetIndex(two), 2);
    EXPECT_EQ(list.GetIndex(elem), 2);
    EXPECT_EQ(list.GetIndex(&alike), -1);
    CVantPtr foreign;
    EXPECT_EQ(list.GetIndex(&foreign), -1);
}

TEST_F(CLstMgdTest, RemovesAtAndBesidePositions)
{
    List list;
    Fill(list, 0, 7);
    list.RemoveAt(list.FindIndex(3));
    EXPECT_THAT(Values(list), ElementsAre(0, 1, 2, 4, 5, 6, 7));
    list.RemoveBefore(list.FindIndex(2));
    EXPECT_THAT(Values(list), ElementsAre(0, 2, 4, 5, 6, 7));
    list.RemoveAfter(list.FindIndex(2));
    EXPECT_THAT(Values(list), ElementsAre(0, 2, 4, 6, 7));
    list.RemoveBefore(list.GetHeadPos());
    EXPECT_THAT(Values(list), ElementsAre(0, 2, 4, 6)) << "nothing before the head: the tail goes";
    list.RemoveAfter(list.GetTailPos());
    EXPECT_THAT(Values(list), ElementsAre(2, 4, 6)) << "nothing after the tail: the head goes";
    list.RemoveBefore(nullptr);
    EXPECT_THAT(Values(list), ElementsAre(2, 4));
    list.RemoveAfter(nullptr);
    EXPECT_THAT(ValuesFromTail(list), ElementsAre(4));
    list.RemoveTail();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetTailPos(), nullptr);
}

TEST_F(CLstMgdTest, SetAtLeavesTheFormerElementToTheCaller)
{
    List list;
    Fill(list, 0, 1);
    const std::unique_ptr<Counted> former(list.GetHead());
    list.SetAt(list.GetHeadPos(), new Counted(9));
    EXPECT_EQ(former->value, 0);
    EXPECT_THAT(Values(list), ElementsAre(9, 1));
}

TEST_F(CLstMgdTest, ShiftsAndSwaps)
{
    List list;
    Fill(list, 0, 2);
    list.ShiftToHead(list.FindIndex(2));
    EXPECT_THAT(Values(list), ElementsAre(2, 1, 0));
    CVantPtr* head = list.GetHeadPos();
    list.ShiftToTail(head);
    EXPECT_THAT(Values(list), ElementsAre(1, 0, 2));
    EXPECT_THAT(ValuesFromTail(list), ElementsAre(2, 0, 1));
    EXPECT_EQ(list.GetTailPos(), head) << "the node itself moves";
    list.ShiftToTail(head);
    list.ShiftUp(list.GetHeadPos());
    EXPECT_THAT(Values(list), ElementsAre(0, 1, 2));
    list.ShiftUp(list.GetTailPos());
    list.ShiftDn(list.GetHeadPos());
    EXPECT_THAT(Values(list), ElementsAre(0, 1, 2)) << "nothing beyond the ends";
    list.ShiftDn(list.GetTailPos());
    EXPECT_THAT(Values(list), ElementsAre(0, 2, 1));
    list.Swap(list.GetHeadPos(), list.GetTailPos());
    EXPECT_THAT(Values(list), ElementsAre(1, 2, 0));
}

TEST_F(CLstMgdTest, SizesAtTheTail)
{
    List list;
    Fill(list, 1, 3);
    list.Grow(2);
    EXPECT_THAT(Values(list), ElementsAre(1, 2, 3, 0, 0));
    list.Grow(0);
    list.Grow(-3);
    EXPECT_THAT(Values(list), ElementsAre(1, 2));
    list.SetSize(3);
    EXPECT_THAT(Values(list), ElementsAre(1, 2, 0));
    list.SetSize(1);
    EXPECT_THAT(Values(list), ElementsAre(1));
    list.Grow(-5);
    EXPECT_TRUE(list.IsEmpty());
    list.SetSize(2);
    list.SetSize(0);
    EXPECT_TRUE(list.IsEmpty());
}

TEST_F(CLstMgdTest, AssignmentReusesElementsInPlace)
{
    List two;
    List five;
    Fill(two, 1, 2);
    Fill(five, 11, 15);
    const Counted* const first = five.GetHead();
    CVantPtr* const second = five.FindIndex(1);
    five = two;
    EXPECT_THAT(Values(five), ElementsAre(1, 2));
    EXPECT_EQ(five.GetHead(), first);
    EXPECT_EQ(five.GetTailPos(), second);
    EXPECT_EQ(Counted::alive, 4);

    Fill(two, 3, 4);
    five = two;
    EXPECT_THAT(Values(five), ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(five.GetHead(), first);
    EXPECT_NE(five.GetTail(), two.GetTail());
    five = *&five;
    EXPECT_THAT(Values(five), ElementsAre(1, 2, 3, 4));
    five = List();
    EXPECT_TRUE(five.IsEmpty());
}

TEST_F(CLstMgdTest, PointerListsFillFromAndAssignTo)
{
    List list;
    Fill(list, 1, 3);
    CLstPtr<Counted*> pointers;
    Counted other(7);
    pointers.AddTail(&other);
    list.FillPtrList(pointers);
    EXPECT_EQ(pointers.GetCount(), 3);
    EXPECT_EQ(pointers.GetHead(), list.GetHead());
    pointers.RemoveHead();
    pointers.AddTail(&other);
    List copy;
    copy = pointers;
    EXPECT_THAT(Values(copy), ElementsAre(2, 3, 7));
    EXPECT_NE(copy.GetTail(), &other);
}

TEST_F(CLstMgdTest, CopyConstructionIsDeep)
{
    List list;
    Fill(list, 1, 3);
    List copy(list);
    copy.GetHead()->value = 9;
    EXPECT_THAT(Values(copy), ElementsAre(9, 2, 3));
    EXPECT_THAT(Values(list), ElementsAre(1, 2, 3));
}

TEST_F(CLstMgdTest, RemoveDestroysTheElementButKeepsEndsAndNodes)
{
    List list;
    Fill(list, 0, 4);
    Counted* const elem = list.GetHead();
    CVantPtr* const head = list.GetHeadPos();
    CVantPtr* const tail = list.GetTailPos();
    CVantPtr* const inner = list.FindIndex(2);

    list.Remove(list.GetAt(inner));
    EXPECT_THAT(Values(list), ElementsAre(0, 1, 3, 4));
    EXPECT_EQ(Counted::alive, 4);
    CVantPtr* walk = inner;
    EXPECT_EQ(list.GetNext(walk), nullptr);
    EXPECT_EQ(list.GetAt(walk)->value, 3) << "a walk that stood on the node can go on";
    delete inner;

    list.Remove(elem);
    EXPECT_EQ(list.GetHeadPos(), head);
    EXPECT_EQ(list.GetHead(), nullptr);
    EXPECT_THAT(Values(list), ElementsAre(nothing, 1, 3, 4));
    EXPECT_THAT(ValuesFromTail(list), ElementsAre(4, 3, 1));
    EXPECT_EQ(list.GetCount(), 4);

    list.Remove(list.GetTail());
    EXPECT_EQ(list.GetTailPos(), tail);
    EXPECT_EQ(list.GetTail(), nullptr);
    EXPECT_THAT(Values(list), ElementsAre(nothing, 1, 3));
    EXPECT_THAT(ValuesFromTail(list), ElementsAre(nothing, 3, 1));

    Counted stranger(1);
    list.Remove(&stranger);
    EXPECT_EQ(Counted::alive, 3);
}

TEST_F(CLstMgdTest, ListStaysInOrderAroundNodesLeftByRemove)
{
    List list;
    Fill(list, 0, 3);
    list.Remove(list.GetHead());
    list.Remove(list.GetTail());
    // The neighbours of both ends go: the ends must not keep their addresses.
    list.RemoveAt(list.FindIndex(1));
    EXPECT_THAT(Values(list), ElementsAre(nothing, 2));
    list.RemoveAt(list.FindIndex(1));
    EXPECT_THAT(Values(list), ElementsAre(nothing, nothing));
    list.AddTail(new Counted(5));
    list.AddHead(new Counted(4));
    EXPECT_THAT(Values(list), ElementsAre(4, nothing, nothing, 5));

    CLstPtr<Counted*> pointers;
    list.FillPtrList(pointers);
    EXPECT_EQ(pointers.GetCount(), 2);
    List copy;
    copy = list;
    EXPECT_THAT(Values(copy), ElementsAre(4, 5));
    list = copy;
    EXPECT_THAT(Values(list), ElementsAre(4, 5)) << "a node without an element gets one";
}

TEST_F(CLstMgdTest, ClearingReachesWhatWasAddedBehindARemovedTail)
{
    List list;
    Fill(list, 0, 3);
    for (int i = 3; i > 0; --i)
        list.Remove(list.GetAt(list.FindIndex(i)));
    Fill(list, 7, 8);
    EXPECT_THAT(Values(list), ElementsAre(0));
    EXPECT_EQ(Counted::alive, 3);
    list.RemoveAll();
    EXPECT_EQ(Counted::alive, 0);
    EXPECT_TRUE(list.IsEmpty());
}

// Every element must die exactly once and no freed node may be read, whatever the order of operations. (The
// second half shows under AddressSanitizer and Wine's heap checks.)
TEST_F(CLstMgdTest, RandomOperationsLoseAndRepeatNothing)
{
    std::mt19937 random(20070801);
    for (int round = 0; round < 2000; ++round) {
        List list;
        List other;
        Fill(list, 0, static_cast<int>(random() % 4));
        Fill(other, 0, static_cast<int>(random() % 4));
        for (int step = 0; step < 30; ++step) {
            CVantPtr* const pos = list.FindIndex(static_cast<int>(random() % 5));
            switch (random() % 16) {
            case 0:
                list.AddHead(new Counted(step));
                break;
            case 1:
                list.AddTail(new Counted(step));
                break;
            case 2:
                list.InsertBefore(pos, new Counted(step));
                break;
            case 3:
                list.InsertAfter(pos, new Counted(step));
                break;
            case 4:
                list.RemoveAt(pos);
                break;
            case 5:
                list.RemoveBefore(pos);
                break;
            case 6:
                list.RemoveAfter(pos);
                break;
            case 7:
                list.RemoveHead();
                break;
            case 8:
                list.RemoveTail();
                break;
            case 9:
                list.ShiftToTail(pos);
                break;
            case 10:
                list.ShiftToHead(pos);
                break;
            case 11:
                list.SetSize(random() % 4);
                break;
            case 12:
                list = other;
                break;
            default:
                // Ends mostly: they are what Remove() leaves half linked.
                list.Remove(random() % 2 ? list.GetHead() : random() % 2 ? list.GetTail() : list.GetAt(pos));
            }
        }
        list.RemoveAll();
        ASSERT_EQ(Counted::alive, other.GetCount()) << "round " << round;
        Fill(list, 1, 3);
        ASSERT_THAT(Values(list), ElementsAre(1, 2, 3));
    }
}

TEST_F(CLstMgdTest, AnElementMayLookAtItsListWhileItIsDestroyed)
{
    struct Leaver {
        CLstMgd<Leaver>* list = nullptr;
        ~Leaver() { list->Remove(this); }
    };
    CLstMgd<Leaver> list;
    for (int i = 0; i < 3; ++i)
        list.AddTail(new Leaver{&list});
    list.RemoveAt(list.FindIndex(1));
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
}

TEST_F(CLstMgdTest, TenMillionElementsNeedNoRecursion)
{
    constexpr int many = 10'000'000;
    CLstMgd<int> list;
    for (int i = 0; i < many; ++i)
        list.AddTail(new int(i));
    long long sum = 0;
    for (CVantPtr* pos = list.GetHeadPos(); pos;)
        sum += *list.GetNext(pos);
    EXPECT_EQ(sum, static_cast<long long>(many) * (many - 1) / 2);
}

namespace
{
struct Unfinished {
    int value = 0;
};
Holder::Holder() = default;
Holder::~Holder() = default;
} // namespace

TEST_F(CLstMgdTest, ElementMayBeCompletedLater)
{
    Holder holder;
    holder.list.AddTail(new Unfinished{4});
    EXPECT_EQ(holder.list.GetHead()->value, 4);
}
