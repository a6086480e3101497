#pragma once

#include "core/CLstMgd.h"
#include "core/VantApi.h"
#include "display/CModel.h"

/** The models of an application, each read once and owned here. UI thread only. */
class VANT_API CMdlDb
{
public:
    CMdlDb() = default;
    /** Copies of all models, which share their meshes. In an assignment models that are here already keep
     * their addresses and take the other's values. */
    CMdlDb(const CMdlDb& other) { *this = other; }
    CMdlDb& operator=(const CMdlDb& other);

    CLstMgd<CModel> models; ///< in the order in which they were read

    /** The model of a file, which is read if it is not here yet.
     *  @return null for a file that cannot be read, after the alarm of CModel::Read3DS(), and for "None" or
     * an empty path */
    CModel* GetMdl(const CString& path);

    /** The model that was read from this path, whatever its case; null if there is none. */
    CModel* FindMdl(const CString& path) const;

    /** Deletes all models. */
    void Clear() { models.RemoveAll(); }
};
