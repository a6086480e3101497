#pragma once

#include "core/CV3.h"
#include "core/VantApi.h"

#include <cstring>

/** An affine transform from a local frame to the global one, with a stack on which it can be saved.
 *
 *  m[r][c] for c below 3 is the global component r of the local unit axis c, and m[r][3] the origin of the
 * local frame. Every operation that changes the transform works in local terms (it multiplies from the
 * right). Angles are radians; a heading runs clockwise from +Y. */
class VANT_API CMat
{
public:
    /** No rotation, no translation, nothing saved. */
    CMat() noexcept { Ident(); }
    /** Copies the transform and, deliberately unlike assignment, what is saved: both then refer to the same
     * saved transforms and may restore each of them, in their own time. */
    CMat(const CMat& other);
    ~CMat();
    /** Copies the transform only; what is saved here stays saved. */
    CMat& operator=(const CMat& other) noexcept
    {
        SetMat(other);
        return *this;
    }
    /** The same as assignment. */
    void SetMat(const CMat& other) noexcept;

    /** All 12 values 0. */
    void Zero() noexcept;
    /** No rotation, no translation; what is saved stays saved. */
    void Ident() noexcept;
    /** Scales the local axes; the origin stays. */
    void Scale(double sx, double sy, double sz) noexcept;
    /** Rotates about the local X axis, right-handed; the origin stays. */
    void RotateX(double a) noexcept { Rotate(1, 2, a); }
    /** Rotates about the local Y axis, likewise. */
    void RotateY(double a) noexcept { Rotate(2, 0, a); }
    /** Rotates about the local Z axis, likewise. */
    void RotateZ(double a) noexcept { Rotate(0, 1, a); }
    /** Moves the origin by local coordinates. */
    void Translate(double x, double y, double z) noexcept;
    /** Applies another transform before this one: this becomes this times n. Null is ignored. */
    void Append(const CMat* n) noexcept
    {
        if (!n)
            return;
        double product[3][4];
        for (int r = 0; r < 3; ++r) {
            for (int c = 0; c < 4; ++c)
                product[r][c] = m[r][0] * n->m[0][c] + m[r][1] * n->m[1][c] + m[r][2] * n->m[2][c];
            product[r][3] += m[r][3];
        }
        std::memcpy(m, product, sizeof m);
    }

    /** Saves the transform; the 32nd and later ones are not saved. When memory runs out the process ends
     * through EUtil::FatalMemErr. */
    void Push();
    /** Restores and forgets what was saved last; nothing when nothing is saved. */
    void Pop();

    /** One global coordinate of a local point. @{ */
    double XC(double x, double y, double z) const noexcept { return ToGlobal(0, x, y, z); }
    double YC(double x, double y, double z) const noexcept { return ToGlobal(1, x, y, z); }
    double ZC(double x, double y, double z) const noexcept { return ToGlobal(2, x, y, z); }
    double GlobalX(const CV3& local) const noexcept { return XC(local.x, local.y, local.z); }
    double GlobalY(const CV3& local) const noexcept { return YC(local.x, local.y, local.z); }
    double GlobalZ(const CV3& local) const noexcept { return ZC(local.x, local.y, local.z); }
    /** @} */
    /** The global coordinates of a local point. */
    CV3 LocalToGlobal(const CV3& local) const noexcept
    {
        return {GlobalX(local), GlobalY(local), GlobalZ(local)};
    }

    /** One local coordinate of a global point. Takes the transpose for the inverse: for transforms without
     * scale or shear only. @{ */
    double XI(double x, double y, double z) const noexcept { return ToLocal(0, x, y, z); }
    double YI(double x, double y, double z) const noexcept { return ToLocal(1, x, y, z); }
    double ZI(double x, double y, double z) const noexcept { return ToLocal(2, x, y, z); }
    double LocalX(const CV3& global) const noexcept { return XI(global.x, global.y, global.z); }
    double LocalY(const CV3& global) const noexcept { return YI(global.x, global.y, global.z); }
    double LocalZ(const CV3& global) const noexcept { return ZI(global.x, global.y, global.z); }
    /** @} */
    /** The local coordinates of a global point, with the restriction of XI(). */
    CV3 GlobalToLocal(const CV3& global) const noexcept
    {
        return {LocalX(global), LocalY(global), LocalZ(global)};
    }

    /** The origin of the local frame in global coordinates. */
    void Origin(double* x, double* y, double* z) const noexcept;
    /** The same as a vector. */
    CV3 Org() const noexcept { return {X(), Y(), Z()}; }
    /** Puts the origin to a place in global coordinates. */
    void SetOrg(const CV3& org) noexcept;
    /** One global coordinate of the origin. @{ */
    double X() const noexcept { return m[0][3]; }
    double Y() const noexcept { return m[1][3]; }
    double Z() const noexcept { return m[2][3]; }
    /** @} */
    /** A local axis in global components. @{ */
    CV3 XAxis() const noexcept { return {m[0][0], m[1][0], m[2][0]}; }
    CV3 YAxis() const noexcept { return {m[0][1], m[1][1], m[2][1]}; }
    CV3 ZAxis() const noexcept { return {m[0][2], m[1][2], m[2][2]}; }
    /** @} */

    /** The angles h, p, r of a transform made by RotateZ(-h), RotateX(-p), RotateY(-r). At a pitch of exactly
     *  +-pi/2 the heading takes up the whole turn.
     *
     *  Roll() is 0 for m[2][1] of 1 or, deliberately, 11 (not -1): at -1 the general formula holds. @{ */
    double Heading() const noexcept;
    double Pitch() const noexcept;
    double Roll() const noexcept;
    /** @} */
    /** The mathematical angle of the local Y axis; at a pitch of exactly +-pi/2 the same as Heading(). */
    double Angle() const noexcept;
    /** The angles of the transposed rotation, by m[1][2]; InvHeading() and InvRoll() test for 1 and,
     * deliberately, 11. @{ */
    double InvHeading() const noexcept;
    double InvPitch() const noexcept;
    double InvRoll() const noexcept;
    /** @} */
    /** Heading, pitch and roll at once. Here the roll is 0 at m[2][1] of -1 too. */
    void Orientation(double* h, double* p, double* r) const noexcept;

    /** Non-zero when none of the 12 values is infinite or NaN. */
    int Finite() const noexcept;
    /** Stores or loads the 12 values row by row, 96 bytes. */
    void Serialize(CArchive& ar);

    double m[3][4]; ///< the transform, row by row; see above

private:
    struct Saved;

    double ToGlobal(int r, double x, double y, double z) const noexcept
    {
        // In two halves that do not wait for one another.
        return (m[r][0] * x + m[r][1] * y) + (m[r][2] * z + m[r][3]);
    }
    double ToLocal(int c, double x, double y, double z) const noexcept
    {
        return m[0][c] * (x - m[0][3]) + m[1][c] * (y - m[1][3]) + m[2][c] * (z - m[2][3]);
    }
    void Rotate(int from, int to, double a) noexcept;
    void Resize(unsigned depth);

    Saved** m_saved = nullptr;
    unsigned m_depth = 0;
};
