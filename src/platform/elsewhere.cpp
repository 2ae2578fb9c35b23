#include "platform/elsewhere.h"

#include <pthread.h>
#include <sched.h>

#include <utility>

namespace platform {

std::thread runElsewhere(std::function<void()> work) {
  std::thread thread(std::move(work));
  cpu_set_t others;
  if (sched_getaffinity(0, sizeof others, &others) == 0) {
    CPU_CLR(sched_getcpu(), &others);
    if (CPU_COUNT(&others) > 0) pthread_setaffinity_np(thread.native_handle(), sizeof others, &others);
  }
  return thread;
}

}  // namespace platform
