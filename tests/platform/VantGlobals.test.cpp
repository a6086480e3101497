#include "platform/CBaseApp.h"
#include "platform/PlatformTest.h"

TEST(VantGlobals, ColoursAreTheScheme)
{
    EXPECT_EQ(Vant::light, RGB(245, 245, 245));
    EXPECT_EQ(Vant::back, RGB(0, 18, 39));
    EXPECT_EQ(Vant::med, RGB(75, 120, 170));
    EXPECT_EQ(Vant::dark, RGB(125, 125, 125));
    EXPECT_EQ(Vant::blue, RGB(30, 40, 240));
    EXPECT_EQ(Vant::green, RGB(0, 200, 0));
    EXPECT_EQ(Vant::slate, RGB(22, 22, 22));
    EXPECT_EQ(Vant::grey, RGB(50, 50, 50));
    EXPECT_EQ(Vant::cyan, RGB(98, 155, 247));
    EXPECT_EQ(Vant::red, RGB(200, 0, 0));
    EXPECT_EQ(Vant::yellow, RGB(200, 200, 200));
    EXPECT_EQ(Vant::teal, RGB(0, 60, 75));
}

TEST(VantGlobals, StateStartsAsDocumented)
{
    EXPECT_EQ(Vant::options, 0x29u);
    EXPECT_EQ(Vant::hoverTime, 0.3);
    EXPECT_EQ(Vant::minRng, 4.0);
    EXPECT_EQ(Vant::maxRng, 120.0);
    for (const int* one : {&Vant::vantOnline, &Vant::vantAutoOnline, &Vant::imgInd, &Vant::aviInd})
        EXPECT_EQ(*one, 1);
    EXPECT_EQ(Vant::comPortBaud, 9600);
    for (const int* zero :
         {&Vant::comPortNo, &Vant::vantLevel, &Vant::vantClosing, &Vant::seqType, &Vant::cltSpec,
          &Vant::startOpt, &Vant::isBrenmark, &Vant::inAq, &Vant::inLog, &Vant::inReplay})
        EXPECT_EQ(*zero, 0);
    EXPECT_EQ(Vant::hIcon, nullptr);
    EXPECT_EQ(Vant::hwCtrl, nullptr);
}

TEST(VantGlobals, NamesAndPlacesStartAsDocumented)
{
    EXPECT_EQ(Text(Vant::appTitle), L"No Assigned Title");
    EXPECT_EQ(Text(Vant::projDir), L"C:\\Tolk\\Vant\\");
    EXPECT_EQ(Text(Vant::dataDir), L"C:\\VantData\\");
    EXPECT_EQ(Text(Vant::setFile), L"C:\\Tolk\\Vant\\VantApp.xml");
    EXPECT_EQ(Text(Vant::swVer), L"2.07-beta8");
    EXPECT_EQ(Text(Vant::hwVer), L"0.00");
    EXPECT_EQ(Text(Vant::appVer), L"0.00");
    EXPECT_EQ(Text(Vant::helpFile), L"C:\\Tolk\\Vant\\Help\\VantApp.chm");
    EXPECT_EQ(Text(Vant::helpDefault), L"Using the Software");
    EXPECT_EQ(Text(Vant::runDir), L"");
    EXPECT_EQ(Text(Vant::userSet), L"");
}

TEST(VantGlobals, NothingIsCreatedBeforeInit)
{
    if (!Vant::wndClass.IsEmpty())
        GTEST_SKIP() << "another test of this process has started the platform";
    EXPECT_TRUE(Vant::ctlClass.IsEmpty());
    EXPECT_EQ(Vant::normalF.GetSafeHandle(), nullptr);
    EXPECT_EQ(Vant::blackL.GetSafeHandle(), nullptr);
    EXPECT_EQ(Vant::slateB.GetSafeHandle(), nullptr);
    EXPECT_EQ(Vant::leds.GetSafeHdc(), nullptr);
}

TEST(VantGlobals, ApplicationObjectAddsOneEmptyWord)
{
    const CBaseApp* const app = dynamic_cast<CBaseApp*>(AfxGetApp());
    ASSERT_NE(app, nullptr);
    EXPECT_EQ(app->m_appState, 0);
    EXPECT_EQ(sizeof app->m_appState, 4u);
}
