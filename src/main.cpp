// The process entry. The command line is not read.

#include "forms/application.h"
#include "platform/child_process.h"
#include "windows/startup.h"

int main() {
  const forms::Application application;
  platform::setWaitHook(&forms::Application::waitPainting);
  Main();
  return forms::Application::run();
}
