#include "platform/PlatformTest.h"

namespace
{

using namespace vant::detail;
using testing::ElementsAre;
using testing::IsEmpty;

struct Shown {
    int type;
    std::wstring text;
    int ticks;

    bool operator==(const Shown&) const = default;
};

struct SystemBox {
    std::wstring text;
    std::wstring caption;
    UINT style;
};

class VantMsgBox : public PlatformTest
{
protected:
    static inline std::vector<Shown> shown;
    static inline std::vector<SystemBox> systemBoxes;

    VantMsgBox()
    {
        shown.clear();
        systemBoxes.clear();
        Calls().messageBox = [](LPCWSTR text, LPCWSTR caption, UINT style) {
            systemBoxes.push_back({text, caption, style});
            return IDYES;
        };
    }

    static void RegisterBoxes()
    {
        Windows().showModal = [](int type, const CString& text) {
            shown.push_back({type, Text(text), 0});
            return IDNO;
        };
        Windows().show = [](int type, const CString& text, int ticks) {
            shown.push_back({type, Text(text), ticks});
        };
    }
};

} // namespace

TEST_F(VantMsgBox, TheModalBitChoosesTheBox)
{
    RegisterBoxes();
    EXPECT_EQ(Vant::MsgBox(0x08 | 0x11, L"Save %s?", L"track"), IDNO);
    EXPECT_EQ(Vant::MsgBox(0x06, L"%d %%", 12), 1);
    EXPECT_THAT(shown, ElementsAre(Shown{0x19, L"Save track?", 0}, Shown{0x06, L"12 %", 5}));
    EXPECT_THAT(systemBoxes, IsEmpty());
}

TEST_F(VantMsgBox, WithoutBoxesTheSystemAsksAndTheConsoleTells)
{
    Vant::appTitle = L"Boat";
    EXPECT_EQ(Vant::MsgBox(Vant::msgModal, L"100%% %c", L'x'), IDYES);
    Vant::appTitle = L"No Assigned Title";
    ASSERT_EQ(systemBoxes.size(), 1u);
    EXPECT_EQ(systemBoxes[0].text, L"100% x");
    EXPECT_EQ(systemBoxes[0].caption, L"Boat");

    EXPECT_EQ(Vant::MsgBox(Vant::msgStopIcon, L"shoal %s", L"%s"), 1);
    EXPECT_THAT(Messages(LogTarget::console), ElementsAre(Logged{0, 0, L"shoal %s"}));
    EXPECT_EQ(systemBoxes.size(), 1u);
}

TEST_F(VantMsgBox, TypeBitsBecomeIconAndButtons)
{
    struct {
        int type;
        UINT style;
    } const rows[] = {
        {0, MB_OK | MB_ICONINFORMATION},
        {Vant::msgWarnIcon, MB_OK | MB_ICONWARNING},
        {Vant::msgStopIcon | Vant::msgCancel, MB_OKCANCEL | MB_ICONERROR},
        {Vant::msgWarnIcon | Vant::msgStopIcon | Vant::msgYesNo, MB_YESNO | MB_ICONERROR},
        {Vant::msgStay | Vant::msgYesNo | Vant::msgCancel, MB_YESNOCANCEL | MB_ICONINFORMATION},
    };
    for (const auto& row : rows) {
        systemBoxes.clear();
        Vant::MsgBox(row.type | Vant::msgModal, L"?");
        ASSERT_EQ(systemBoxes.size(), 1u);
        EXPECT_EQ(systemBoxes[0].style, row.style | MB_TASKMODAL) << row.type;
    }
}

TEST_F(VantMsgBox, ABoxThatThrowsDoesNotReachTheCaller)
{
    Windows().showModal = [](int, const CString&) -> int { AfxThrowUserException(); };
    Windows().show = [](int, const CString&, int) { throw 1; };
    EXPECT_EQ(Vant::MsgBox(Vant::msgModal, L"?"), 0);
    EXPECT_EQ(Vant::MsgBox(0, L"!"), 1);
}
