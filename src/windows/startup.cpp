#include "windows/startup.h"

#include "core/app_state.h"
#include "forms/application.h"
#include "platform/program_folder.h"
#include "windows/form1.h"
#include "windows/form2.h"
#include "windows/form3.h"

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
  Form1->EnableSourceButtons(false);
  Form1->show();
}

void CleanUnload() {
  Form3.unload();
  Form2.unload();
  Form1.unload();
  forms::Application::end();
}
