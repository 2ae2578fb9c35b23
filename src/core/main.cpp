#include "core/main.h"

#include "core/app_state.h"
#include "forms/application.h"
#include "mainwindow/form1.h"
#include "platform/program_folder.h"
#include "stringwindow/form3.h"
#include "tools/form2.h"

void Main() {
  Form1.load();
  AppState.PresetFilePath = platform::programFolder() + "\\AppPresets.ini";
  AppState.PresetPass = 0;
  AppState.AudioGain = 0;
  AppState.RangeIndex = 0;
  AppState.LowCutOn = false;
  Form1->BuildMainWindow();
  SetBandDefaults();
  Form1->Label6.setVisible(false);
  Form1->Timer3.setEnabled(false);
  Form1->Slider2.setValue(5);
  Form1->setCaption("Tessavane Graphic Equalizer");
  for (const int waitsForSource : {2, 3, 7, 8}) Form1->Command1(waitsForSource).setEnabled(false);
  Form1->show();
}

void CleanUnload() {
  Form3.unload();
  Form2.unload();
  Form1.unload();
  forms::Application::end();
}
