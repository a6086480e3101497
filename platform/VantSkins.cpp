#include "platform/Vant.h"
#include "platform/detail/Skins.h"
#include "platform/detail/SystemCalls.h"
#include "resources/Ids.h"

CDC Vant::grad1, Vant::grad2, Vant::grad3, Vant::dwnAr, Vant::ctrl, Vant::leds, Vant::grGrad, Vant::check,
    Vant::txt, Vant::toggle, Vant::left, Vant::right, Vant::slider, Vant::msgBack, Vant::msgInfo,
    Vant::msgWarn, Vant::msgStop, Vant::msgYesBtn, Vant::msgNoBtn, Vant::msgBlankBtn, Vant::process;

namespace vant::detail
{

namespace
{

CDC menuSkin;
CDC glowSkin;

/** Owns the bitmap in one skin's device context. A bitmap can only be deleted while no context holds it, so
 * the one that the context was born with is kept to take its place. */
class Skin
{
public:
    Skin(CDC& dc, int resource) noexcept
        : m_dc(dc)
        , m_resource(resource)
    {
    }
    Skin(const Skin&) = delete;
    Skin& operator=(const Skin&) = delete;
    ~Skin() { ReleaseBitmap(); }

    void Load(HDC screen)
    {
        ReleaseBitmap();
        m_dc.DeleteDC();
        if (!m_dc.Attach(::CreateCompatibleDC(screen)))
            return;
        m_bitmap = Calls().loadBitmap(m_resource);
        if (m_bitmap)
            m_original = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap);
    }

private:
    void ReleaseBitmap() noexcept
    {
        if (m_original)
            ::SelectObject(m_dc.GetSafeHdc(), m_original);
        if (m_bitmap)
            ::DeleteObject(m_bitmap);
        m_original = nullptr;
        m_bitmap = nullptr;
    }

    CDC& m_dc;
    const int m_resource;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_original = nullptr;
};

// Loaded from top to bottom. Defined after the contexts, so that the bitmaps go before them when the library
// is unloaded.
Skin skins[] = {
    {Vant::leds, VANT_IDB_LEDS},
    {Vant::grad1, VANT_IDB_GRAD1},
    {Vant::grad2, VANT_IDB_GRAD2},
    {Vant::grad3, VANT_IDB_GRAD2}, // shares its picture with grad2 on purpose
    {Vant::dwnAr, VANT_IDB_DWNAR},
    {Vant::grGrad, VANT_IDB_GRGRAD},
    {Vant::check, VANT_IDB_CHECK},
    {Vant::txt, VANT_IDB_TXT},
    {Vant::toggle, VANT_IDB_TOGGLE},
    {Vant::left, VANT_IDB_LEFT},
    {Vant::right, VANT_IDB_RIGHT},
    {Vant::slider, VANT_IDB_SLIDER},
    {Vant::msgBack, VANT_IDB_MSGBACK},
    {Vant::msgInfo, VANT_IDB_MSGINFO},
    {Vant::msgWarn, VANT_IDB_MSGWARN},
    {Vant::msgStop, VANT_IDB_MSGSTOP},
    {Vant::msgYesBtn, VANT_IDB_MSGYESBTN},
    {Vant::msgNoBtn, VANT_IDB_MSGNOBTN},
    {Vant::msgBlankBtn, VANT_IDB_MSGBLANKBTN},
    {menuSkin, VANT_IDB_MENU},
    {glowSkin, VANT_IDB_GLOW},
    {Vant::process, VANT_IDB_PROCESS},
};

} // namespace

void LoadSkins()
{
    const HDC screen = ::GetDC(nullptr);
    for (Skin& skin : skins)
        skin.Load(screen);
    if (screen)
        ::ReleaseDC(nullptr, screen);
}

CDC& MenuSkin() noexcept
{
    return menuSkin;
}

CDC& GlowSkin() noexcept
{
    return glowSkin;
}

} // namespace vant::detail
