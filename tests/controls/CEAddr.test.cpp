#include "controls/CEAddr.h"

#include "controls/InputHost.h"
#include "controls/Listener.h"
#include "controls/detail/AddressLayout.h"
#include "support/MessagePump.h"

using namespace testing;
using namespace vant::test;
using vant::detail::AddressLayout;

namespace
{

constexpr unsigned long homeAddress = 192ul + 168ul * 256 + 1ul * 256 * 256 * 256;

class CEAddrTest : public WndTest
{
protected:
    void Make(CEAddr& address)
    {
        const CDpi dpi = CDpi::Of(host);
        address.SetCallback(&listener, Listener::Member());
        address.Create(address.WndStyle(), dpi.ToPx(CRect(CPoint(20, 20), CSize(160, 20))), &host, 30);
    }

    static std::vector<std::wstring> Texts(const CEAddr& address)
    {
        std::vector<std::wstring> texts;
        for (const CEEdit& edit : address.edits)
            texts.push_back(TextOf(edit));
        return texts;
    }

    InputHost host;
    Listener listener;
};

} // namespace

TEST(AddressLayoutTest, DividesTheWidthIntoSixteenths)
{
    const AddressLayout layout(167); // cell 10, field 31
    EXPECT_EQ(layout.Field(0), (AddressLayout::Span{5, 36}));
    EXPECT_EQ(layout.Gap(0), (AddressLayout::Span{36, 46}));
    EXPECT_EQ(layout.Field(1), (AddressLayout::Span{46, 77}));
    EXPECT_EQ(layout.Field(3), (AddressLayout::Span{128, 159}));
}

TEST_F(CEAddrTest, ShowsTheBytesOfEitherBinding)
{
    unsigned long number = homeAddress;
    CEAddr address;
    EXPECT_EQ(address.ctrlType, 0);
    address.Init(number);
    Make(address);
    EXPECT_THAT(Texts(address), ElementsAre(L"192", L"168", L"0", L"1"));
    EXPECT_THAT(address.addr, ElementsAre(192, 168, 0, 1));

    unsigned char bytes[4] = {10, 0, 0, 255};
    address.Init(bytes[0]);
    address.Update(0);
    EXPECT_THAT(address.addr, ElementsAre(10, 0, 0, 255));
    EXPECT_THAT(Texts(address), ElementsAre(L"192", L"168", L"0", L"1")) << "not asked for the text";
    address.Update(1);
    EXPECT_THAT(Texts(address), ElementsAre(L"10", L"0", L"0", L"255"));

    int other = 7;
    address.Init(other);
    address.Update(1);
    address.Retreive();
    EXPECT_THAT(Texts(address), ElementsAre(L"10", L"0", L"0", L"255")) << "any other binding is left alone";
    EXPECT_EQ(other, 7);
}

TEST_F(CEAddrTest, SetsUpFourLinkedFields)
{
    unsigned long number = 0;
    CEAddr address;
    address.Init(number);
    address.tip = L"Server";
    address.style.align = 0;
    address.style.txtCol = RGB(9, 8, 7);
    Make(address);
    for (int i = 0; i < 4; ++i) {
        const CEEdit& edit = address.edits[static_cast<std::size_t>(i)];
        EXPECT_EQ(edit.GetDlgCtrlID(), 30 + i);
        EXPECT_EQ(edit.prevEdit, i > 0 ? &edit - 1 : nullptr);
        EXPECT_EQ(edit.nextEdit, i < 3 ? &edit + 1 : nullptr);
        EXPECT_EQ(edit.nextChr, '.');
        EXPECT_EQ(edit.prevChr, 0);
        EXPECT_EQ(edit.GetStyle() & (ES_CENTER | ES_RIGHT | ES_AUTOHSCROLL | WS_TABSTOP),
                  static_cast<DWORD>(ES_CENTER | ES_AUTOHSCROLL | WS_TABSTOP));
        EXPECT_EQ(edit.style.txtCol, RGB(9, 8, 7));
        EXPECT_EQ(Text(edit.tip), L"Server");

        CRect place;
        edit.GetWindowRect(place);
        address.ScreenToClient(place);
        EXPECT_EQ(place, CRect(5 + i * 40, 0, 35 + i * 40, 20));
    }
    address.MoveWindow(0, 0, 320, 24);
    CRect last;
    address.edits[3].GetWindowRect(last);
    address.ScreenToClient(last);
    EXPECT_EQ(last, CRect(250, 0, 310, 24));
}

