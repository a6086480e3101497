// Steps of an external controller through a large set of controls, against the Tab key's way through the
// same.
#include "Compare.h"
#include "Library.h"

#include "controls/CRcMgr.h"

#include <catch2/catch.hpp>

namespace
{

constexpr int controls = 200;
constexpr int perLine = 20;

class CButtons : public CVantWnd
{
public:
    void SetupCtrls() override
    {
        for (int i = 0; i < controls; ++i) {
            if (i > 0 && i % perLine == 0)
                NewLn();
            InsCtrl(40, CECtrl::typeBtn, L"x");
        }
    }
};

} // namespace

TEST_CASE("Stepping through controls", "[windows]")
{
    const Library library;
    CButtons window;
    window.CreateWnd(L"buttons", WS_POPUP, CRect(20, 20, 1220, 420));
    window.ShowWindow(SW_SHOWNOACTIVATE);
    CRcMgr remote;
    remote.GetGrp(L"")->GetSet(L"")->AddWnd(window);
    remote.StepCtrl(1);
    const auto ours = [&](Stopwatch& watch) {
        const CECtrl* const first = remote.CurCtrl();
        watch.Measure([&] {
            for (int i = 0; i < controls; ++i)
                remote.StepCtrl(1);
        });
        REQUIRE(remote.CurCtrl() == first);
    };
    const auto peer = [&](Stopwatch& watch) {
        CWnd* const first = window.NextCtrl(nullptr, false);
        CWnd* at = first;
        watch.Measure([&] {
            for (int i = 0; i < controls; ++i)
                at = window.NextCtrl(at, false);
        });
        REQUIRE(at == first);
    };
    Compare("remote control: a round through 200 controls, with glow (looking up Tab's)", ours, peer,
            {.target = std::nullopt, .rounds = 21});
}
