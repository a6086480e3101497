#include "controls/CEList.h"
#include "controls/ToldHost.h"
#include "support/EveryType.h"
#include "support/MessagePump.h"

#include <functional>
#include <utility>

using namespace vant::test;
using testing::ElementsAre;

namespace
{

/** Counts what a list reports, fills it, and draws its entries. */
class Owner : public CObject
{
public:
    void OnPort(int port)
    {
        heard.push_back(port);
        if (also)
            std::exchange(also, nullptr)();
    }
    CELEnt* FillPorts(CEList& list, void* data)
    {
        ++fills;
        EXPECT_EQ(list.GetCount(), 0);
        list.Fill();
        for (const wchar_t* const text : {L"Bow", L"Beam", L"Stern", L"stern winch"})
            list.Add(text, 10 * list.GetCount());
        return data ? list.GetAt(*static_cast<int*>(data)) : nullptr;
    }
    void DrawPort(CDC*, const CRect& r, CELEnt* ent, int selected)
    {
        drawn.push_back(ent->Index());
        if (selected)
            selectedRc = r;
    }

    std::vector<int> heard;
    std::vector<int> drawn;
    int fills = 0;
    CRect selectedRc;
    std::function<void()> also;
};

/** A list of six rows in a window, bound to an int. */
class CEListTest : public WndTest
{
protected:
    CEListTest()
    {
        list.Init(port);
        list.SetCallback(&owner, static_cast<CEVal::CbInt>(&Owner::OnPort));
    }

    void Open(int count, CDpi dpi = CDpi())
    {
        for (int i = 0; i < count; ++i) {
            CString text;
            text.Format(L"Port %d", i);
            list.Add(text, i);
        }
        dpi.Set(host);
        ASSERT_EQ(list.Create(list.WndStyle(), dpi.ToPx(CRect(10, 10, 160, 134)), &host, 7), 1);
        list.SetFocus();
        PumpPending();
    }
    static LPARAM At(int x, int y) { return MAKELPARAM(x, y); }
    void Click(int x, int y)
    {
        list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, At(x, y));
        if (::IsWindow(list.m_hWnd))
            list.SendMessage(WM_LBUTTONUP, 0, At(x, y));
    }
    int SelIndex() const { return list.GetSel() ? list.GetSel()->Index() : -1; }
    std::vector<int> Heard() { return std::exchange(owner.heard, {}); }

    ToldHost host;
    Owner owner;
    int port = -1;
    CEList list;
};

template <class T>
void BindAndChoose(T& variable, double num, double index)
{
    CEVal val;
    val.Init(variable);
    CEList list;
    list.Add(L"a text alone");
    int target = 0;
    CELEnt* const item = list.Add(L"an item", &target);
    CELEnt* const number = list.Add(L"a number", 42.0);

    CEList::StoreIn(val, number);
    EXPECT_EQ(static_cast<double>(variable), num);
    EXPECT_EQ(list.FindVal(val), number);
    CEList::StoreIn(val, item);
    EXPECT_EQ(static_cast<double>(variable), index) << "its place";
    EXPECT_EQ(list.FindVal(val), item);
    CEList::StoreIn(val, nullptr);
    EXPECT_EQ(static_cast<double>(variable), index);
    variable = T(77);
    EXPECT_EQ(list.FindVal(val), nullptr);
}

} // namespace

TEST(CEListValue, AnEntryGivesEachTypeWhatItStandsFor)
{
    EveryType v;
    BindAndChoose(v.c, 42, 1);
    BindAndChoose(v.s, 42, 1);
    BindAndChoose(v.i, 42, 1);
    BindAndChoose(v.uc, 42, 1);
    BindAndChoose(v.us, 42, 1);
    BindAndChoose(v.ui, 42, 1);
    BindAndChoose(v.ul, 42, 1);
    BindAndChoose(v.f, 42, 1);
    BindAndChoose(v.d, 42, 1);
    BindAndChoose(v.i64, 42, 1);

    CEList list;
    CELEnt* const none = list.Add(L"None", nullptr);
    CELEnt* const item = list.Add(L"Item", &v);
    CEVal val;
    val.Init(&v.pointer);
    EXPECT_EQ(list.FindVal(val), none);
    CEList::StoreIn(val, item);
    EXPECT_EQ(v.pointer, &v);
    EXPECT_EQ(list.FindVal(val), item);
    val.Init(v.text);
    CEList::StoreIn(val, item);
    EXPECT_EQ(v.text, L"Item");
    EXPECT_EQ(list.FindVal(val), item);

    // A number of a fraction is found again in what keeps only a part of it.
    CELEnt* const tenth = list.Add(CStrVal(L"Tenth", 0.1));
    val.Init(v.f);
    CEList::StoreIn(val, tenth);
    EXPECT_EQ(list.FindVal(val), tenth);
}

