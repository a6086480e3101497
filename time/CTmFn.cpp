#include "time/CTmFn.h"

CTmFn::CTmFn()
    : name(L"Default")
{
}

CTmFn::~CTmFn() = default;

int CTmFn::PollTm(double&)
{
    return 0;
}

void CTmFn::AddTm(double y, double x)
{
    m_fit.Add(y, x);
    CalcMC();
}

void CTmFn::CalcMC()
{
    vant::detail::SlopeFit::Line line{};
    if (m_fit.GetLine(line))
        SetMC(line.m, line.c);
}

void CTmFn::Reset()
{
    m_fit = {};
    SetMC(1.0, 0.0);
}

double CTmFn::GetTm(double y) const
{
    double slope = 0.0;
    double intercept = 0.0;
    return GetMC(slope, intercept) ? (y - intercept) / slope : -1.0;
}

int CTmFn::SetMC(double slope, double intercept)
{
    CSingleLock lock(&m_lock);
    if (!lock.Lock())
        return 0;
    m_m = slope;
    m_c = intercept;
    return 1;
}

int CTmFn::GetMC(double& slope, double& intercept) const
{
    CSingleLock lock(&m_lock);
    if (!lock.Lock())
        return 0;
    slope = m_m;
    intercept = m_c;
    return 1;
}
