#include "display/CMdlDb.h"

#include <memory>

CMdlDb& CMdlDb::operator=(const CMdlDb& other)
{
    models = other.models;
    return *this;
}

CModel* CMdlDb::GetMdl(const CString& path)
{
    if (CModel* const found = FindMdl(path))
        return found;
    auto model = std::make_unique<CModel>();
    if (!model->Read3DS(path))
        return nullptr;
    models.AddTail(model.get());
    return model.release();
}

CModel* CMdlDb::FindMdl(const CString& path) const
{
    for (CVantPtr* pos = models.GetHeadPos(); pos;) {
        CModel* const model = models.GetNext(pos);
        if (model->file.CompareNoCase(path) == 0)
            return model;
    }
    return nullptr;
}
