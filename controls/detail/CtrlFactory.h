#pragma once

#include <memory>

class CECtrl;

namespace vant::detail
{

/** A new control of the class with a code (CECtrl::TypeCode); null for a code without a class. */
std::unique_ptr<CECtrl> MakeCtrl(int typeCode);

} // namespace vant::detail
