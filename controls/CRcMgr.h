#pragma once

#include "controls/CRcGrp.h"
#include "controls/CVantWnd.h"
#include "core/CLstMgd.h"

#include <memory>
#include <vector>

namespace vant::detail
{
class RcGlow;
}

/** Lets an external controller, such as a jog dial, step through groups of sets of controls and operate the
 * one that it is at, which glows.
 *
 *  @code
 *  CRcMgr m_remote;
 *  CRcSet* const sonar = m_remote.GetGrp(L"Sensors")->GetSet(L"Sonar");
 *  sonar->Add(m_range, 5, 1);  // 5 metres per notch, finely 1
 *  sonar->Add(m_gain);         // a slider: its own steps
 *  sonar->AddCat(*options);    // all that the keyboard can operate
 *
 *  int notches = dial.Read();  // the driver of the device
 *  CVantWnd::InfoMsg(CRcMgr::infoNextCtrl, &notches);
 *  @endcode
 *
 *  **Orders** are information messages; the manager registers for them by itself and needs no window. Their
 * data is the address of an int, the number of steps or notches, negative to the other side; null is one. An
 * order to step, while no control is current, only makes the one current that was left last. The keyboard
 * sends the same orders through CRcKeys. The focus is left alone until a field is pressed.
 *
 *  **What is passed over:** controls that could not be operated (CRcSet::IsUsable()), and sets and groups
 * without any other. A current control that becomes unusable stops glowing, takes no orders, and is current
 * again when it can be used again; from one that was deleted the next step leads to its neighbour.
 *
 *  **The glow** pulses, and fades where it was, in the rhythm of CECtrl::UpdateAuCtrls(). Without these calls
 * it is steady and goes at once. A control that becomes current is scrolled into view.
 *
 *  **Settings** (CVantWnd::SaveSet()) keep #fine, and where groups and sets were left, under the names of the
 * manager, groups and sets, which must differ. After loading nothing is current until the next step.
 *
 *  Windows that are attached (AttachWnd()) are told of every change (#nfyCurrent). Belongs to the UI thread.
 */
class VANT_API CRcMgr : public CVantWnd
{
    DECLARE_DYNAMIC(CRcMgr)

public:
    /** Information messages that give orders; #infoShift is added to them. */
    enum Info {
        infoNextGrp = 5301, ///< to the next group that can be used
        infoPrevGrp,        ///< to the one before
        infoNextSet,        ///< to the next set of the group
        infoPrevSet,        ///< to the one before
        infoNextCtrl,       ///< to the next control of the set
        infoPrevCtrl,       ///< to the one before
        infoInc,            ///< more, by coarse or fine steps as #fine says
        infoDec,            ///< less, likewise
        infoIncFine,        ///< more, by fine steps
        infoDecFine,        ///< less, likewise
        infoPress,          ///< a click on the control, one whatever the number
        infoFine,           ///< changes over between coarse and fine steps
        infoRelease,        ///< lets go: nothing is current, and nothing glows
    };
    /** Notification (OnNfyWnd()): the current control has changed, or its set or #fine. Data: the control;
     * null for none. */
    static constexpr int nfyCurrent = 5320;

    /** With the name "RcMgr". */
    CRcMgr();
    ~CRcMgr() override;

    /** @name Fields */
    ///@{
    int wrap = 1;       ///< non-zero: after the last control, set or group comes the first
    int fine = 0;       ///< non-zero: fine steps; persistent
    int infoShift = 0;  ///< added to the numbers of Info: for a second manager
    double pulse = 1.6; ///< time from bright to bright, seconds; 0 or less: the glow is steady
    double fade = 0.4;  ///< time in which the glow fades, seconds
    /** @} */

    /** @name Groups */
    ///@{
    /** The group of that name, appended if there is none. Owned by the manager; valid until DelGrp(). */
    CRcGrp* GetGrp(const CString& grpName);
    /** The group of that name; null if there is none. */
    CRcGrp* FindGrp(const CString& grpName) const;
    /** Deletes a group of this manager with its sets; the controls stay. */
    void DelGrp(CRcGrp* grp);
    /** In the order in which the controller steps through them. */
    const CLstMgd<CRcGrp>& Grps() const noexcept { return m_grps; }
    /** @} */

    /** @name Current
     *  Group and set are kept while nothing is current; null before there was one. @{ */
    /** The group that steps go on from. */
    CRcGrp* CurGrp() const;
    /** The set of it that steps go on from. */
    CRcSet* CurSet() const;
    /** The control that orders go to; null while nothing is current or it cannot be used. */
    CECtrl* CurCtrl() const;
    /** @} */

    /** @name The orders
     *  They return 1 if they have changed something. What they call may destroy the manager, but not its
     * current control. While nothing is current, a step only makes current again what was it last. @{ */
    /** Goes to another group that can be used. @param by  how many on; negative: back */
    int StepGrp(int by);
    /** Goes to another set of the current group, likewise. */
    int StepSet(int by);
    /** Goes to another control of the current set, likewise. */
    int StepCtrl(int by);
    /** Changes the value of the current control by notches. @param isFine  non-zero: by fine steps */
    int Adjust(int notches, int isFine);
    /** Does with the current control what a click does. */
    int Press();
    /** Changes over between coarse and fine steps. */
    void ToggleFine();
    /** Lets nothing be current until the next step. */
    void Release();
    /** Makes a control of any set current, of the current set if it is in several. Not one that cannot be
     * used. */
    int Select(CECtrl* ctrl);
    /** @} */

    /** Takes the orders. */
    void OnInfoMsg(int msg, void* data) override;
    void Settings(CESetObj& obj) override;

private:
    friend class CRcGrp;
    friend class CRcSet;
    friend class vant::detail::RcGlow;

    std::vector<bool> Usable() const;
    void Refresh();
    void Tell(CECtrl* now);
    int Wake();
    void EnterGrp(int grp);
    void EnterSet(CRcGrp& grp, int set);
    void EnterCtrl(CRcSet& set, int ctrl);
    bool SelectIn(int grp, int set, CECtrl* ctrl);
    void GrpSettings(CESetObj& obj, CRcGrp& grp);

    CLstMgd<CRcGrp> m_grps;
    vant::detail::RcPlace m_place;
    bool m_isActive = false;
    std::unique_ptr<vant::detail::RcGlow> m_glow; // never null
    std::weak_ptr<CECtrl*> m_told;                // what listeners know of
    const CRcSet* m_toldSet = nullptr;            // no more than an address
    bool m_hasTold = false;                       // of a control
};
