#include "vafx/CBitmap.h"

#include "detail/Handles.h"
#include "detail/WndThread.h"
#include "vafx/CDC.h"
#include "vafx/resources.h"

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

CBitmap::CBitmap() noexcept = default;

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap)
{
    return vafx::detail::ObjectOf<CBitmap>(vafx::detail::ThisThread().temporary,
                                           vafx::detail::HandleKind::GdiObject, hBitmap,
                                           [hBitmap](CBitmap& object) { object.m_hObject = hBitmap; });
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    const HINSTANCE module = ::AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    return Attach(::LoadBitmapW(module, lpszResourceName));
}

BOOL CBitmap::LoadBitmap(UINT nIDResource)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CBitmap::LoadOEMBitmap(UINT nIDBitmap)
{
    return Attach(::LoadBitmapW(nullptr, MAKEINTRESOURCE(nIDBitmap)));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
{
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap)
{
    return Attach(::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(vafx::detail::HandleOf(pDC), nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateDiscardableBitmap(vafx::detail::HandleOf(pDC), nWidth, nHeight));
}

int CBitmap::GetBitmap(BITMAP* pBitMap) const noexcept
{
    return GetObject(sizeof(BITMAP), pBitMap);
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const noexcept
{
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits) noexcept
{
    return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
}

CSize CBitmap::GetBitmapDimension() const noexcept
{
    CSize size;
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) noexcept
{
    CSize old;
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &old);
    return old;
}
