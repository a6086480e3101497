#pragma once

#include "vafx/CRuntimeClass.h"

/** The root of the class library: run-time class information and serialisation. Not copyable; a derived class
 *  that is to be copied writes its own copy constructor and assignment. */
class VAFX_API CObject
{
public:
    /** @return The run-time class of the object itself, not of the pointer's type. */
    virtual CRuntimeClass* GetRuntimeClass() const;

    virtual ~CObject();

    /** Reads the object from or writes it to @p ar; call the base's first. Does nothing here. */
    virtual void Serialize(CArchive& ar);

    /** Checks the object's state with ASSERT in classes that override it. */
    virtual void AssertValid() const;

    /** @return TRUE when the class was given IMPLEMENT_SERIAL. */
    BOOL IsSerializable() const;

    /** @return TRUE when the object is of class @p pClass or of one derived from it. */
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    static CRuntimeClass* PASCAL GetThisClass();

    static const CRuntimeClass classCObject;

protected:
    CObject() = default;
};

/** The CRuntimeClass of a class by the class's name. */
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

/** In an IMPLEMENT_SERIAL: objects of older schemas are loaded too; @see CArchive::GetObjectSchema. */
#define VERSIONABLE_SCHEMA (0x80000000U)

#define DECLARE_DYNAMIC(class_name)                                                                          \
protected:                                                                                                   \
    static CRuntimeClass* PASCAL _GetBaseClass();                                                            \
                                                                                                             \
public:                                                                                                      \
    static const CRuntimeClass class##class_name;                                                            \
    static CRuntimeClass* PASCAL GetThisClass();                                                             \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* PASCAL CreateObject();

#define DECLARE_SERIAL(class_name)                                                                           \
    DECLARE_DYNCREATE(class_name)                                                                            \
    friend CArchive& operator>>(CArchive& ar, class_name*& pOb);

/** The base is reached through a function: the address of another module's data is no constant. */
#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                 \
    CRuntimeClass* PASCAL class_name::_GetBaseClass()                                                        \
    {                                                                                                        \
        return RUNTIME_CLASS(base_class_name);                                                               \
    }                                                                                                        \
    const CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)),  \
                                                         wSchema, pfnNew, &class_name::_GetBaseClass};       \
    CRuntimeClass* PASCAL class_name::GetThisClass()                                                         \
    {                                                                                                        \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                                   \
    }                                                                                                        \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                       \
    {                                                                                                        \
        return class_name::GetThisClass();                                                                   \
    }                                                                                                        \
    static const AFX_CLASSINIT _init_##class_name(RUNTIME_CLASS(class_name));

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* PASCAL class_name::CreateObject()                                                               \
    {                                                                                                        \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                               \
    CObject* PASCAL class_name::CreateObject()                                                               \
    {                                                                                                        \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, &class_name::CreateObject)                  \
    [[maybe_unused]] CArchive& operator>>(CArchive& ar, class_name*& pOb)                                    \
    {                                                                                                        \
        pOb = static_cast<class_name*>(ar.ReadObject(RUNTIME_CLASS(class_name)));                            \
        return ar;                                                                                           \
    }
