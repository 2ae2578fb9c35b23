// What the leak detector is not to tell; to be included by one file of a program.
#pragma once

/// fontconfig 2.17 loses some rules of its configuration files while it reads them.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n";
}
