#pragma once

#include "controls/CVantWnd.h"
#include "core/CLstMgd.h"
#include "display/CMdlInf.h"

class CDsp;

/** The display group: brings the drawables and the views of a process together.
 *
 *  The first group becomes CDsp::s_pDspGrp. Create it before drawables and views, which register themselves
 * with it, and destroy it when you like: they outlive it. What changes in a drawable is passed on to every
 * view; a view that has to be drawn anew is drawn at the next CVantWnd::Poll(), once, however many changes
 * there were, and not at all when there were none.
 *
 *  A group receives polls for as long as it exists; it needs no window on the screen. UI thread only. */
class VANT_API CDspGrp : public CVantWnd
{
    DECLARE_DYNAMIC(CDspGrp)

public:
    /** Changes that the group itself reports to the views (CDsp::OnMdlUpdated); drawables use 0 and above. */
    enum Change {
        mdlAdded = -1,  ///< the drawable is being constructed: no operation of it may be called yet
        mdlRemoved = -2 ///< the drawable is being destroyed, likewise; nothing may keep its pointer
    };

    CDspGrp();
    ~CDspGrp() override;

    /** @name Registration; drawables and views do this themselves */
    ///@{
    /** Nothing for one that is registered already. */
    void RegMdl(CMdl* mdl);
    /** Takes a drawable off; the views are told (#mdlRemoved). */
    void DeRegMdl(CMdl* mdl);
    /** Takes the view over from the group where it was, if it was in one. */
    void RegDsp(CDsp* dsp);
    /** Takes a view off; nothing for one that is not registered. */
    void DeRegDsp(CDsp* dsp);
    /** @} */

    /** The drawables, in the order of registration: that of drawing, where nothing else is said. Not owned.
     */
    const CLstPtr<CMdl*>& GetMdls() const noexcept { return m_mdls; }
    /** The views, in the order of registration. Not owned. */
    const CLstPtr<CDsp*>& GetDsps() const noexcept { return m_dsps; }

    /** Fills a list with the information of every drawable (CMdl::GetInf). */
    void GetInfs(CLstMgd<CMdlInf>& infs) const;

    /** Tells every view that a drawable has changed (CDsp::OnMdlUpdated). CMdl::ModelChanged() calls it. */
    void MdlUpdated(CMdl* mdl, int what);

    /** Draws every view that needs it. */
    void OnPoll(double t) override;

private:
    CLstPtr<CMdl*> m_mdls;
    CLstPtr<CDsp*> m_dsps;
};
