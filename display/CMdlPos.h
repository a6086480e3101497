#pragma once

#include "core/CLstMgd.h"
#include "core/CLstPtr.h"
#include "core/CMat.h"
#include "core/VantApi.h"

#include <afx.h>

class CDsp;
class CMdl;
class CMdlPos;

/// @cond
/** A list of positions only links them: each is a field or a local object of its owner, who destroys it. */
template <>
inline void CLstMgd<CMdlPos>::DestroyElem(void*)
{
}
/// @endcond

/** A position, alignment and zoom that displays and drawables follow together: the translation column of the
 *  transform is the position. They find it by its name.
 *
 *  Per axis (pan, align, zoom) it says whether it controls the followers, and whether a user may change that
 * in one of them for all. Followers that are destroyed are taken off by themselves.
 *
 *  Positions belong to the UI thread. */
class VANT_API CMdlPos : public CMat
{
public:
    /** Bits of #flags. */
    enum Flag : unsigned {
        ctrlPan = 0x01,   ///< the position is controlled
        ctrlAlign = 0x02, ///< the alignment is controlled
        ctrlZoom = 0x04,  ///< the zoom is controlled
        userPan = 0x10,   ///< the user may pan a controlled position
        userAlign = 0x20, ///< the user may turn a controlled alignment
        userZoom = 0x40   ///< the user may zoom a controlled zoom
    };

    static constexpr int moved = 1; ///< message of Update(); its data is the source of the change

    /** Every position there is, in the order of construction: each adds itself, and leaves when it is
     * destroyed. For looking through; the list destroys none of them, and elements must not be added to it or
     * made by it. */
    static CLstMgd<CMdlPos> s_mdlPos;

    CMdlPos();
    /** A position of its own with the other's values and name: nobody follows it, and nothing is saved on its
     * stack. Being the later one, GetMdlPos() does not find it before either gets another name. */
    CMdlPos(const CMdlPos& other);
    ~CMdlPos();
    /** Takes the other's values and name. Followers stay, and are not told: call Update(). */
    CMdlPos& operator=(const CMdlPos& other);

    CString name = L"Default"; ///< exact key of GetMdlPos()
    /** Time that the position is of, seconds since 1980; -1: of none. For the application; kept and copied.
     */
    double tm = -1;
    double zoom = 0;            ///< in the followers' measure; 0: not set yet
    double align = 0;           ///< alignment angle, radians
    CV3 vel;                    ///< velocity, per second. For the application; kept and copied.
    unsigned long flags = 0x77; ///< sum of Flag; at first all of them

    /** The first position with exactly this name, or null. */
    static CMdlPos* GetMdlPos(const CString& key);

    /** Sets bits of #flags. */
    void SetFlag(unsigned long bits) noexcept { flags |= bits; }
    /** Clears bits of #flags. */
    void UnsetFlag(unsigned long bits) noexcept { flags &= ~bits; }

    /** Whether the position moves its followers. */
    int CtrlPan() const noexcept { return Has(ctrlPan); }
    /** Whether the alignment turns its followers. */
    int CtrlAlign() const noexcept { return Has(ctrlAlign); }
    /** Whether the zoom is that of its followers. */
    int CtrlZoom() const noexcept { return Has(ctrlZoom); }
    /** Whether the user may change anything that is controlled. */
    int AllowUser() const noexcept { return Has(userPan | userAlign | userZoom); }
    /** Whether the user may pan in a follower: always where that is not controlled. */
    int AllowUserPan() const noexcept { return !CtrlPan() || Has(userPan); }
    /** Whether the user may turn a follower, likewise. */
    int AllowUserAlign() const noexcept { return !CtrlAlign() || Has(userAlign); }
    /** Whether the user may zoom in a follower, likewise. */
    int AllowUserZoom() const noexcept { return !CtrlZoom() || Has(userZoom); }

    /** Registers a follower. One that registers twice is told everything twice, deliberately. */
    void RegDsp(CDsp* dsp);
    /** The same for a drawable. */
    void RegMdl(CMdl* mdl);
    /** Ends that, however often it was registered. */
    void DeRegDsp(CDsp* dsp);
    /** The same for a drawable. */
    void DeRegMdl(CMdl* mdl);
    /** Take a follower off every position there is. Destructors of followers do. */
    static void Forget(CDsp* dsp);
    static void Forget(CMdl* mdl);

    /** Sends a message to every display that follows (CDsp::OnMdlPos). A handler may deregister its own
     * display, if that is registered once. @param data  belongs to the caller; valid during the call */
    void DspMsg(int msg, void* data);
    /** Sends a message to every drawable that follows (CMdl::OnMdlPos), likewise. */
    void MdlMsg(int msg, void* data);

    /** Sends #moved to every follower, displays first, but for the source: a CDsp, a CMdl or null. */
    void Update(void* source);

    /** The user has changed a display. What is controlled and the user may change is taken; if that is
     * anything, the other followers are told. @param newAlign  radians */
    void SetFromDsp(CDsp* source, const CV3& org, double newZoom, double newAlign);
    /** A drawable sets the position. What is controlled is taken, whatever the user may; if that is anything,
     * the other followers are told. */
    void SetFromMdl(CMdl* source, const CV3& org, double newZoom, double newAlign);

private:
    int Has(unsigned long bits) const noexcept { return (flags & bits) != 0; }
    bool Take(unsigned long which, const CV3& org, double newZoom, double newAlign);

    CLstPtr<CDsp*> m_dsps; // not owned
    CLstPtr<CMdl*> m_mdls; // not owned
};
