#include "platform/Vant.h"
#include "platform/detail/NewHandler.h"
#include "platform/detail/Skins.h"
#include "platform/detail/Startup.h"

#include <cwchar>
#include <iterator>
#include <span>

namespace vant::detail
{

StartupSteps& Startup() noexcept
{
    static constinit StartupSteps steps;
    return steps;
}

} // namespace vant::detail

namespace
{

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

struct Ink {
    CPen& pen;
    CBrush& brush;
    const COLORREF& colour;
};

// In the order in which they are created; the last one outlives Exit.
const Ink inks[] = {
    {Vant::blackL, Vant::blackB, black},       {Vant::whiteL, Vant::whiteB, white},
    {Vant::lightL, Vant::lightB, Vant::light}, {Vant::backL, Vant::backB, Vant::back},
    {Vant::medL, Vant::medB, Vant::med},       {Vant::darkL, Vant::darkB, Vant::dark},
    {Vant::blueL, Vant::blueB, Vant::blue},    {Vant::greenL, Vant::greenB, Vant::green},
    {Vant::greyL, Vant::greyB, Vant::grey},    {Vant::cyanL, Vant::cyanB, Vant::cyan},
    {Vant::redL, Vant::redB, Vant::red},       {Vant::yellowL, Vant::yellowB, Vant::yellow},
    {Vant::tealL, Vant::tealB, Vant::teal},    {Vant::slateL, Vant::slateB, Vant::slate},
};
constexpr std::size_t inksOfExit = std::size(inks) - 1;

struct FontShape {
    CFont& font;
    LONG height; // of a cell, logical units
    LONG weight;
    LONG angle = 0; // of the line and of each character, tenths of a degree
    const wchar_t* face = L"Arial";
};

const FontShape fonts[] = {
    {Vant::smallF, 14, 400},
    {Vant::normalF, 16, 400},
    {Vant::boldF, 14, 600},
    {Vant::headF, 30, 400},
    {Vant::vertF, 12, 400, 900},
    {Vant::scrnF, 20, 400},
    {Vant::medF, 12, 100, 0, L"Courier"},
};

void CreateFonts()
{
    for (const FontShape& shape : fonts) {
        LOGFONTW record{};
        record.lfHeight = shape.height;
        record.lfWeight = shape.weight;
        record.lfEscapement = shape.angle;
        record.lfOrientation = shape.angle;
        std::wcsncpy(record.lfFaceName, shape.face, std::size(record.lfFaceName) - 1);
        shape.font.DeleteObject();
        shape.font.CreateFontIndirect(&record);
    }
}

void CreateInks()
{
    for (const Ink& ink : inks) {
        ink.pen.DeleteObject();
        ink.pen.CreatePen(PS_SOLID, 1, ink.colour);
    }
    for (const Ink& ink : inks) {
        ink.brush.DeleteObject();
        ink.brush.CreateSolidBrush(ink.colour);
    }
}

/** Gives an existing window class another background and icon. The system has no call for a class, only for a
 *  window of it. */
void ChangeClass(LPCWSTR name, HBRUSH background, HICON icon)
{
    const HWND probe = ::CreateWindowExW(0, name, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                         AfxGetInstanceHandle(), nullptr);
    if (!probe)
        return;
    ::SetClassLongPtrW(probe, GCLP_HBRBACKGROUND, reinterpret_cast<LONG_PTR>(background));
    ::SetClassLongPtrW(probe, GCLP_HICON, reinterpret_cast<LONG_PTR>(icon));
    ::DestroyWindow(probe);
}

void RegisterWndClass(CString& member, LPCWSTR name, UINT style, HICON icon)
{
    WNDCLASSW wc{};
    wc.style = style;
    wc.lpfnWndProc = ::DefWindowProcW;
    wc.hInstance = AfxGetInstanceHandle();
    wc.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    wc.hbrBackground = Vant::backB;
    wc.hIcon = icon;
    wc.lpszClassName = name;
    if (!::RegisterClassW(&wc)) {
        if (::GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
            return;
        ChangeClass(name, wc.hbrBackground, icon);
    }
    member = name;
}

void RegisterWndClasses()
{
    RegisterWndClass(Vant::wndClass, L"VantWnd", CS_DBLCLKS | CS_BYTEALIGNWINDOW, Vant::hIcon);
    RegisterWndClass(Vant::ctlClass, L"VantCtl", CS_BYTEALIGNWINDOW, nullptr);
}

void RunStep(void (*step)())
{
    if (step)
        step();
}

} // namespace

void Vant::Init()
{
    vant::detail::InstallNewHandlers();
    CreateFonts();
    CreateInks();
    RegisterWndClasses();
    RunStep(vant::detail::Startup().createToolTip);
    RunStep(vant::detail::Startup().prepareConsoles);
    vant::detail::LoadSkins();
}

void Vant::Exit()
{
    RunStep(vant::detail::Startup().destroyWindows);
    RunStep(vant::detail::Startup().releaseLists);
    // The classes outlive the brush; without this they would paint with a handle that may be another object's
    // by then.
    const HBRUSH stock = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    if (!wndClass.IsEmpty())
        ChangeClass(wndClass, stock, nullptr);
    if (!ctlClass.IsEmpty())
        ChangeClass(ctlClass, stock, nullptr);

    const std::span released(inks, inksOfExit);
    for (const Ink& ink : released)
        ink.pen.DeleteObject();
    for (const Ink& ink : released)
        ink.brush.DeleteObject();
}
