#pragma once

class CWinThread;

namespace vafx::detail
{

/** Makes @p thread what AfxGetThread answers in the calling thread; null ends that. The application object
 * does it for the program's first thread. */
void SetCurrentThread(CWinThread* thread) noexcept;

} // namespace vafx::detail
