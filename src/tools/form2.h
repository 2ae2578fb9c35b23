// The progress window of a render.
#pragma once

#include "forms/controls.h"
#include "forms/default_instance.h"
#include "tools/dos_outputs.h"

/// One load starts one render. A window that is closed meanwhile leaves the render running.
class RenderWindow : public forms::Form {
 public:
  RenderWindow();

  forms::ControlArray<forms::Label> Label1{*this, "Label1"};
  forms::CommandButton& Command1 = control<forms::CommandButton>("Command1");
  forms::ProgressBar& PBar = control<forms::ProgressBar>("PBar");
  forms::Timer& Timer1 = control<forms::Timer>("Timer1");

  /// The runner of the render.
  RunnerVariable objDOS;

  void Form_Load();
  void Command1_Click();
  void Timer1_Timer();
  void objDOS_ReceiveOutputs(const std::string& CommandOutputs);

 private:
  /// Keeps the render out of its source and out of the file that a render of before still writes.
  void ClearTarget();
  void DosCommand();
};

extern forms::DefaultInstance<RenderWindow> Form2;

/// True where a render that is running reads this file, or writes it, by whatever name.
bool isReadByRender(const std::string& path);
bool isWrittenByRender(const std::string& path);
