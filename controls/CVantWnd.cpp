#include "controls/CVantWnd.h"

#include "controls/CELabel.h"
#include "controls/detail/ScrollStrip.h"
#include "controls/detail/SystemDpi.h"
#include "platform/Vant.h"
#include "platform/detail/HelpRegistry.h"
#include "platform/detail/WindowHooks.h"

IMPLEMENT_DYNAMIC(CVantWnd, CWnd)

BEGIN_MESSAGE_MAP(CVantWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_ACTIVATE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_VSCROLL()
    ON_WM_KEYDOWN()
    ON_MESSAGE(layoutMsg, &CVantWnd::OnLayoutMsg)
    ON_MESSAGE(WM_DPICHANGED, &CVantWnd::OnDpiChanged)
    ON_MESSAGE(WM_DPICHANGED_AFTERPARENT, &CVantWnd::OnNewScale)
END_MESSAGE_MAP()

constinit CLstPtr<CVantWnd*> CVantWnd::s_wnds;
constinit CLstPtr<CVantWnd*> CVantWnd::s_trigRx;
constinit CLstPtr<CVantWnd*> CVantWnd::s_pollRx;
constinit CLstPtr<CVantWnd*> CVantWnd::s_infoRx;
constinit CLstPtr<CVantWnd*> CVantWnd::s_snsrRx;
constinit CLstPtr<CVantWnd*> CVantWnd::s_dataRx;
constinit CLstPtr<CVantWnd*> CVantWnd::s_hltWnds;
int CVantWnd::s_inhibitFocus = 0;
constexpr int CVantWnd::hltInfo;
constexpr UINT CVantWnd::layoutMsg;

namespace
{

bool FindTopic(HWND wnd, CString& topic)
{
    if (!wnd)
        return false;
    for (CVantPtr* pos = CVantWnd::s_wnds.GetHeadPos(); pos;) {
        CVantWnd* const found = CVantWnd::s_wnds.GetNext(pos);
        if (found->m_hWnd != wnd)
            continue;
        topic = found->GetTopic();
        return true;
    }
    return false;
}

// The platform class reaches the windows through these from the moment the library is loaded.
const bool isRegistered = [] {
    vant::detail::Windows().infoMsg = CVantWnd::InfoMsg;
    vant::detail::Help().findWindow = FindTopic;
    return true;
}();

} // namespace

CVantWnd::CVantWnd()
    : name(L"Default")
    , m_strip(std::make_unique<vant::detail::ScrollStrip>(*this))
{
    pParent = this;
    s_wnds.AddTail(this);
}

CVantWnd::~CVantWnd()
{
    Unbind();
    if (m_hWnd)
        CVantWnd::DestroyWindow();
    CVantWnd::DestroyCtrls();
    m_cats.RemoveAll();
    m_flex.clear();
    m_flexAt.clear();
    pParent = nullptr; // the category is destroyed after what it would ask of the window
    for (CVantPtr* pos = s_wnds.GetHeadPos(); pos && m_listensTo > 0;)
        s_wnds.GetNext(pos)->DetachWnd(this);
    while (CVantWnd* const listener = m_attached.RemoveHead())
        --listener->m_listensTo;
    for (CLstPtr<CVantWnd*>* list :
         {&s_trigRx, &s_pollRx, &s_infoRx, &s_snsrRx, &s_dataRx, &s_hltWnds, &s_wnds})
        list->RemoveAt(list->Find(this));
}

/** Cuts the controls off the application, part of which is gone when the window is destroyed as late as by
 * its object's destructor: an edit field that loses the focus then must not store. */
void CVantWnd::Unbind()
{
    ForEachCat([](CCtrlCat& cat) {
        for (CVantPtr* pos = cat.ctrls.GetHeadPos(); pos;) {
            CECtrl& ctrl = *cat.ctrls.GetNext(pos);
            ctrl.pVal = nullptr;
            ctrl.pCbObj = nullptr;
            ctrl.pEnVar = nullptr;
            ctrl.pMutex = nullptr;
        }
    });
}

BOOL CVantWnd::CreateWnd(const CString& title, DWORD style, const CRect& place, CWnd* parent, UINT id)
{
    const bool isChild = (style & WS_CHILD) != 0;
    const CDpi dpi = isChild ? CDpi::Of(parent->GetSafeHwnd()) : CDpi(vant::detail::SystemDpi(nullptr));
    return CWnd::CreateEx(0, Vant::wndClass, title, style, dpi.ToPx(place), parent, isChild ? id : 0);
}

BOOL CVantWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = Vant::wndClass;
    cs.style |= WS_CLIPCHILDREN;
    cs.style &= ~WS_VSCROLL;
    m_scrolls = false;
    m_strip->Hide();
    return CWnd::PreCreateWindow(cs);
}

