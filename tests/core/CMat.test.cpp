#include "core/CMat.h"

#include "core/Geometry.h"
#include "support/FatalMemory.h"

#include <afx.h>

#include <cstring>
#include <gtest/gtest.h>
#include <memory>

namespace
{

using vant::test::LeaveNoRoomBeyond;
using vant::test::PrintFatalErrors;

bool Same(const CMat& a, const CMat& b)
{
    return std::memcmp(a.m, b.m, sizeof a.m) == 0;
}

/** A transform whose values are all different: 1 to 12. */
CMat Numbered()
{
    CMat mat;
    for (int i = 0; i < 12; ++i)
        mat.m[i / 4][i % 4] = i + 1;
    return mat;
}

} // namespace

TEST(CMat, StartsAsIdentity)
{
    CMat mat;
    EXPECT_EQ(mat.LocalToGlobal({1, 2, 3}), CV3(1, 2, 3));
    EXPECT_EQ(mat.Heading(), 0);
    EXPECT_EQ(mat.Pitch(), 0);
    EXPECT_EQ(mat.Roll(), 0);
    mat = Numbered();
    mat.Ident();
    EXPECT_TRUE(Same(mat, CMat()));
    mat.Zero();
    EXPECT_EQ(mat.LocalToGlobal({1, 2, 3}), CV3());
}

TEST(CMat, CoordinatesReadRowsAndColumns)
{
    const CMat mat = Numbered();
    EXPECT_EQ(mat.XC(1, 10, 100), 1 + 20 + 300 + 4);
    EXPECT_EQ(mat.YC(1, 10, 100), 5 + 60 + 700 + 8);
    EXPECT_EQ(mat.ZC(1, 10, 100), 9 + 100 + 1100 + 12);
    EXPECT_EQ(mat.LocalToGlobal({1, 10, 100}), CV3(325, 773, 1221));
    EXPECT_EQ(mat.XI(5, 18, 112), 1 + 50 + 900);
    EXPECT_EQ(mat.YI(5, 18, 112), 2 + 60 + 1000);
    EXPECT_EQ(mat.ZI(5, 18, 112), 3 + 70 + 1100);
    EXPECT_EQ(mat.GlobalToLocal({5, 18, 112}), CV3(951, 1062, 1173));
    EXPECT_EQ(mat.Org(), CV3(4, 8, 12));
    EXPECT_EQ(mat.XAxis(), CV3(1, 5, 9));
    EXPECT_EQ(mat.YAxis(), CV3(2, 6, 10));
    EXPECT_EQ(mat.ZAxis(), CV3(3, 7, 11));
    CV3 org;
    mat.Origin(&org.x, &org.y, &org.z);
    EXPECT_EQ(org, mat.Org());
    CMat moved = mat;
    moved.SetOrg({-1, -2, -3});
    EXPECT_EQ(moved.Z(), -3);
    EXPECT_EQ(moved.ZAxis(), mat.ZAxis());
}

TEST(CMat, RotatesRightHandedInLocalTerms)
{
    CMat z;
    z.RotateZ(ML::pi_2);
    EXPECT_NEAR((z.LocalToGlobal({1, 0, 0}) - CV3(0, 1, 0)).Length(), 0, 1e-15);
    CMat x;
    x.RotateX(ML::pi_2);
    EXPECT_NEAR((x.LocalToGlobal({0, 1, 0}) - CV3(0, 0, 1)).Length(), 0, 1e-15);
    CMat y;
    y.RotateY(ML::pi_2);
    EXPECT_NEAR((y.LocalToGlobal({0, 0, 1}) - CV3(1, 0, 0)).Length(), 0, 1e-15);

    CMat mat;
    mat.Translate(10, 0, 0);
    mat.RotateZ(ML::pi_2);
    EXPECT_EQ(mat.Org(), CV3(10, 0, 0));
    mat.Translate(5, 0, 0);
    EXPECT_NEAR((mat.Org() - CV3(10, 5, 0)).Length(), 0, 1e-14);
    mat.Scale(2, 3, 4);
    EXPECT_NEAR((mat.LocalToGlobal({1, 1, 1}) - CV3(7, 7, 4)).Length(), 0, 1e-14);
}

