// A thread that does not wait for the one that makes it.
#pragma once

#include <functional>
#include <thread>

namespace platform {

/// Runs `work` in a thread on a processor other than that of the calling thread, as far as there is one that
/// the process may use. Left to the kernel, a new thread can wait behind its maker for milliseconds although
/// others are idle, most of all in virtual machines, some of which pack threads on few processors.
std::thread runElsewhere(std::function<void()> work);

}  // namespace platform
