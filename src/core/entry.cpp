// The process entry. The command line is not read.

#include "core/main.h"
#include "forms/application.h"
#include "platform/child_process.h"

int main() {
  const forms::Application application;
  platform::setWaitHook(&forms::Application::waitPainting);
  Main();
  return forms::Application::run();
}
