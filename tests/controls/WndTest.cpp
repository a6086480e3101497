#include "controls/WndTest.h"

#include "controls/CVantWnd.h"
#include "controls/detail/HoverHook.h"

WndTest::WndTest()
{
    Vant::Init();
    vant::detail::Hover() = {};
}

WndTest::~WndTest()
{
    CVantWnd::s_inhibitFocus = 0;
    vant::detail::Hover() = {};
    Vant::Exit();
}