TEST_F(CEListTest, EntriesKeepTheirPlacesAndPointers)
{
    Open(5);
    CELEnt* const third = list.GetAt(2);
    list.Sel(third);
    list.Remove(list.GetAt(1));
    EXPECT_EQ(list.GetCount(), 4);
    EXPECT_EQ(third->Index(), 1);
    EXPECT_EQ(list.GetAt(1), third);
    EXPECT_EQ(list.GetSel(), third);
    *third = CELEnt(L"Renamed", 7.0);
    EXPECT_EQ(list.FindNum(7), third);
    EXPECT_EQ(third->Index(), 1);
    EXPECT_EQ(CELEnt(*third).Index(), -1);
    list.Remove(third);
    EXPECT_EQ(list.GetSel(), nullptr);
    CEList other;
    CELEnt* const strange = other.Add(L"of another list");
    list.Remove(strange);
    list.Sel(strange);
    EXPECT_EQ(list.GetCount(), 3);
    EXPECT_EQ(list.GetSel(), nullptr);

    EXPECT_EQ(list.Find(L"Port 3"), list.GetAt(1));
    EXPECT_EQ(list.Find(L"port 3"), nullptr);
    EXPECT_EQ(list.FindNum(4), list.GetAt(2));
    EXPECT_EQ(list.FindPrefix(L"pOrT"), list.GetAt(0));
    EXPECT_EQ(list.FindPrefix(L"port", 2), list.GetAt(2));
    EXPECT_EQ(list.FindPrefix(L"port 0", 1), list.GetAt(0)) << "from the beginning again";
    EXPECT_EQ(list.FindPrefix(L"port 00"), nullptr);
    list.Clear();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(port, -1) << "the application's";
}

TEST_F(CEListTest, UpdateSelectsWhatTheVariableNames)
{
    Open(30);
    port = 20;
    list.Update(1);
    EXPECT_EQ(SelIndex(), 20);
    EXPECT_EQ(list.First(), 15) << "in view";
    port = 99;
    list.Update(1);
    EXPECT_EQ(SelIndex(), -1);
    list.Add(L"late", 99);
    list.Update(1);
    EXPECT_EQ(SelIndex(), 30);
    list.Sel(3);
    EXPECT_EQ(port, 99);
    list.Retreive();
    EXPECT_EQ(port, 3);
    EXPECT_THAT(Heard(), ElementsAre());
}

TEST_F(CEListTest, IsFilledWhenItsWindowOpens)
{
    port = 20;
    list.SetFill(&owner, static_cast<CEList::FillFn>(&Owner::FillPorts));
    Open(0);
    EXPECT_EQ(owner.fills, 1);
    EXPECT_EQ(SelIndex(), 2) << "by the variable";
    int chosen = 3;
    list.SetFill(&owner, static_cast<CEList::FillFn>(&Owner::FillPorts), &chosen);
    list.Fill();
    EXPECT_EQ(SelIndex(), 3) << "by the callback";
    EXPECT_EQ(port, 20);
    EXPECT_EQ(list.GetCount(), 4) << "not filled twice";
}

TEST_F(CEListTest, KeysSelectStoreAndTell)
{
    Open(30);
    PressKey(list, VK_DOWN);
    PressKey(list, VK_DOWN);
    PressKey(list, VK_UP);
    EXPECT_THAT(Heard(), ElementsAre(0, 1, 0));
    PressKey(list, VK_UP);
    PressKey(list, VK_RIGHT);
    EXPECT_THAT(Heard(), ElementsAre()) << "no further, and no way";
    PressKey(list, VK_NEXT);
    PressKey(list, VK_END);
    PressKey(list, VK_PRIOR);
    PressKey(list, VK_HOME);
    EXPECT_THAT(Heard(), ElementsAre(5, 29, 24, 0));
    EXPECT_EQ(port, 0);
    EXPECT_EQ(host.told, std::vector<UINT>(7, LBN_SELCHANGE));
    PressKey(list, VK_RETURN);
    EXPECT_EQ(host.told.back(), UINT{LBN_DBLCLK});
}

