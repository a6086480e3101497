// Drawables and what they follow, without a picture: positions, windows that listen, hits.

#include "display/CDsp.h"
#include "display/CDspGrp.h"
#include "display/CDspMInf.h"
#include "display/CMdl.h"
#include "display/CMdlPos.h"
#include "platform/PlatformTest.h"
#include "settings/CESet.h"
#include "settings/CESetCol.h"
#include "settings/CESetObj.h"
#include "support/MessagePump.h"
#include "tests/display/ViewTest.h"

#include <memory>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> calls; // of whatever has a name, in their order

class Drawable : public CMdl
{
public:
    explicit Drawable(std::string itsName = "mdl")
        : name(std::move(itsName))
    {
    }
    void Draw(CDsp&) override {}
    void GetInf(CMdlInf& inf) override { inf.name = name.c_str(); }
    void OnMdlPos(int msg, void* data) override
    {
        calls.push_back(name + " " + std::to_string(msg));
        lastData = data;
        if (onPos)
            onPos();
    }

    std::string name;
    void* lastData = nullptr;
    std::function<void()> onPos;
};

/** A drawable that is something else in the first place. */
struct Named {
    virtual ~Named() = default;
    int number = 7;
};
class NamedDrawable : public Named, public Drawable
{
public:
    using Drawable::Drawable;
};

class View : public CDsp
{
public:
    explicit View(std::string itsName = "dsp")
        : label(std::move(itsName))
    {
    }
    void OnMdlPos(int msg, void* data) override
    {
        calls.push_back(label + " " + std::to_string(msg));
        lastData = data;
        CDsp::OnMdlPos(msg, data);
    }
    void OnMdlUpdated(CMdl* mdl, int what) override
    {
        calls.push_back(label + " updated " + std::to_string(what));
        lastData = mdl;
        CDsp::OnMdlUpdated(mdl, what);
    }

    std::string label;
    void* lastData = nullptr;
};

class Listener : public CVantWnd
{
public:
    explicit Listener(std::string itsName)
        : label(std::move(itsName))
    {
    }
    void OnMdlMsg(CMdl* mdl, int msg, void* data) override
    {
        calls.push_back(label + " " + std::to_string(msg) + (data ? " with data" : ""));
        if (leaves)
            mdl->DeRegWnd(this);
    }

    std::string label;
    bool leaves = false;
};

class CMdlPosTest : public testing::Test
{
protected:
    CMdlPosTest() { calls.clear(); }
};

TEST_F(CMdlPosTest, IsListedForAsLongAsItLivesWhereverThatIs)
{
    const int before = CMdlPos::s_mdlPos.GetCount();
    struct {
        CMdlPos own;
    } member;
    member.own.name = L"Own ship";
    auto onHeap = std::make_unique<CMdlPos>();
    onHeap->name = L"own ship";
    {
        const CMdlPos local;
        EXPECT_EQ(CMdlPos::s_mdlPos.GetCount(), before + 3);
        EXPECT_EQ(CMdlPos::GetMdlPos(L"Default"), &local);
        EXPECT_EQ(CMdlPos::GetMdlPos(L"default"), nullptr);
    }
    EXPECT_EQ(CMdlPos::GetMdlPos(L"Default"), nullptr);
    EXPECT_EQ(CMdlPos::GetMdlPos(L"own ship"), onHeap.get());
    onHeap.reset();
    EXPECT_EQ(CMdlPos::GetMdlPos(L"own ship"), nullptr);

    // The list links only: the object is still its owner's when the list lets it go.
    CMdlPos::s_mdlPos.RemoveAt(CMdlPos::s_mdlPos.Find(&member.own));
    EXPECT_EQ(Text(member.own.name), L"Own ship");
    EXPECT_EQ(CMdlPos::s_mdlPos.GetCount(), before);
}

