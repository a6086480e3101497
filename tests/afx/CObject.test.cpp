#include <afx.h>

#include <gtest/gtest.h>
#include <memory>

namespace
{

class CVehicle : public CObject
{
    DECLARE_DYNAMIC(CVehicle)
};

class CShip : public CVehicle
{
    DECLARE_DYNCREATE(CShip)

public:
    int m_masts = 3;
};

class CBuoy : public CObject
{
    DECLARE_SERIAL(CBuoy)
};

// Made before main: the classes of the library and of this file must be known by then, whatever their order.
const CRuntimeClass* const g_foundAtStart = CRuntimeClass::FromName("CFile");

IMPLEMENT_DYNAMIC(CVehicle, CObject)
IMPLEMENT_DYNCREATE(CShip, CVehicle)
IMPLEMENT_SERIAL(CBuoy, CObject, 7)

} // namespace

TEST(CObject, KnowsItsClass)
{
    const CShip ship;
    const CObject& object = ship;
    EXPECT_EQ(object.GetRuntimeClass(), RUNTIME_CLASS(CShip));
    EXPECT_STREQ(object.GetRuntimeClass()->m_lpszClassName, "CShip");
    EXPECT_EQ(object.GetRuntimeClass()->m_nObjectSize, static_cast<int>(sizeof(CShip)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CShip)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CVehicle)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(object.IsKindOf(RUNTIME_CLASS(CBuoy)));
    EXPECT_FALSE(RUNTIME_CLASS(CVehicle)->IsDerivedFrom(RUNTIME_CLASS(CShip)));
    EXPECT_FALSE(ship.IsSerializable());
    EXPECT_TRUE(CBuoy().IsSerializable());
    EXPECT_EQ(RUNTIME_CLASS(CBuoy)->m_wSchema, 7U);
}

TEST(CRuntimeClass, CreatesObjectsByName)
{
    const std::unique_ptr<CObject> ship(CRuntimeClass::CreateObject("CShip"));
    ASSERT_NE(ship, nullptr);
    EXPECT_TRUE(ship->IsKindOf(RUNTIME_CLASS(CShip)));
    EXPECT_EQ(static_cast<CShip&>(*ship).m_masts, 3);
    EXPECT_EQ(CRuntimeClass::FromName(L"CBuoy"), RUNTIME_CLASS(CBuoy));
    EXPECT_EQ(RUNTIME_CLASS(CVehicle)->CreateObject(), nullptr) << "it has no dynamic creation";
    EXPECT_EQ(CRuntimeClass::CreateObject("CNothing"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(static_cast<LPCSTR>(nullptr)), nullptr);
}

TEST(CRuntimeClass, FindsClassesOfOtherModules)
{
    EXPECT_EQ(g_foundAtStart, RUNTIME_CLASS(CFile));
    EXPECT_EQ(CRuntimeClass::FromName("CMemFile"), RUNTIME_CLASS(CMemFile));

    EXPECT_EQ(CRuntimeClass::FromName("CGuest"), nullptr);
    for (int round = 0; round < 2; ++round) {
        const HMODULE module = ::LoadLibraryW(L"test_afx_module.dll");
        ASSERT_NE(module, nullptr);
        CRuntimeClass* const guest = CRuntimeClass::FromName("CGuest");
        ASSERT_NE(guest, nullptr);
        EXPECT_TRUE(guest->IsDerivedFrom(RUNTIME_CLASS(CObject)));
        std::unique_ptr<CObject> object(guest->CreateObject());
        EXPECT_TRUE(object != nullptr && object->IsKindOf(guest));
        object.reset(); // before its code goes
        ::FreeLibrary(module);
    }
    EXPECT_EQ(CRuntimeClass::FromName("CGuest"), nullptr) << "a class goes with its module";
}
