#include "controls/CEChart.h"

#include "controls/detail/ChartState.h"
#include "settings/CESetObj.h"
#include "values/detail/ValueType.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using vant::detail::ChartSample;
using vant::detail::ChartState;
using vant::detail::TypeOf;
using vant::detail::ValueType;

IMPLEMENT_DYNAMIC(CEChart, CECtrl)

constexpr int CEChart::defaultCapacity;

namespace
{

constexpr UINT_PTR refreshTimer = 1;

/** Colours that can be told apart, and read (4.5 : 1 or more) on the background of a strip. */
constexpr std::array<COLORREF, 6> traceColours = {RGB(98, 203, 255),  RGB(255, 184, 77),  RGB(128, 222, 110),
                                                  RGB(255, 128, 158), RGB(196, 164, 255), RGB(240, 230, 120)};

} // namespace

CEChart::CEChart()
    : m_state(std::make_unique<ChartState>())
{
    ctrlType = typeChart;
    dblBuf = 0; // it has a picture of its own
    s_auCtrls.AddTail(this);
}

CEChart::~CEChart()
{
    // While there is something to draw.
    if (m_hWnd)
        DestroyWindow();
}

unsigned long CEChart::WndStyle() const
{
    return CECtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

CEStrip* CEChart::AddStrip(const CString& title, int unitKind)
{
    auto strip = std::make_unique<ChartState::Strip>();
    strip->own.title = title;
    strip->own.units = unitKind;
    m_state->strips.push_back(std::move(strip));
    return &m_state->strips.back()->own;
}

CETrace* CEChart::AddTrace(const CString& traceName, CEStrip* strip, int capacity)
{
    auto& strips = m_state->strips;
    if (strips.empty())
        AddStrip(CString());
    const auto found = std::find_if(strips.begin(), strips.end(),
                                    [strip](const auto& other) { return &other->own == strip; });
    auto trace = std::make_unique<ChartState::Trace>();
    trace->own.name = traceName;
    trace->own.m_index = GetTraceCount();
    trace->own.m_strip =
        static_cast<int>(found != strips.end() ? found - strips.begin() : std::ssize(strips) - 1);
    trace->own.colour = traceColours[static_cast<std::size_t>(trace->own.m_index) % traceColours.size()];
    m_state->data.AddTrace(static_cast<std::size_t>(std::max(capacity, 1)));
    m_state->traces.push_back(std::move(trace));
    return &m_state->traces.back()->own;
}

int CEChart::GetStripCount() const noexcept
{
    return static_cast<int>(m_state->strips.size());
}

CEStrip* CEChart::GetStrip(int index) const noexcept
{
    return index >= 0 && index < GetStripCount() ? &m_state->strips[static_cast<std::size_t>(index)]->own
                                                 : nullptr;
}

int CEChart::GetTraceCount() const noexcept
{
    return static_cast<int>(m_state->traces.size());
}

CETrace* CEChart::GetTrace(int index) const noexcept
{
    return index >= 0 && index < GetTraceCount() ? &m_state->traces[static_cast<std::size_t>(index)]->own
                                                 : nullptr;
}

void CEChart::RemoveAll()
{
    m_state->data.RemoveAll();
    m_state->names.clear();
    m_state->traces.clear();
    m_state->strips.clear();
    m_state->bound = -1;
    Redraw();
}

/** Seconds that a line goes on over. */
double CEChart::Bridge() const noexcept
{
    return joinMax > 0 ? joinMax : std::numeric_limits<double>::infinity();
}

void CEChart::Add(int trace, double t, double v)
{
    const ChartSample sample{t, v};
    m_state->data.Add(trace, {&sample, 1}, Bridge());
}

void CEChart::Add(int trace, const double* t, const double* v, int count)
{
    constexpr int blockSize = 256; // samples per taking of the lock, so that drawing need not wait
    std::array<ChartSample, blockSize> block;
    for (int done = 0; done < count;) {
        const int size = std::min(count - done, blockSize);
        for (int i = 0; i < size; ++i)
            block[static_cast<std::size_t>(i)] = {t[done + i], v[done + i]};
        m_state->data.Add(trace, {block.data(), static_cast<std::size_t>(size)}, Bridge());
        done += size;
    }
}

void CEChart::Clear()
{
    m_state->data.Clear();
    m_state->view.SetLive(true);
    Redraw();
}

double CEChart::GetSpan() const noexcept
{
    return m_state->view.Span();
}

void CEChart::SetSpan(double seconds)
{
    m_state->view.SetSpan(seconds);
    Redraw();
}

int CEChart::IsLive() const noexcept
{
    return m_state->view.IsLive();
}

void CEChart::SetLive(int live)
{
    SyncTimes();
    m_state->view.SetLive(live != 0);
    Redraw();
}

double CEChart::GetEnd() const
{
    return m_state->view.End();
}

int CEChart::GetShown(int strip, double& min, double& max) const
{
    if (strip < 0 || strip >= GetStripCount())
        return 0;
    const auto& shown = m_state->strips[static_cast<std::size_t>(strip)]->shown;
    if (!(shown.min < shown.max))
        return 0;
    min = shown.min;
    max = shown.max;
    return 1;
}

void CEChart::Settings(CESetObj& obj, const CString& key)
{
    double span = GetSpan();
    obj.Item(key + L"_Span", span);
    obj.Item(key + L"_Time", timeLabels);
    CString itemName;
    for (int i = 0; i < GetStripCount(); ++i) {
        CEStrip& strip = *GetStrip(i);
        const auto item = [&](const wchar_t* what, auto& value) {
            itemName.Format(L"%s_Strip%d_%s", static_cast<LPCWSTR>(key), i, what);
            obj.Item(itemName, value);
        };
        item(L"Range", strip.range);
        item(L"Min", strip.rangeMin);
        item(L"Max", strip.rangeMax);
    }
    for (int i = 0; i < GetTraceCount(); ++i) {
        itemName.Format(L"%s_Trace%d_Visible", static_cast<LPCWSTR>(key), i);
        obj.Item(itemName, GetTrace(i)->visible);
    }
    if (obj.IsLoading())
        SetSpan(span);
}

void CEChart::SyncTimes()
{
    const vant::detail::ChartData::Reader reader(m_state->data);
    const auto times = reader.Times();
    if (!times.IsEmpty())
        m_state->view.SetTimes(times.min, times.max);
}

void CEChart::Redraw()
{
    if (m_hWnd)
        Invalidate(FALSE);
}

void CEChart::Update(int arg)
{
    AddBound();
    CECtrl::Update(arg);
}

void CEChart::Retreive() {}

bool CEChart::HoldsNumber() const
{
    const ValueType kind = TypeOf(type);
    return pVal &&
           (vant::detail::IsIntegerType(kind) || kind == ValueType::Float || kind == ValueType::Double);
}

/** Gives the bound variable its trace, once there is one. */
void CEChart::AddBound()
{
    if (m_state->bound >= 0 || !HoldsNumber())
        return;
    CEStrip* const strip = AddStrip(CString(), units);
    strip->scale = scale;
    strip->decimals = decimals;
    m_state->bound = AddTrace(text, strip)->Index();
}

void CEChart::AutoUpdate(double t)
{
    AddBound();
    if (m_state->bound < 0 || !HoldsNumber())
        return;
    // The one type whose value GetVal() deliberately does not tell.
    const double v = TypeOf(type) == ValueType::Int64
                         ? static_cast<double>(static_cast<__int64>(static_cast<const CEVal&>(*this)))
                         : GetVal();
    Add(m_state->bound, t, v);
}

int CEChart::OnCreate(LPCREATESTRUCT create)
{
    // A window that is destroyed under the mouse need not be told that it has lost it.
    m_state->dragging = false;
    m_state->mouse.reset();
    m_state->pressTime.reset();
    AddBound();
    if (refresh > 0)
        SetTimer(refreshTimer, static_cast<UINT>(refresh), nullptr);
    return CECtrl::OnCreate(create);
}

void CEChart::OnTimer(UINT_PTR timer)
{
    if (timer != refreshTimer)
        return CECtrl::OnTimer(timer);
    // A chart that is paused shows the same whatever comes.
    if (m_state->data.TakeChanged() && m_state->view.IsLive())
        Invalidate(FALSE);
}

void CEChart::OnSize(UINT how, int width, int height)
{
    CECtrl::OnSize(how, width, height);
    Invalidate(FALSE);
}
