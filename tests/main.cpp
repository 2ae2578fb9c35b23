#include <gtest/gtest.h>

#include <cstdlib>

#include "forms/application.h"
#include "platform/child_process.h"
#include "support/leaks.h"

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  testing::InitGoogleTest(&argc, argv);
  const forms::Application application;
  platform::setWaitHook(&forms::Application::waitPainting);
  return RUN_ALL_TESTS();
}
