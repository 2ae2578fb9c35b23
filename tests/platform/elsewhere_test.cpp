#include "platform/elsewhere.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <algorithm>
#include <future>

namespace {

int processors() {
  cpu_set_t set;
  return sched_getaffinity(0, sizeof set, &set) == 0 ? CPU_COUNT(&set) : -1;
}

TEST(Elsewhere, LeavesTheProcessorOfTheCallerAloneWhereThereAreOthers) {
  std::promise<void> begun;
  int used = 0;
  std::thread thread = platform::runElsewhere([&] {
    begun.get_future().wait();
    used = processors();
  });
  begun.set_value();
  thread.join();
  EXPECT_EQ(used, std::max(processors() - 1, 1));
}

}  // namespace