TEST(CMat, AppendIsComposition)
{
    RandomGeometry random;
    for (int i = 0; i < 100; ++i) {
        const CMat outer = random.Frame();
        const CMat inner = random.Frame();
        const CV3 p = random.Vector();
        CMat both = outer;
        both.Append(&inner);
        ASSERT_NEAR((both.LocalToGlobal(p) - outer.LocalToGlobal(inner.LocalToGlobal(p))).Length(), 0, 1e-8);
        CMat twice = outer;
        twice.Append(&twice);
        ASSERT_NEAR((twice.LocalToGlobal(p) - outer.LocalToGlobal(outer.LocalToGlobal(p))).Length(), 0, 1e-8);
    }
    CMat mat = Numbered();
    mat.Append(nullptr);
    EXPECT_TRUE(Same(mat, Numbered()));
}

TEST(CMat, LocalToGlobalAndBack)
{
    RandomGeometry random;
    for (int i = 0; i < 1000; ++i) {
        const CMat mat = random.Frame();
        const CV3 p = random.Vector();
        ASSERT_NEAR((mat.GlobalToLocal(mat.LocalToGlobal(p)) - p).Length(), 0, 1e-9);
        ASSERT_NEAR((mat.LocalToGlobal(mat.GlobalToLocal(p)) - p).Length(), 0, 1e-9);
    }
}

TEST(CMat, EulerAnglesComeBack)
{
    RandomGeometry random;
    for (int i = 0; i < 1000; ++i) {
        const double h = random.Number(-3.1, 3.1);
        const double p = random.Number(-1.5, 1.5);
        const double r = random.Number(-3.1, 3.1);
        CMat mat;
        mat.RotateZ(-h);
        mat.RotateX(-p);
        mat.RotateY(-r);
        ASSERT_NEAR(mat.Heading(), h, 1e-9);
        ASSERT_NEAR(mat.Pitch(), p, 1e-9);
        ASSERT_NEAR(mat.Roll(), r, 1e-9);
        ASSERT_NEAR(std::remainder(mat.Angle() + h - ML::pi_2, ML::pi2), 0, 1e-9);
        double oh = 0;
        double op = 0;
        double orl = 0;
        mat.Orientation(&oh, &op, &orl);
        ASSERT_EQ(oh, mat.Heading());
        ASSERT_EQ(op, mat.Pitch());
        ASSERT_EQ(orl, mat.Roll());

        CMat transposed;
        for (int row = 0; row < 3; ++row) {
            for (int col = 0; col < 3; ++col)
                transposed.m[row][col] = mat.m[col][row];
        }
        ASSERT_NEAR(transposed.InvHeading(), h, 1e-9);
        ASSERT_NEAR(transposed.InvPitch(), p, 1e-9);
        ASSERT_NEAR(transposed.InvRoll(), r, 1e-9);
    }
}

TEST(CMat, GimbalLock)
{
    CMat mat = Numbered();
    const auto general = [&] { return -std::atan2(-mat.m[2][0], mat.m[2][2]); };
    double h = 0;
    double p = 0;
    double r = 9;

    mat.m[2][1] = 1;
    EXPECT_EQ(mat.Pitch(), -ML::pi_2);
    EXPECT_EQ(mat.Roll(), 0);
    EXPECT_EQ(mat.Heading(), std::atan2(-3.0, 1.0));
    EXPECT_EQ(mat.Angle(), mat.Heading());

    mat.m[2][1] = -1;
    EXPECT_EQ(mat.Pitch(), ML::pi_2);
    EXPECT_EQ(mat.Roll(), general()) << "-1 is not tested for";
    EXPECT_EQ(mat.Heading(), std::atan2(-3.0, 1.0));
    mat.Orientation(&h, &p, &r);
    EXPECT_EQ(h, mat.Heading());
    EXPECT_EQ(p, ML::pi_2);
    EXPECT_EQ(r, 0) << "but here it is";

    mat.m[2][1] = 11;
    EXPECT_EQ(mat.Roll(), 0) << "11 is";
    mat.Orientation(&h, &p, &r);
    EXPECT_EQ(r, general());

    mat.m[1][2] = 1;
    EXPECT_EQ(mat.InvPitch(), -ML::pi_2);
    EXPECT_EQ(mat.InvHeading(), std::atan2(-9.0, 1.0));
    EXPECT_EQ(mat.InvRoll(), 0);
    mat.m[1][2] = -1;
    EXPECT_EQ(mat.InvPitch(), ML::pi_2);
    EXPECT_EQ(mat.InvHeading(), std::atan2(5.0, 6.0));
    EXPECT_EQ(mat.InvRoll(), -std::atan2(-3.0, 11.0));
    mat.m[1][2] = 11;
    EXPECT_EQ(mat.InvHeading(), std::atan2(-9.0, 1.0));
    EXPECT_EQ(mat.InvRoll(), 0);

    CMat zero;
    zero.Zero();
    EXPECT_EQ(zero.Heading(), -ML::pi_2) << "a zero x never reaches atan2";
}