TEST_F(CEListTest, TypingFindsAnEntry)
{
    list.SetFill(&owner, static_cast<CEList::FillFn>(&Owner::FillPorts));
    Open(0);
    Type(list, L"b");
    EXPECT_EQ(SelIndex(), 0);
    Type(list, L"E");
    EXPECT_EQ(SelIndex(), 1);
    Type(list, L"x");
    EXPECT_EQ(SelIndex(), 1) << "there is none";
    PressKey(list, VK_HOME);
    Type(list, L"stern ");
    EXPECT_EQ(SelIndex(), 3) << "a blank goes on with what is typed";
    PressKey(list, VK_HOME);
    Type(list, L" bbb");
    EXPECT_EQ(SelIndex(), 1) << "the same letter goes round";
    EXPECT_EQ(port, 10);
}

TEST_F(CEListTest, TheMouseSelectsAndScrolls)
{
    Open(30, CDpi(144));
    EXPECT_EQ(list.Page(), 6);
    Click(30, 3 + 30 + 5);
    EXPECT_THAT(Heard(), ElementsAre(1));
    Click(30, 3 + 30 + 5);
    EXPECT_EQ(host.told.back(), UINT{LBN_DBLCLK});
    EXPECT_THAT(Heard(), ElementsAre()) << "selected already";

    // The bar: below the thumb a page, and the thumb itself along with the mouse.
    const int onBar = 225 - 10;
    Click(onBar, 180);
    EXPECT_EQ(list.First(), 6);
    list.ScrollTo(0);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, At(onBar, 10));
    list.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, At(onBar, 400));
    EXPECT_EQ(list.First(), 24);
    list.SendMessage(WM_LBUTTONUP, 0, At(onBar, 400));
    list.SendMessage(WM_MOUSEMOVE, 0, At(onBar, 10));
    EXPECT_EQ(list.First(), 24);
    EXPECT_THAT(Heard(), ElementsAre());

    // With the button down over the entries the selection follows.
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, At(30, 10));
    list.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, At(30, 3 + 60 + 5));
    list.SendMessage(WM_LBUTTONUP, 0, At(30, 3 + 60 + 5));
    EXPECT_THAT(Heard(), ElementsAre(24, 26));
}

TEST_F(CEListTest, FineWheelsScrollAsFarAsCoarseOnes)
{
    Open(30);
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const auto turn = [&](int delta) {
        list.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(static_cast<short>(delta))), 0);
    };
    turn(-WHEEL_DELTA);
    EXPECT_EQ(list.First(), static_cast<int>(lines));
    for (int i = 0; i < 4; ++i)
        turn(WHEEL_DELTA / 4);
    EXPECT_EQ(list.First(), 0);
    EXPECT_EQ(SelIndex(), -1);
}

TEST_F(CEListTest, OnlyWhatIsInViewIsDrawn)
{
    list.SetDraw(&owner, static_cast<CEList::DrawFn>(&Owner::DrawPort));
    list.Reserve(100000);
    Open(100000);
    list.UpdateWindow();
    owner.drawn.clear();
    PressKey(list, VK_END);
    list.UpdateWindow();
    EXPECT_THAT(owner.drawn, ElementsAre(99994, 99995, 99996, 99997, 99998, 99999));
    EXPECT_EQ(owner.selectedRc, CRect(2, 102, 136, 122));
    EXPECT_EQ(list.EntRc(list.GetSel()), owner.selectedRc);
    EXPECT_TRUE(list.EntRc(list.GetAt(0)).IsRectEmpty());
}

TEST_F(CEListTest, ACallbackMayFillOrDestroyTheList)
{
    list.SetFill(&owner, static_cast<CEList::FillFn>(&Owner::FillPorts));
    Open(0);
    owner.also = [this] { list.Fill(); };
    Click(30, 30);
    EXPECT_EQ(port, 10);
    EXPECT_EQ(SelIndex(), 1);
    owner.also = [this] { list.DestroyWindow(); };
    Click(30, 50);
    EXPECT_EQ(port, 20);
    EXPECT_EQ(list.m_hWnd, nullptr);
}
