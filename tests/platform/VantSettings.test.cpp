#include "platform/PlatformTest.h"
#include "settings/CESet.h"

namespace
{

using VantSettings = PlatformTest;

} // namespace

TEST_F(VantSettings, ImageIndexIsStoredAndLoaded)
{
    Vant::imgInd = 47;
    CESet saved(1);
    CESetObj* obj = saved.AddCol(L"App")->AddObj(L"Platform", L"Vant");
    Vant::Settings(*obj);
    CString text;
    ASSERT_EQ(obj->GetItm(L"ImgInd", text), 1);
    EXPECT_EQ(Text(text), L"47");
    EXPECT_EQ(obj->GetCount(), 1);

    CESet loaded(0);
    obj = loaded.AddCol(L"App")->AddObj(L"Platform", L"Vant");
    Vant::Settings(*obj); // nothing to load
    EXPECT_EQ(Vant::imgInd, 47);
    obj->Add(L"ImgInd", L"48 ");
    Vant::Settings(*obj); // not a number
    EXPECT_EQ(Vant::imgInd, 47);

    CESet good(0);
    obj = good.AddCol(L"App")->AddObj(L"Platform", L"Vant");
    obj->Add(L"ImgInd", L"48");
    Vant::Settings(*obj);
    EXPECT_EQ(Vant::imgInd, 48);
    Vant::imgInd = 1;
}
