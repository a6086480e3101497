#include "core/CStatBuf.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <afx.h>

#include "core/detail/OutOfMemory.h"

namespace
{

std::size_t Bytes(std::size_t slots) noexcept
{
    return slots * sizeof(double);
}

} // namespace

CStatBuf::CStatBuf(const CStatBuf& other)
{
    *this = other;
}

CStatBuf& CStatBuf::operator=(const CStatBuf& other)
{
    if (this == &other) {
        return *this;
    }
    double* copy = nullptr;
    if (other.m_size != 0) {
        copy = static_cast<double*>(vant::detail::Malloc(Bytes(other.m_size)));
        std::copy_n(other.m_values, other.m_size, copy);
    }
    vant::detail::Free(std::exchange(m_values, copy));
    m_size = other.m_size;
    m_next = other.m_next;
    m_count = other.m_count;
    m_sum = other.m_sum;
    return *this;
}

CStatBuf::~CStatBuf()
{
    vant::detail::Free(m_values);
}

void CStatBuf::SetSize(unsigned n)
{
    if (n == m_size) {
        return;
    }
    if (n == 0) {
        vant::detail::Free(std::exchange(m_values, nullptr));
    } else {
        m_values = static_cast<double*>(vant::detail::Realloc(m_values, Bytes(n)));
        std::fill_n(m_values, n, 0.0);
    }
    m_size = n;
    m_next = 0;
    m_count = 0;
    m_sum = 0.0;
}

double CStatBuf::GetAvgD() const noexcept
{
    if (m_count < 2) {
        return 0.0;
    }
    const unsigned newest = m_next == 0 ? m_size - 1 : m_next - 1;
    return (m_values[newest] - m_values[m_next]) / m_count;
}

int CStatBuf::GetStats(double& min, double& max, double& sd)
{
    constexpr double beyondSamples = 1e9;
    if (m_count < 2) {
        return 0;
    }
    const double mean = m_sum / m_count;
    double smallest = beyondSamples;
    double largest = -beyondSamples;
    double squares = 0.0;
    for (unsigned i = 0; i < m_count; ++i) {
        const double value = m_values[i];
        smallest = value < smallest ? value : smallest;
        largest = value > largest ? value : largest;
        squares += (value - mean) * (value - mean);
    }
    m_sd = std::sqrt(squares / (m_count - 1));
    min = smallest;
    max = largest;
    sd = m_sd;
    return 1;
}

void CStatBuf::GetMC(double& m, double& c) const noexcept
{
    m = 0.0;
    c = 0.0;
    if (m_count < 2) {
        return;
    }
    // About the middle of the indices, so that nothing large cancels.
    const double n = m_count;
    const double middle = (n - 1.0) / 2.0;
    double sum = 0.0;
    double products = 0.0;
    for (unsigned i = 0; i < m_count; ++i) {
        sum += m_values[i];
        products += (i - middle) * m_values[i];
    }
    const double squares = n * (n * n - 1.0) / 12.0; // of 0 .. n-1 about their middle
    m = products / squares;
    c = sum / n - m * middle;
}

void CStatBuf::Serialize(CArchive& ar)
{
    if (ar.IsLoading()) {
        Load(ar);
        return;
    }
    ar << m_size << m_next << m_count << m_sum << m_sd;
    for (unsigned i = 0; i < m_size; ++i) {
        ar << m_values[i];
    }
}

void CStatBuf::Load(CArchive& ar)
{
    CStatBuf loaded;
    unsigned size = 0;
    ar >> size >> loaded.m_next >> loaded.m_count >> loaded.m_sum >> loaded.m_sd;
    const bool plausible = loaded.m_count <= size && (size == 0 ? loaded.m_next == 0 : loaded.m_next < size);
    if (!plausible) {
        AfxThrowArchiveException(CArchiveException::badIndex);
    }
    // Grows with what is really there: a size that lies ends at the archive's end, not at the memory's.
    std::vector<double> values;
    for (unsigned i = 0; i < size; ++i) {
        ar >> values.emplace_back();
    }
    if (size != 0) {
        loaded.m_values = static_cast<double*>(vant::detail::Malloc(Bytes(size)));
        std::copy(values.begin(), values.end(), loaded.m_values);
        loaded.m_size = size;
    }
    m_sd = loaded.m_sd;
    std::swap(m_values, loaded.m_values);
    m_size = loaded.m_size;
    m_next = loaded.m_next;
    m_count = loaded.m_count;
    m_sum = loaded.m_sum;
}
