#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

#include <vector>

/** Makes orders for the controller's manager (CRcMgr) of key presses, for a controller that sends keys and
 * for work without one. Asked by the application before any control is, an edit field included:
 *
 *  @code
 *  BOOL CApp::PreTranslateMessage(MSG* msg)
 *  {
 *      return m_keys.Take(msg) || CBaseApp::PreTranslateMessage(msg);
 *  }
 *  @endcode
 *
 *  At first these keys of the numeric keypad are taken, with Control held down, whatever Num Lock says:
 *
 *  | key | order |
 *  |-----|-------|
 *  | 2, 8 | next, previous control |
 *  | 6, 4 | next, previous set |
 *  | 3, 9 | next, previous group |
 *  | plus, minus | more, less; with Shift too by fine steps |
 *  | 5 | press |
 *  | 0 | change over between coarse and fine |
 *  | point | release | */
class VANT_API CRcKeys
{
public:
    /** Keys that are held down meanwhile. */
    enum HeldBits {
        heldCtrl = 1,  ///< Ctrl
        heldShift = 2, ///< Shift
        heldAlt = 4,   ///< Alt
    };

    CRcKeys();

    int infoShift = 0; ///< as CRcMgr::infoShift

    /** Gives a key an order, instead of the one that it had.
     *  @param key  virtual key code  @param held  HeldBits, all of which must agree  @param order  a
     * CRcMgr::Info; 0 takes the key away */
    void Map(UINT key, int held, int order);
    /** Takes all keys away. */
    void Clear();

    /** Sends the order of a key press, as an information message. A key that is held down repeats steps, but
     * no press. @return 1 if the key is one of these, and nobody else is to have it */
    int Take(const MSG* msg) const;

private:
    struct Key {
        UINT key;
        int held;
        int order;
    };
    std::vector<Key> m_keys;
};
