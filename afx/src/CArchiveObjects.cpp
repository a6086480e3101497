// CArchive: objects, their classes and the references between them.
#include <afx.h>

#include "detail/ObjectMap.h"

namespace
{

// Tags are 16 bits wide; bigTag announces one of 32 bits.
constexpr WORD nullTag = 0;
constexpr WORD newClassTag = 0xFFFF;
constexpr WORD classTag = 0x8000;
constexpr WORD bigTag = 0x7FFF;
constexpr DWORD bigClassTag = 0x80000000;
constexpr DWORD maxIndex = 0x3FFFFFFE;

// Each object inside another one costs stack: damaged data must not use it up.
constexpr UINT maxDepth = 1000;

constexpr UINT noSchema = static_cast<UINT>(-1);
constexpr WORD notSerialisable = 0xFFFF;

} // namespace

CArchive::ObjectMap& CArchive::Map()
{
    if (m_map == nullptr)
        m_map = std::make_unique<ObjectMap>();
    return *m_map;
}

void CArchive::WriteTag(DWORD index, bool isClass)
{
    if (index < bigTag)
        *this << static_cast<WORD>(isClass ? classTag | index : index);
    else
        *this << bigTag << (isClass ? bigClassTag | index : index);
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef)
{
    if (IsLoading())
        Throw(CArchiveException::readOnly);
    if (pClassRef->m_wSchema == notSerialisable)
        AfxThrowNotSupportedException();
    ObjectMap& map = Map();
    const auto [known, added] = map.stored.try_emplace(pClassRef, map.storedCount);
    if (!added)
        return WriteTag(known->second, true);
    if (map.storedCount++ >= maxIndex)
        Throw(CArchiveException::badIndex);
    *this << newClassTag;
    pClassRef->Store(*this);
}

void CArchive::WriteObject(const CObject* pOb)
{
    if (IsLoading())
        Throw(CArchiveException::readOnly);
    if (pOb == nullptr) {
        *this << nullTag;
        return;
    }
    ObjectMap& map = Map();
    if (const auto known = map.stored.find(pOb); known != map.stored.end())
        return WriteTag(known->second, false);
    WriteClass(pOb->GetRuntimeClass());
    MapObject(pOb);
    const_cast<CObject*>(pOb)->Serialize(*this); // which changes nothing while storing
}

void CArchive::MapObject(const CObject* pOb)
{
    ObjectMap& map = Map();
    if (IsStoring()) {
        if (map.storedCount >= maxIndex)
            Throw(CArchiveException::badIndex);
        if (pOb != nullptr)
            map.stored[pOb] = map.storedCount++;
    } else if (pOb != nullptr) {
        map.loaded.push_back({const_cast<CObject*>(pOb), nullptr, 0});
    }
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema, DWORD* pObTag)
{
    if (IsStoring())
        Throw(CArchiveException::writeOnly);
    if (pClassRefRequested != nullptr && pClassRefRequested->m_wSchema == notSerialisable)
        AfxThrowNotSupportedException();

    WORD tag = 0;
    *this >> tag;
    DWORD index = 0;
    bool isClass = false;
    if (tag == bigTag) {
        *this >> index;
        isClass = (index & bigClassTag) != 0;
        index &= ~bigClassTag;
    } else {
        isClass = (tag & classTag) != 0;
        index = tag & static_cast<WORD>(~classTag);
    }
    if (!isClass) {
        if (pObTag == nullptr)
            Throw(CArchiveException::badIndex);
        *pObTag = index;
        return nullptr;
    }

    ObjectMap& map = Map();
    CRuntimeClass* found = nullptr;
    UINT schema = 0;
    if (tag == newClassTag) {
        found = CRuntimeClass::Load(*this, &schema);
        if (found == nullptr || found->m_wSchema == notSerialisable)
            Throw(CArchiveException::badClass);
        const UINT expected = found->m_wSchema;
        if ((expected & ~VERSIONABLE_SCHEMA) != schema && (expected & VERSIONABLE_SCHEMA) == 0)
            Throw(CArchiveException::badSchema);
        map.loaded.push_back({nullptr, found, schema});
    } else {
        if (index >= map.loaded.size() || map.loaded[index].runtimeClass == nullptr)
            Throw(CArchiveException::badIndex);
        found = map.loaded[index].runtimeClass;
        schema = map.loaded[index].schema;
    }
    if (pClassRefRequested != nullptr && !found->IsDerivedFrom(pClassRefRequested))
        Throw(CArchiveException::badClass);
    if (pSchema != nullptr)
        *pSchema = schema;
    else
        m_schema = schema;
    return found;
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass)
{
    UINT schema = 0;
    DWORD index = 0;
    CRuntimeClass* const found = ReadClass(pClass, &schema, &index);
    ObjectMap& map = Map();
    if (found == nullptr) {
        if (index >= map.loaded.size() || map.loaded[index].runtimeClass != nullptr)
            Throw(CArchiveException::badIndex);
        CObject* const known = map.loaded[index].object;
        if (known != nullptr && pClass != nullptr && !known->IsKindOf(pClass))
            Throw(CArchiveException::badClass);
        return known;
    }
    if (map.depth >= maxDepth)
        Throw(CArchiveException::badIndex);

    std::unique_ptr<CObject> object(found->CreateObject());
    if (object == nullptr)
        AfxThrowMemoryException();
    map.loaded.push_back({object.get(), nullptr, 0}); // before its contents, which may refer to it
    struct Level {
        CArchive& archive;
        UINT& depth;
        const UINT outerSchema;
        Level(CArchive& ar, UINT& d, UINT schemaNow)
            : archive(ar)
            , depth(d)
            , outerSchema(ar.m_schema)
        {
            ++depth;
            ar.m_schema = schemaNow;
        }
        ~Level()
        {
            --depth;
            archive.m_schema = outerSchema;
        }
    };
    {
        const Level level(*this, map.depth, schema);
        object->Serialize(*this);
    }
    return object.release();
}

UINT CArchive::GetObjectSchema()
{
    const UINT schema = m_schema;
    m_schema = noSchema;
    return schema;
}

void CArchive::SetObjectSchema(UINT nSchema) noexcept
{
    m_schema = nSchema;
}
