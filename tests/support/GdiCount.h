#pragma once

namespace vant::test
{

/** @return The GDI objects that this process has at the moment. */
int GdiObjectCount();

/** @return The kernel handles that this process has open at the moment; -1 if they cannot be counted. */
int KernelHandleCount();

} // namespace vant::test
