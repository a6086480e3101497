#include "controls/CCtrlCat.h"

#include "controls/CEBtn.h"
#include "controls/CECheck.h"
#include "controls/CEGrid.h"
#include "controls/CELabel.h"
#include "controls/CEText.h"
#include "controls/CVantWnd.h"
#include "controls/detail/CtrlFactory.h"
#include "platform/Vant.h"
#include "settings/CESetObj.h"

#include <algorithm>

namespace
{

constexpr int tagWidth = 315;
constexpr int tagCtrlH = 14;
constexpr int tagLineH = 18;
constexpr int tagStep = 16;  // from the tag to the next line
constexpr int tagLeft = 10;  // where the next line starts
constexpr int lineExtra = 4; // of a line over a control, after a tag

CEStyle TagStyle(const CEStyle& base)
{
    if (const CEStyle* const registered = CEStyle::GetStyle(L"Tag"))
        return *registered;
    CEStyle style = base;
    style.pFont = &Vant::smallF;
    style.txtCol = Vant::cyan;
    return style;
}

} // namespace

CCtrlCat::CCtrlCat()
    : catName(L"ROOT")
    , catStyle(CEStyle::s_default)
{
}

CCtrlCat::~CCtrlCat()
{
    CCtrlCat::DestroyCtrls();
}

void CCtrlCat::CalcRect(CRect& r, int width, int advance)
{
    r = CRect(curX, curY, curX + width, curY + ctrlH);
    if (!advance)
        return;
    curX += width + gap;
    maxX = std::max(maxX, curX);
}

void CCtrlCat::NewLn()
{
    curX = leftM;
    curY += hdrH;
    maxY = std::max(maxY, curY);
}

void CCtrlCat::ShiftX(int dx)
{
    SetX(curX + dx);
}

void CCtrlCat::ShiftY(int dy, int toX)
{
    SetY(curY + dy);
    if (toX >= 0)
        curX = toX;
}

void CCtrlCat::SetX(int toX)
{
    curX = toX;
    maxX = std::max(maxX, curX);
}

void CCtrlCat::SetY(int toY)
{
    curY = toY;
    maxY = std::max(maxY, curY);
}

void CCtrlCat::SetPos(int toX, int toY)
{
    SetX(toX);
    SetY(toY);
}

void CCtrlCat::SetCtrlY(int toY)
{
    curX = leftM;
    SetY(toY);
}

void CCtrlCat::SetWidth(int width)
{
    maxX = width;
}

void CCtrlCat::SetHeight(int height)
{
    maxY = height;
}

void CCtrlCat::SetExtents(int width, int height)
{
    SetWidth(width);
    SetHeight(height);
}

int CCtrlCat::GetCtrlWidth() const
{
    return maxX;
}

int CCtrlCat::GetCtrlHeight() const
{
    if (kind != kindStacked)
        return maxY;
    return expanded ? hdrH + maxY : hdrH;
}

CSize CCtrlCat::GetCtrlExtents() const
{
    return CSize(GetCtrlWidth(), GetCtrlHeight());
}

CECtrl* CCtrlCat::Insert(int width, CECtrl* ctrl, int id, const CEFlex* flex)
{
    CalcRect(ctrl->rc, width, 1);
    ctrl->id = id;
    ctrl->level = lvlMask;
    ctrl->pWnd = pParent;
    ctrls.AddTail(ctrl);
    if (!pParent)
        return ctrl;
    if (pParent->pWndMutex)
        ctrl->SetMutex(pParent->pWndMutex);
    if (flex)
        pParent->AddFlex({ctrl, ctrl->rc, *flex, true});
    return ctrl;
}

CECtrl* CCtrlCat::NewCtrl(int width, int typeCode, CEFlex* flex)
{
    std::unique_ptr<CECtrl> ctrl = vant::detail::MakeCtrl(typeCode);
    if (!ctrl)
        return nullptr;
    ctrl->style = catStyle;
    return Insert(width, ctrl.release(), 0, flex);
}

CECtrl* CCtrlCat::InsCtrl(int width, int typeCode, void** variable, CEFlex* flex)
{
    CECtrl* const ctrl = NewCtrl(width, typeCode, flex);
    if (ctrl)
        ctrl->Init(variable);
    return ctrl;
}

CECtrl* CCtrlCat::InsCtrl(int width, CECtrl* control, int id, CEFlex* flex)
{
    return control ? Insert(width, control, id, flex) : nullptr;
}

CEBtn* CCtrlCat::InsBtn(int width, const CString& text, int id, CObject* target, CEVal::CbNone handler,
                        CEFlex* flex)
{
    auto btn = std::make_unique<CEBtn>();
    btn->style = catStyle;
    btn->Init(static_cast<LPCWSTR>(text));
    btn->SetCallback(target, handler);
    return static_cast<CEBtn*>(Insert(width, btn.release(), id, flex));
}

CEGrid* CCtrlCat::InsGrid(int width, const CString& text, int id, int height, CEFlex* flex)
{
    auto grid = std::make_unique<CEGrid>();
    grid->style = catStyle;
    grid->aux1 = text;
    const int normalH = ctrlH;
    ctrlH = height;
    CECtrl* const inserted = Insert(width, grid.release(), id, flex);
    ctrlH = normalH;
    maxY = std::max<int>(maxY, inserted->rc.bottom);
    return static_cast<CEGrid*>(inserted);
}

CEText* CCtrlCat::InsText(int width, const CString& text, const CEStyle* style, int align, CEFlex* flex)
{
    auto ctrl = std::make_unique<CEText>();
    ctrl->style = style ? *style : catStyle;
    ctrl->align = align;
    ctrl->Init(static_cast<LPCWSTR>(text));
    return static_cast<CEText*>(Insert(width, ctrl.release(), 0, flex));
}

CEText* CCtrlCat::InsTag(const CString& text)
{
    const int normalH = ctrlH;
    ctrlH = tagCtrlH;
    hdrH = tagLineH;
    const CEStyle style = TagStyle(catStyle);
    CEText* const tag = InsText(tagWidth, text, &style);
    ShiftY(tagStep, tagLeft);
    ctrlH = normalH;
    hdrH = normalH + lineExtra;
    return tag;
}

void CCtrlCat::UpdCtrls()
{
    constexpr int withText = 1;
    if (m_hdrCheck)
        m_hdrCheck->Update(withText);
    if (m_hdrLabel)
        m_hdrLabel->Update(withText);
    for (CVantPtr* pos = ctrls.GetHeadPos(); pos;)
        ctrls.GetNext(pos)->Update(withText);
}

void CCtrlCat::Settings(CESetObj& obj)
{
    CString item = catName;
    item.Replace(L' ', L'_');
    obj.Item(item, expanded);
    CtrlSettings(obj);
}

void CCtrlCat::CtrlSettings(CESetObj& obj)
{
    for (CVantPtr* pos = ctrls.GetHeadPos(); pos;)
        ctrls.GetNext(pos)->Settings(obj);
}
