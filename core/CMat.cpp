#include "core/CMat.h"

#include "core/detail/OutOfMemory.h"

#include <afx.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstring>
#include <new>
#include <utility>

namespace
{

constexpr unsigned maxDepth = 31;

// Where InvHeading, Roll and InvRoll might be expected to test for -1.
constexpr double notMinusOne = 11.0;

} // namespace

/** A saved transform. It never changes, so that copies of a CMat share it. */
struct CMat::Saved {
    double values[3][4];
    std::atomic<unsigned> owners;

    static Saved* Make(const double (&values)[3][4])
    {
        auto* const saved = new (vant::detail::Malloc(sizeof(Saved))) Saved{{}, 1};
        std::memcpy(saved->values, values, sizeof values);
        return saved;
    }
    static void Release(Saved* saved) noexcept
    {
        if (--saved->owners == 0)
            vant::detail::Free(saved);
    }
};

CMat::CMat(const CMat& other)
{
    SetMat(other);
    Resize(other.m_depth);
    for (; m_depth < other.m_depth; ++m_depth) {
        m_saved[m_depth] = other.m_saved[m_depth];
        ++m_saved[m_depth]->owners;
    }
}

CMat::~CMat()
{
    std::for_each(m_saved, m_saved + m_depth, Saved::Release);
    vant::detail::Free(m_saved);
}

void CMat::SetMat(const CMat& other) noexcept
{
    std::memmove(m, other.m, sizeof m);
}

void CMat::Zero() noexcept
{
    for (auto& row : m)
        std::ranges::fill(row, 0.0);
}

void CMat::Ident() noexcept
{
    Zero();
    m[0][0] = m[1][1] = m[2][2] = 1;
}

void CMat::Scale(double sx, double sy, double sz) noexcept
{
    for (auto& row : m) {
        row[0] *= sx;
        row[1] *= sy;
        row[2] *= sz;
    }
}

void CMat::Rotate(int from, int to, double a) noexcept
{
    const double c = std::cos(a);
    const double s = std::sin(a);
    for (auto& row : m) {
        const double u = row[from];
        const double v = row[to];
        row[from] = u * c + v * s;
        row[to] = v * c - u * s;
    }
}

void CMat::Translate(double x, double y, double z) noexcept
{
    SetOrg(LocalToGlobal({x, y, z}));
}

void CMat::Resize(unsigned depth)
{
    if (depth > 0)
        m_saved = static_cast<Saved**>(vant::detail::Realloc(m_saved, depth * sizeof(Saved*)));
    else
        vant::detail::Free(std::exchange(m_saved, nullptr));
}

void CMat::Push()
{
    if (m_depth >= maxDepth)
        return;
    Resize(m_depth + 1);
    m_saved[m_depth] = Saved::Make(m);
    ++m_depth;
}

void CMat::Pop()
{
    if (m_depth == 0)
        return;
    Saved* const top = m_saved[--m_depth];
    std::memcpy(m, top->values, sizeof m);
    Saved::Release(top);
    Resize(m_depth);
}

void CMat::Origin(double* x, double* y, double* z) const noexcept
{
    *x = X();
    *y = Y();
    *z = Z();
}

void CMat::SetOrg(const CV3& org) noexcept
{
    m[0][3] = org.x;
    m[1][3] = org.y;
    m[2][3] = org.z;
}

double CMat::Heading() const noexcept
{
    if (m[2][1] == 1 || m[2][1] == -1)
        return ML::ATan2(-m[0][2], m[0][0]);
    return ML::ATan2(m[0][1], m[1][1]);
}

double CMat::Pitch() const noexcept
{
    if (m[2][1] == 1)
        return -ML::pi_2;
    if (m[2][1] == -1)
        return ML::pi_2;
    return std::asin(-m[2][1]);
}

double CMat::Roll() const noexcept
{
    if (m[2][1] == 1 || m[2][1] == notMinusOne)
        return 0;
    return -ML::ATan2(-m[2][0], m[2][2]);
}

double CMat::Angle() const noexcept
{
    if (m[2][1] == 1 || m[2][1] == -1)
        return ML::ATan2(-m[0][2], m[0][0]);
    return ML::ATan2(m[1][1], m[0][1]);
}

double CMat::InvHeading() const noexcept
{
    if (m[1][2] == 1 || m[1][2] == notMinusOne)
        return ML::ATan2(-m[2][0], m[0][0]);
    return ML::ATan2(m[1][0], m[1][1]);
}

double CMat::InvPitch() const noexcept
{
    if (m[1][2] == 1)
        return -ML::pi_2;
    if (m[1][2] == -1)
        return ML::pi_2;
    return std::asin(-m[1][2]);
}

double CMat::InvRoll() const noexcept
{
    if (m[1][2] == 1 || m[1][2] == notMinusOne)
        return 0;
    return -ML::ATan2(-m[0][2], m[2][2]);
}

void CMat::Orientation(double* h, double* p, double* r) const noexcept
{
    *h = Heading();
    *p = Pitch();
    *r = m[2][1] == 1 || m[2][1] == -1 ? 0 : -ML::ATan2(-m[2][0], m[2][2]);
}

int CMat::Finite() const noexcept
{
    return std::ranges::all_of(m, [](const auto& row) {
        return std::ranges::all_of(row, [](double v) { return std::isfinite(v); });
    });
}

void CMat::Serialize(CArchive& ar)
{
    for (auto& row : m) {
        for (double& value : row) {
            if (ar.IsStoring())
                ar << value;
            else
                ar >> value;
        }
    }
}
