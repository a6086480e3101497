#include "vafx/CGdiObject.h"

#include "detail/WndThread.h"
#include "vafx/CBitmap.h"
#include "vafx/CBrush.h"
#include "vafx/CFont.h"
#include "vafx/CPalette.h"
#include "vafx/CPen.h"
#include "vafx/CRgn.h"

using vafx::detail::HandleKind;

IMPLEMENT_DYNAMIC(CGdiObject, CObject)

CGdiObject::CGdiObject() noexcept
    : m_hObject(nullptr)
{
}

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

HGDIOBJ CGdiObject::GetSafeHandle() const noexcept
{
    // Callers rely on being allowed to ask a null pointer.
    const CGdiObject* volatile self = this;
    return self == nullptr ? nullptr : m_hObject;
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return CPen::FromHandle(static_cast<HPEN>(hObject));
    case OBJ_BRUSH:
        return CBrush::FromHandle(static_cast<HBRUSH>(hObject));
    case OBJ_FONT:
        return CFont::FromHandle(static_cast<HFONT>(hObject));
    case OBJ_BITMAP:
        return CBitmap::FromHandle(static_cast<HBITMAP>(hObject));
    case OBJ_REGION:
        return CRgn::FromHandle(static_cast<HRGN>(hObject));
    case OBJ_PAL:
        return CPalette::FromHandle(static_cast<HPALETTE>(hObject));
    default:
        return vafx::detail::ObjectOf<CGdiObject>(
            vafx::detail::ThisThread().temporary, HandleKind::GdiObject, hObject,
            [hObject](CGdiObject& object) { object.m_hObject = hObject; });
    }
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    if (hObject == nullptr)
        return FALSE;
    Detach();
    vafx::detail::SetPermanent(HandleKind::GdiObject, hObject, this);
    m_hObject = hObject;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    const HGDIOBJ object = m_hObject;
    if (object != nullptr)
        vafx::detail::RemovePermanent(HandleKind::GdiObject, object, this);
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject()
{
    const HGDIOBJ object = Detach();
    return object != nullptr ? ::DeleteObject(object) : FALSE;
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const noexcept
{
    return ::GetObjectW(m_hObject, nCount, lpObject);
}

UINT CGdiObject::GetObjectType() const noexcept
{
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int nIndex)
{
    return Attach(::GetStockObject(nIndex));
}

BOOL CGdiObject::UnrealizeObject()
{
    return ::UnrealizeObject(m_hObject);
}

BOOL CGdiObject::operator==(const CGdiObject& obj) const noexcept
{
    return m_hObject == obj.m_hObject;
}

BOOL CGdiObject::operator!=(const CGdiObject& obj) const noexcept
{
    return m_hObject != obj.m_hObject;
}
