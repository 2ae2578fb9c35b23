// A thread that does not wait for the one that makes it.
#pragma once

#include <functional>
#include <thread>

namespace platform {

/// Runs `work` in a thread on a processor other than that of the calling thread, as far as there is one that
/// the process may use. The kernel can let a new thread wait behind its maker although others are idle: it
/// finds those only among processors with a common cache, and virtual machines have none.
std::thread runElsewhere(std::function<void()> work);

}  // namespace platform
