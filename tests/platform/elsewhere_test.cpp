#include "platform/elsewhere.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <algorithm>

namespace {

int processors() {
  cpu_set_t set;
  return sched_getaffinity(0, sizeof set, &set) == 0 ? CPU_COUNT(&set) : -1;
}

TEST(Elsewhere, LeavesTheProcessorOfTheCallerAloneWhereThereAreOthers) {
  int used = 0;
  platform::runElsewhere([&] { used = processors(); }).join();
  EXPECT_EQ(used, std::max(processors() - 1, 1));
}

}  // namespace
