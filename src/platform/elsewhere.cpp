#include "platform/elsewhere.h"

#include <pthread.h>
#include <sched.h>

#include <future>
#include <utility>

namespace platform {

std::thread runElsewhere(std::function<void()> work) {
  // An ended thread must not be placed: glibc has no number for it any more but 0, which is the caller's.
  std::promise<void> placed;
  std::thread thread([work = std::move(work), ready = placed.get_future()] {
    ready.wait();
    work();
  });
  cpu_set_t others;
  if (sched_getaffinity(0, sizeof others, &others) == 0) {
    CPU_CLR(sched_getcpu(), &others);
    if (CPU_COUNT(&others) > 0) pthread_setaffinity_np(thread.native_handle(), sizeof others, &others);
  }
  placed.set_value();
  return thread;
}

}  // namespace platform
