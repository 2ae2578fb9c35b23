// The window that shows the filter chain as text and gives it away.
#pragma once

#include "forms/form.h"

class EqStringWindow : public forms::Form {
 public:
  EqStringWindow();

  forms::TextBox& Text1 = control<forms::TextBox>("Text1");
  forms::ControlArray<forms::CommandButton> Command1{*this, "Command1"};
  forms::Timer& Timer1 = control<forms::Timer>("Timer1");

  void Form_Load();
  void Form_Resize();
  void Command1_Click(int Index);
  void Text1_Change();
  void Timer1_Timer();

  /// Breaks the text into one filter a line and serves the program's events meanwhile.
  void ListIndividualStrings();

 private:
  void SaveText();
  void CopyText();
};

extern forms::DefaultInstance<EqStringWindow> Form3;
extern const forms::FormData kForm3Data;