int CVantWnd::OnCreate(LPCREATESTRUCT cs)
{
    if (CWnd::OnCreate(cs) == -1)
        return -1;
    m_scrollY = 0;
    m_wheel = 0;
    erasePending = 1;
    if (!(cs->style & WS_CHILD))
        Dpi().Set(m_hWnd);
    if (!m_isSetUp) {
        m_isSetUp = true;
        SetDefaults();
        SetupCtrls();
    }
    StackCats();
    CreateCtrls();
    // Not the virtual operation: a derived window's own children are yet to be created.
    PlaceCats();
    return 0;
}

CRect CVantWnd::ClientRc() const
{
    CRect r;
    if (m_hWnd)
        GetClientRect(&r);
    return Dpi().ToUnits(r);
}

void CVantWnd::SetDefaults() {}

void CVantWnd::SetupCtrls() {}

void CVantWnd::OnTrigger(double, double) {}

void CVantWnd::OnPoll(double) {}

void CVantWnd::OnInfoMsg(int, void*) {}

void CVantWnd::OnSnsrMsg(int, void*) {}

void CVantWnd::OnDataMsg(int, void*) {}

void CVantWnd::OnMdlMsg(CMdl*, int, void*) {}

void CVantWnd::OnNfyWnd(CVantWnd*, int, void*) {}

void CVantWnd::DrawEWnd(CEWnd*, CDC*, CRect&) {}

CString CVantWnd::GetTopic()
{
    return topic;
}

CCtrlCat* CVantWnd::GetCat(const CString& category, int kindOf, int a, int b)
{
    for (CVantPtr* pos = m_cats.GetHeadPos(); pos;) {
        CCtrlCat* const cat = m_cats.GetNext(pos);
        if (cat->catName == category)
            return cat;
    }
    constexpr int indent = 25; // of the controls of a section, under its title
    auto* const cat = new CCtrlCat;
    cat->catName = category;
    cat->pParent = this;
    cat->kind = kindOf;
    if (kindOf == kindStacked) {
        cat->leftM = cat->curX = indent;
        cat->y = GetMgrY();
    }
    if (kindOf == kindStacked || a)
        cat->SetHeader(category);
    cat->hasHdr = a;
    cat->lvlMask = b ? b : level;
    m_cats.AddTail(cat);
    return cat;
}

void CVantWnd::SetMutex(CMutex* mutex)
{
    pWndMutex = mutex;
    ForEachCat([mutex](CCtrlCat& cat) {
        for (CVantPtr* pos = cat.ctrls.GetHeadPos(); pos;)
            cat.ctrls.GetNext(pos)->SetMutex(mutex);
    });
}

void CVantWnd::UpdCtrls()
{
    CCtrlCat::UpdCtrls();
    for (CVantPtr* pos = m_cats.GetHeadPos(); pos;)
        m_cats.GetNext(pos)->UpdCtrls();
}

void CVantWnd::ClearCtrls()
{
    CCtrlCat::ClearCtrls();
    for (CVantPtr* pos = m_cats.GetHeadPos(); pos;)
        m_cats.GetNext(pos)->ClearCtrls();
}

void CVantWnd::ShowLevel(int levelBits, int show)
{
    CCtrlCat::ShowLevel(levelBits, show);
    for (CVantPtr* pos = m_cats.GetHeadPos(); pos;)
        m_cats.GetNext(pos)->ShowLevel(levelBits, show);
}

void CVantWnd::CreateCtrls()
{
    CCtrlCat::CreateCtrls();
    for (CVantPtr* pos = m_cats.GetHeadPos(); pos;)
        m_cats.GetNext(pos)->CreateCtrls();
}

void CVantWnd::DestroyCtrls()
{
    CCtrlCat::DestroyCtrls();
    for (CVantPtr* pos = m_cats.GetHeadPos(); pos;)
        m_cats.GetNext(pos)->DestroyCtrls();
}

void CVantWnd::UpdateLabels()
{
    ForEachCat([](CCtrlCat& cat) {
        if (cat.m_hdrLabel)
            cat.m_hdrLabel->Update(1);
        for (CVantPtr* pos = cat.ctrls.GetHeadPos(); pos;) {
            CECtrl* const ctrl = cat.ctrls.GetNext(pos);
            if (ctrl->ctrlType == CECtrl::typeLabel || ctrl->ctrlType == CECtrl::typeText)
                ctrl->Update(1);
        }
    });
}
