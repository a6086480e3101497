#pragma once

#include <memory>

class CECtrl;

namespace vant::detail
{

/** The control that a reference of CECtrl::Watch() is to; null once its destruction has begun. */
inline CECtrl* CtrlOf(const std::weak_ptr<CECtrl*>& watched) noexcept
{
    const std::shared_ptr<CECtrl*> held = watched.lock();
    return held ? *held : nullptr;
}

} // namespace vant::detail