TEST_F(CMdlPosTest, CopiesValuesAndNoFollowers)
{
    CMdlPos from;
    EXPECT_EQ(from.tm, -1);
    EXPECT_EQ(from.zoom, 0);
    EXPECT_EQ(from.flags, 0x77U);
    Drawable follower;
    from.RegMdl(&follower);
    from.name = L"A";
    from.SetOrg({1, 2, 3});
    from.zoom = 4;
    from.align = 5;
    from.tm = 6;
    from.vel = {7, 8, 9};
    from.flags = 0x13;

    CMdlPos copy(from);
    EXPECT_NE(CMdlPos::s_mdlPos.Find(&copy), nullptr);
    EXPECT_EQ(CMdlPos::GetMdlPos(L"A"), &from);
    EXPECT_EQ(copy.Org(), CV3(1, 2, 3));
    EXPECT_EQ(copy.zoom, 4);
    EXPECT_EQ(copy.align, 5);
    EXPECT_EQ(copy.tm, 6);
    EXPECT_EQ(copy.vel, CV3(7, 8, 9));
    EXPECT_EQ(copy.flags, 0x13U);
    copy.Update(nullptr);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(CMdlPosTest, TakesFromADisplayWhatTheUserMayChange)
{
    View user("user");
    View other("other");
    Drawable mdl;
    CMdlPos pos;
    pos.RegDsp(&user);
    pos.RegDsp(&other);
    pos.RegMdl(&mdl);

    pos.SetFromDsp(&user, {1, 2, 3}, 10, 0.5);
    EXPECT_EQ(pos.Org(), CV3(1, 2, 3));
    EXPECT_EQ(pos.zoom, 10);
    EXPECT_EQ(pos.align, 0.5);
    EXPECT_THAT(calls, ElementsAre("other 1", "mdl 1"));
    EXPECT_EQ(other.lastData, &user);
    EXPECT_EQ(mdl.lastData, &user);

    pos.UnsetFlag(CMdlPos::userPan);
    EXPECT_FALSE(pos.AllowUserPan());
    EXPECT_TRUE(pos.AllowUserZoom());
    EXPECT_TRUE(pos.AllowUser());
    pos.SetFromDsp(&user, {9, 9, 9}, 20, 0.25);
    EXPECT_EQ(pos.Org(), CV3(1, 2, 3));
    EXPECT_EQ(pos.zoom, 20);
    EXPECT_EQ(pos.align, 0.25);

    calls.clear();
    pos.SetFromMdl(&mdl, {4, 5, 6}, 30, 1);
    EXPECT_EQ(pos.Org(), CV3(4, 5, 6));
    EXPECT_EQ(pos.zoom, 30);
    EXPECT_THAT(calls, ElementsAre("user 1", "other 1"));

    calls.clear();
    pos.flags = CMdlPos::ctrlAlign | CMdlPos::userPan | CMdlPos::userZoom;
    EXPECT_FALSE(pos.CtrlPan() || pos.CtrlZoom());
    EXPECT_TRUE(pos.CtrlAlign());
    EXPECT_FALSE(pos.AllowUserAlign());
    pos.SetFromDsp(&user, {0, 0, 0}, 0, 0);
    EXPECT_THAT(calls, IsEmpty());
    pos.SetFromMdl(nullptr, {0, 0, 0}, 0, 2);
    EXPECT_EQ(pos.Org(), CV3(4, 5, 6));
    EXPECT_EQ(pos.zoom, 30);
    EXPECT_EQ(pos.align, 2);
    EXPECT_THAT(calls, ElementsAre("user 1", "other 1", "mdl 1"));
}

TEST_F(CMdlPosTest, WithoutFlagsLeavesTheUserFreeAndTakesNothing)
{
    View user;
    Drawable mdl;
    CMdlPos pos;
    pos.RegMdl(&mdl);
    pos.flags = 0;
    EXPECT_TRUE(pos.AllowUserPan() && pos.AllowUserAlign() && pos.AllowUserZoom());
    EXPECT_FALSE(pos.AllowUser());
    pos.SetFromDsp(&user, {1, 1, 1}, 1, 1);
    pos.SetFromMdl(nullptr, {1, 1, 1}, 1, 1);
    EXPECT_EQ(pos.Org(), CV3(0, 0, 0));
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(CMdlPosTest, NeverCallsTheSourceBack)
{
    NamedDrawable source("source");
    Drawable other("other");
    View view("view");
    CMdlPos pos;
    pos.RegMdl(&source);
    pos.RegMdl(&other);
    pos.RegMdl(&source);
    pos.RegDsp(&view);
    pos.RegDsp(&view);
    // The same object by two addresses.
    pos.Update(static_cast<CMdl*>(&source));
    pos.Update(&source);
    EXPECT_THAT(calls, ElementsAre("view 1", "view 1", "other 1", "view 1", "view 1", "other 1"));
    calls.clear();
    pos.Update(&view);
    EXPECT_THAT(calls, ElementsAre("source 1", "other 1", "source 1"));
    calls.clear();
    pos.DspMsg(5, &pos);
    pos.MdlMsg(6, &pos);
    EXPECT_THAT(calls, ElementsAre("view 5", "view 5", "source 6", "other 6", "source 6"));
}

TEST_F(CMdlPosTest, ForgetsFollowersThatGo)
{
    CMdlPos pos;
    CMdlPos second;
    {
        View view;
        Drawable mdl;
        for (CMdlPos* each : {&pos, &second}) {
            each->RegDsp(&view);
            each->RegDsp(&view);
            each->RegMdl(&mdl);
        }
    }
    pos.Update(nullptr);
    second.Update(nullptr);
    EXPECT_THAT(calls, IsEmpty());

    Drawable leaving("leaving");
    Drawable staying("staying");
    leaving.onPos = [&] { pos.DeRegMdl(&leaving); };
    pos.RegMdl(&leaving);
    pos.RegMdl(&staying);
    pos.Update(nullptr);
    pos.Update(nullptr);
    EXPECT_THAT(calls, ElementsAre("leaving 1", "staying 1", "staying 1"));
}

class CMdlTest : public CMdlPosTest
{
};

TEST_F(CMdlTest, TellsWindowsThatListen)
{
    Drawable mdl;
    Listener a("a");
    Listener b("b");
    Listener c("c");
    b.leaves = true;
    mdl.RegWnd(&a);
    mdl.RegWnd(&b);
    mdl.RegWnd(&c);
    mdl.RegWnd(&a);
    int data = 0;
    mdl.SendWndMsg(12, &data);
    EXPECT_THAT(calls, ElementsAre("a 12 with data", "b 12 with data", "c 12 with data"));
    calls.clear();
    mdl.DeRegWnd(&b); // not registered any more
    mdl.DeRegWnd(&a);
    mdl.SendWndMsg(13, nullptr);
    EXPECT_THAT(calls, ElementsAre("c 13"));

    calls.clear();
    const Drawable copy(mdl);
    Drawable(copy).SendWndMsg(14, nullptr);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(CMdlTest, KeepsItsSettings)
{
    CESet saving(1);
    CESetObj* const to = saving.AddCol(L"Mdls")->AddObj(L"A", L"");
    Drawable mdl;
    EXPECT_TRUE(mdl.visible && mdl.selectable && mdl.lit);
    mdl.mtrl = CMdl::s_defaultMtrl[6];
    mdl.visible = 0;
    mdl.selectable = 3;
    mdl.Settings(*to);
    CString text;
    ASSERT_TRUE(to->GetItm(L"MatName", text));
    EXPECT_EQ(Text(text), L"Gold");

    CESet loading(0);
    CESetObj* const from = loading.AddCol(L"Mdls")->AddObj(L"A", L"");
    for (const auto* key : {L"MatName", L"Visible", L"Selectable"}) {
        ASSERT_TRUE(to->GetItm(key, text));
        from->Add(key, text);
    }
    Drawable loaded;
    loaded.lit = 0; // not in the settings: stays
    loaded.Settings(*from);
    EXPECT_EQ(Text(loaded.mtrl.name), L"Gold");
    EXPECT_EQ(loaded.visible, 0);
    EXPECT_EQ(loaded.selectable, 1);
    EXPECT_EQ(loaded.lit, 0);
}

TEST_F(CMdlTest, HasNothingToOfferByItself)
{
    Drawable mdl;
    CMat mat;
    CV3 org(1, 2, 3);
    double size = 4;
    EXPECT_EQ(mdl.GetMdlOrg(mat, org, size), 0);
    EXPECT_EQ(org, CV3(1, 2, 3));
    CLstPtr<CLegInf*> infs;
    mdl.LegInf(nullptr, org, infs);
    EXPECT_TRUE(infs.IsEmpty());
    mdl.ModelChanged(1); // there is no group
    EXPECT_EQ(std::size(CMdl::s_defaultMtrl), 20U);
    EXPECT_EQ(Text(CMdl::s_defaultMtrl[19].name), L"Black Rubber");
}

TEST(CDspMInfTest, SortsHitsByDepthAndFreesThem)
{
    CDspMInf inf;
    for (const double number : inf.ray)
        EXPECT_EQ(number, 0);
    for (const double number : inf.view)
        EXPECT_EQ(number, 0);
    for (const auto& [text, depth] : {std::pair(L"far", 9.0), std::pair(L"near", 1.0), std::pair(L"mid", 5.0),
                                      std::pair(L"mid 2", 5.0)}) {
        auto hit = std::make_unique<CDspMHit>();
        hit->text = text;
        hit->depth = depth;
        inf.AddHit(std::move(hit));
    }
    inf.AddHit(nullptr);
    std::vector<std::wstring> texts;
    for (CVantPtr* pos = inf.hits.GetHeadPos(); pos;)
        texts.push_back(Text(inf.hits.GetNext(pos)->text));
    EXPECT_THAT(texts, ElementsAre(L"near", L"mid", L"mid 2", L"far"));
    EXPECT_EQ(inf.count, 4);
    inf.ClearHits();
    EXPECT_EQ(inf.count, 0);
    EXPECT_TRUE(inf.hits.IsEmpty());
}

class CDspGrpTest : public ViewTest
{
protected:
    CDspGrpTest() { calls.clear(); }
};

TEST_F(CDspGrpTest, KnowsDrawablesAndViewsFromTheirConstructionOn)
{
    Drawable before("before");
    auto grp = std::make_unique<CDspGrp>();
    EXPECT_EQ(CDsp::s_pDspGrp, grp.get());
    EXPECT_NE(CVantWnd::s_pollRx.Find(grp.get()), nullptr);
    View view("view");
    auto mdl = std::make_unique<Drawable>("mdl");
    const void* const address = mdl.get();
    EXPECT_THAT(calls, ElementsAre("view updated -1"));
    EXPECT_EQ(view.lastData, static_cast<CMdl*>(mdl.get()));
    grp->RegMdl(mdl.get());
    EXPECT_EQ(grp->GetMdls().GetCount(), 1);
    CLstMgd<CMdlInf> infs;
    grp->GetInfs(infs);
    ASSERT_EQ(infs.GetCount(), 1);
    EXPECT_EQ(Text(infs.GetHead()->name), L"mdl");
    EXPECT_EQ(infs.GetHead()->mdl, mdl.get());

    calls.clear();
    mdl->ModelChanged(3);
    mdl.reset();
    EXPECT_THAT(calls, ElementsAre("view updated 3", "view updated -2"));
    EXPECT_EQ(view.lastData, address);
    EXPECT_TRUE(grp->GetMdls().IsEmpty());

    {
        CDspGrp second;
        EXPECT_EQ(CDsp::s_pDspGrp, grp.get());
        second.RegDsp(&view);
        EXPECT_TRUE(grp->GetDsps().IsEmpty());
        EXPECT_EQ(second.GetDsps().GetCount(), 1);
    }
    grp->RegDsp(&view);
    EXPECT_EQ(grp->GetDsps().GetCount(), 1);
    const void* const gone = grp.get();
    grp.reset();
    EXPECT_EQ(CDsp::s_pDspGrp, nullptr);
    EXPECT_EQ(CVantWnd::s_pollRx.Find(static_cast<const CVantWnd*>(gone)), nullptr);
    view.NeedDraw(); // without a group
}

TEST_F(CDspGrpTest, DrawsAViewOncePerPollAndOnlyAfterAChange)
{
    CDspGrp grp;
    Drawable mdl;
    ViewWnd shown;
    ViewWnd hidden;
    shown.Open();
    hidden.Open();
    shown.ShowWindow(SW_SHOWNOACTIVATE);
    shown.UpdateWindow();
    vant::test::PumpPending();
    CVantWnd::Poll(0);
    const int before = shown.renders;

    CVantWnd::Poll(1);
    EXPECT_EQ(shown.renders, before);
    for (int what = 0; what < 5; ++what)
        mdl.ModelChanged(what);
    Drawable added;
    EXPECT_EQ(shown.renders, before);
    EXPECT_TRUE(shown.IsDrawNeeded());
    CVantWnd::Poll(2);
    EXPECT_EQ(shown.renders, before + 1);
    EXPECT_FALSE(shown.IsDrawNeeded());
    CVantWnd::Poll(3);
    EXPECT_EQ(shown.renders, before + 1);

    // A window that was painted for another reason shows the change already.
    mdl.ModelChanged(0);
    shown.RedrawWnd();
    CVantWnd::Poll(4);
    EXPECT_EQ(shown.renders, before + 2);

    // What changes while the scene is drawn is for the next poll.
    shown.scene = [&] {
        shown.scene = [] {};
        mdl.ModelChanged(0);
    };
    shown.NeedDraw();
    CVantWnd::Poll(5);
    EXPECT_EQ(shown.renders, before + 3);
    CVantWnd::Poll(6);
    EXPECT_EQ(shown.renders, before + 4);

    CMdlPos pos;
    pos.RegDsp(&shown);
    pos.SetFromMdl(&mdl, {1, 2, 3}, 1, 0);
    CVantWnd::Poll(7);
    EXPECT_EQ(shown.renders, before + 5);
    EXPECT_EQ(hidden.renders, 0);

    grp.DeRegDsp(&shown);
    shown.NeedDraw();
    CVantWnd::Poll(8);
    EXPECT_EQ(shown.renders, before + 5);
    vant::test::PumpPending();
    EXPECT_EQ(shown.renders, before + 6);
}

TEST_F(CDspGrpTest, TurnsOneVectorIntoAnother)
{
    ViewWnd wnd;
    wnd.Open();
    const auto turned = [&](const CV3& from, const CV3& to) {
        double m[16] = {};
        wnd.InContext([&] {
            glLoadIdentity();
            CMdl::RotateVectorToVector(from, to);
            glGetDoublev(GL_MODELVIEW_MATRIX, m);
        });
        const auto row = [&](int r) { return m[r] * from.x + m[4 + r] * from.y + m[8 + r] * from.z; };
        return CV3(row(0), row(1), row(2));
    };
    for (const auto& [from, to] :
         {std::pair(CV3(1, 0, 0), CV3(0, 1, 0)), std::pair(CV3(1, 2, 3), CV3(-2, 0.5, 1)),
          std::pair(CV3(0, 0, 5), CV3(0, 0, 0.25)), std::pair(CV3(0, 0, 1), CV3(0, 0, -1)),
          std::pair(CV3(1, 0, 0), CV3(-3, 0, 0)), std::pair(CV3(1, 1, 1), CV3(-1, -1, -1)),
          std::pair(CV3(1, 0, 0), CV3(-1, 1e-9, 0)), std::pair(CV3(1, 1, 1), CV3(1, 1, 1))}) {
        const CV3 got = turned(from, to);
        const CV3 want = to * (from.Length() / to.Length());
        EXPECT_LT((got - want).Length(), 1e-5) << got.x << " " << got.y << " " << got.z;
    }
    EXPECT_LT((turned({1, 2, 3}, {0, 0, 0}) - CV3(1, 2, 3)).Length(), 1e-12);
}

} // namespace