TEST_F(CEAddrTest, APointMovesOnAndLeavingStores)
{
    unsigned long number = homeAddress;
    CEAddr address;
    address.Init(number);
    Make(address);
    CEEdit& first = address.edits[0];
    address.SetFocus();
    EXPECT_EQ(::GetFocus(), first.m_hWnd) << "the control hands the focus on to its first field";
    Type(first, L"10.");
    EXPECT_EQ(::GetFocus(), address.edits[1].m_hWnd);
    EXPECT_THAT(Texts(address), ElementsAre(L"10", L"168", L"0", L"1"));
    EXPECT_EQ(number, homeAddress - 182);
    EXPECT_EQ(listener.calls, 1);

    Type(address.edits[1], L"256.");
    EXPECT_EQ(number, 10ul + 256ul * 256 * 256) << "256 is valid, and its low byte is 0";
    EXPECT_EQ(listener.calls, 2);
    EXPECT_THAT(alarms, IsEmpty());

    Type(address.edits[2], L"257.");
    EXPECT_THAT(alarms, ElementsAre(Logged{40, 1, L"Incorrect Text: Not in numerical range 0 to 0"}));
    EXPECT_EQ(listener.calls, 2);
    EXPECT_EQ(TextOf(address.edits[2]), L"0");

    PressKey(address.edits[3], VK_RETURN);
    EXPECT_EQ(::GetFocus(), address.m_hWnd) << "the last field gives the focus to its parent, and it stays";
}

TEST_F(CEAddrTest, AGreyedAddressIsOnlyShown)
{
    unsigned long number = homeAddress;
    CEAddr address(1);
    EXPECT_EQ(address.style.txtCol, RGB(0x80, 0x80, 0x80));
    address.Init(number);
    Make(address);
    EXPECT_THAT(Texts(address), ElementsAre(L"192", L"168", L"0", L"1"));
    for (const CEEdit& edit : address.edits) {
        EXPECT_FALSE(edit.IsWindowEnabled());
        EXPECT_FALSE(edit.GetStyle() & WS_TABSTOP);
    }
    address.edits[0].SetWindowText(L"1");
    address.CtrlUpd();
    EXPECT_EQ(number, homeAddress);
    EXPECT_EQ(listener.calls, 0);

    number = 1;
    address.Update(1);
    EXPECT_THAT(Texts(address), ElementsAre(L"1", L"0", L"0", L"0")) << "it goes on showing the variable";
}

TEST_F(CEAddrTest, FollowsItsStateAndDrawsThePoints)
{
    unsigned long number = 0;
    CEAddr address;
    address.Init(number);
    address.style.pBrush = &Vant::tealB;
    Make(address);
    PumpPending();
    EXPECT_EQ(PixelOf(address, 36, 2), Vant::back) << "two units at each end of a gap";
    EXPECT_EQ(PixelOf(address, 37, 2), Vant::teal);
    EXPECT_EQ(PixelOf(address, 42, 2), Vant::teal);
    EXPECT_EQ(PixelOf(address, 43, 2), Vant::back);
    bool point = false;
    for (int y = 10; y < 18; ++y)
        for (int x = 37; x < 43; ++x)
            point = point || (PixelOf(address, x, y) != Vant::teal);
    EXPECT_TRUE(point);

    address.state = CECtrl::stShown;
    address.Update(1);
    EXPECT_FALSE(address.edits[2].IsWindowEnabled());
    address.DestroyWindow();
    Make(address);
    EXPECT_FALSE(address.edits[2].IsWindowEnabled()) << "made while it was disabled";
    address.state = CECtrl::stEnabled | CECtrl::stShown;
    address.Update(1);
    EXPECT_TRUE(address.edits[2].IsWindowEnabled());

    CDpi(144).Set(host);
    address.MoveWindow(CRect(30, 30, 30 + 240, 30 + 30));
    CRect last;
    address.edits[3].GetWindowRect(last);
    address.ScreenToClient(last);
    EXPECT_EQ(last, CRect(188, 0, 233, 30));
}
