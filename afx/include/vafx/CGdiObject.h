#pragma once

#include "vafx/CObject.h"

/** Owner of one GDI object. The destructor frees it; an object that is selected into a device context must be
 *  selected out of it first. */
class VAFX_API CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

public:
    HGDIOBJ m_hObject; ///< The handle; null while there is no object.

    CGdiObject() noexcept;
    ~CGdiObject() override;

    operator HGDIOBJ() const noexcept { return m_hObject; }
    /** @return The handle; null also when this is null. */
    HGDIOBJ GetSafeHandle() const noexcept;

    /** @return The object that owns @p hObject, or a temporary one of the class that fits its kind, which
     *  lasts until the thread is idle. Null for a null handle. */
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);

    /** Takes ownership of @p hObject; a handle that was here before is given up, not freed. @return FALSE for
     * a null handle. */
    BOOL Attach(HGDIOBJ hObject);
    /** Gives the handle away; the object is empty then. */
    HGDIOBJ Detach();
    /** Frees the GDI object. @return FALSE when there is none or it could not be freed (it is selected). */
    BOOL DeleteObject();

    /** Describes the object (LOGPEN, LOGFONT, BITMAP ...). @return Bytes written; 0 on failure. */
    int GetObject(int nCount, LPVOID lpObject) const noexcept;
    /** @return OBJ_PEN, OBJ_FONT ...; 0 on failure. */
    UINT GetObjectType() const noexcept;
    /** Makes this a stock object, which is never freed. @param nIndex BLACK_PEN, NULL_BRUSH ... */
    BOOL CreateStockObject(int nIndex);
    /** Resets a brush's origin or realises a palette anew. */
    BOOL UnrealizeObject();

    BOOL operator==(const CGdiObject& obj) const noexcept;
    BOOL operator!=(const CGdiObject& obj) const noexcept;
};
