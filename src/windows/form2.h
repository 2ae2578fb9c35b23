// The progress window of a render.
#pragma once

#include "forms/form.h"
#include "tools/dos_outputs.h"

/// One load starts one render, a second later, to the target that was named last. A window that is closed
/// before that starts none; one that is closed later leaves it running.
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
  void DosCommand();
};

extern forms::DefaultInstance<RenderWindow> Form2;
extern const forms::FormData kForm2Data;
