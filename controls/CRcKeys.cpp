#include "controls/CRcKeys.h"

#include "controls/CRcMgr.h"

#include <algorithm>

namespace
{

/** The key of the keypad that a key without Num Lock is; other keys are themselves. */
UINT KeypadKey(const MSG& msg)
{
    static constexpr UINT unlocked[] = {VK_INSERT, VK_END,   VK_DOWN, VK_NEXT, VK_LEFT,
                                        VK_CLEAR,  VK_RIGHT, VK_HOME, VK_UP,   VK_PRIOR};
    constexpr LPARAM extended = 1 << 24; // the key of that name beside the keypad
    const auto key = static_cast<UINT>(msg.wParam);
    if (msg.lParam & extended)
        return key;
    if (key == VK_DELETE)
        return VK_DECIMAL;
    const auto* const found = std::find(std::begin(unlocked), std::end(unlocked), key);
    return found == std::end(unlocked) ? key : VK_NUMPAD0 + static_cast<UINT>(found - std::begin(unlocked));
}

int HeldNow()
{
    const auto bit = [](int key, int held) { return ::GetKeyState(key) < 0 ? held : 0; };
    return bit(VK_CONTROL, CRcKeys::heldCtrl) | bit(VK_SHIFT, CRcKeys::heldShift) |
           bit(VK_MENU, CRcKeys::heldAlt);
}

bool MayRepeat(int order)
{
    return order != CRcMgr::infoPress && order != CRcMgr::infoFine && order != CRcMgr::infoRelease;
}

} // namespace

CRcKeys::CRcKeys()
    : m_keys{
          {VK_NUMPAD2, heldCtrl, CRcMgr::infoNextCtrl},
          {VK_NUMPAD8, heldCtrl, CRcMgr::infoPrevCtrl},
          {VK_NUMPAD6, heldCtrl, CRcMgr::infoNextSet},
          {VK_NUMPAD4, heldCtrl, CRcMgr::infoPrevSet},
          {VK_NUMPAD3, heldCtrl, CRcMgr::infoNextGrp},
          {VK_NUMPAD9, heldCtrl, CRcMgr::infoPrevGrp},
          {VK_ADD, heldCtrl, CRcMgr::infoInc},
          {VK_SUBTRACT, heldCtrl, CRcMgr::infoDec},
          {VK_ADD, heldCtrl | heldShift, CRcMgr::infoIncFine},
          {VK_SUBTRACT, heldCtrl | heldShift, CRcMgr::infoDecFine},
          {VK_NUMPAD5, heldCtrl, CRcMgr::infoPress},
          {VK_NUMPAD0, heldCtrl, CRcMgr::infoFine},
          {VK_DECIMAL, heldCtrl, CRcMgr::infoRelease},
      }
{
}

void CRcKeys::Map(UINT key, int held, int order)
{
    std::erase_if(m_keys, [&](const Key& known) { return known.key == key && known.held == held; });
    if (order != 0)
        m_keys.push_back({key, held, order});
}

void CRcKeys::Clear()
{
    m_keys.clear();
}

int CRcKeys::Take(const MSG* msg) const
{
    if (msg->message != WM_KEYDOWN && msg->message != WM_SYSKEYDOWN)
        return 0;
    const int held = HeldNow();
    const auto pressed = static_cast<UINT>(msg->wParam);
    const UINT onKeypad = KeypadKey(*msg);
    const auto found = std::find_if(m_keys.begin(), m_keys.end(), [&](const Key& known) {
        return known.held == held && (known.key == pressed || known.key == onKeypad);
    });
    if (found == m_keys.end())
        return 0;
    constexpr LPARAM wasDown = 1 << 30;
    const int order = found->order;
    if (!(msg->lParam & wasDown) || MayRepeat(order))
        CVantWnd::InfoMsg(order + infoShift, nullptr);
    return 1;
}
