#pragma once

#include "demo/bridge/CPanelWnd.h"

#include <functional>
#include <optional>

namespace demo
{

/** A panel that holds another platform window, its guest, under its caption. Its frame lights up while the
 * keyboard belongs to the guest. */
class CDockWnd : public CPanelWnd
{
    DECLARE_DYNAMIC(CDockWnd)

public:
    /** What stands at the right of the caption. */
    struct Caption {
        std::wstring note;
        std::optional<Lamp> lamp;
    };
    using Tell = std::function<Caption()>;

    /** @param guest  not created yet; must outlive the dock's window */
    CDockWnd(const wchar_t* title, CVantWnd& guest, Session& session, Looks& looks, Tell tell);

    /** Makes the dock's window and the guest's in it. */
    bool Open(CWnd& parent);

    CVantWnd& Guest() noexcept { return m_guest; }

    /** Places the guest. */
    void LayoutWnd(int quiet) override;

private:
    void PaintFrame(CPainter& painter, const Box& box) const;

    std::wstring m_title;
    CVantWnd& m_guest;
    Tell m_tell;
};

} // namespace demo