TEST(CMat, StackHoldsThirtyOne)
{
    CMat mat;
    for (int i = 0; i < 32; ++i) {
        mat.SetOrg(CV3(i, 0, 0));
        mat.Push();
    }
    mat.SetOrg(CV3(99, 0, 0));
    for (int i = 30; i >= 0; --i) {
        mat.Pop();
        ASSERT_EQ(mat.X(), i);
    }
    mat.SetOrg(CV3(99, 0, 0));
    mat.Pop();
    EXPECT_EQ(mat.X(), 99);
}

TEST(CMat, AssignmentLeavesTheStackAlone)
{
    CMat source = Numbered();
    source.Push();
    CMat target;
    target.Push();
    target = source;
    EXPECT_TRUE(Same(target, Numbered()));
    target.Pop();
    EXPECT_TRUE(Same(target, CMat()));
    target.SetMat(source);
    target.Pop();
    EXPECT_TRUE(Same(target, Numbered())) << "nothing was taken over to restore";
}

TEST(CMat, CopiesRestoreTheSameSavedTransformsInTheirOwnTime)
{
    auto source = std::make_unique<CMat>();
    source->SetOrg(CV3(1, 0, 0));
    source->Push();
    source->SetOrg(CV3(2, 0, 0));
    source->Push();
    source->SetOrg(CV3(3, 0, 0));
    CMat copy(*source);
    CMat second(copy);
    EXPECT_EQ(copy.X(), 3);
    copy.Pop();
    EXPECT_EQ(copy.X(), 2);
    copy.Pop();
    EXPECT_EQ(copy.X(), 1);
    copy.SetOrg(CV3(7, 0, 0));
    copy.Push();
    source->Pop();
    EXPECT_EQ(source->X(), 2) << "what the copy forgot is still there for the source";
    source.reset();
    second.Pop();
    second.Pop();
    EXPECT_EQ(second.X(), 1) << "and outlives it";
    copy.Ident();
    copy.Pop();
    EXPECT_EQ(copy.X(), 7);
}

TEST(CMat, FiniteSeesEveryValue)
{
    EXPECT_TRUE(CMat().Finite());
    for (int i = 0; i < 12; ++i) {
        CMat mat;
        mat.m[i / 4][i % 4] = HUGE_VAL;
        EXPECT_FALSE(mat.Finite()) << i;
    }
}

TEST(CMat, ArchiveFormIsTwelveDoubles)
{
    CMat source = Numbered();
    source.Push();
    CMemFile file;
    CArchive out(&file, CArchive::store);
    source.Serialize(out);
    out.Close();
    ASSERT_EQ(file.GetLength(), 96u);
    file.SeekToBegin();
    double raw[12] = {};
    file.Read(raw, sizeof raw);
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(raw[i], i + 1);
    file.SeekToBegin();
    CArchive in(&file, CArchive::load);
    CMat back;
    back.Push();
    back.Serialize(in);
    EXPECT_TRUE(Same(back, source));
    back.Pop();
    EXPECT_TRUE(Same(back, CMat()));
}

TEST(CMatDeathTest, ASaveWithoutMemoryEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            LeaveNoRoomBeyond(0);
            CMat().Push();
        },
        testing::ExitedWithCode(1), "Cause: Realloc cannot allocate 8 bytes");
    EXPECT_EXIT(
        {
            PrintFatalErrors();
            LeaveNoRoomBeyond(sizeof(void*));
            CMat().Push();
        },
        testing::ExitedWithCode(1), "Cause: Malloc cannot allocate \\d+ bytes");
}
