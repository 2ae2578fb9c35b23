#include "windows/compose_eq_string.h"

#include "core/app_state.h"
#include "core/eq_string.h"
#include "windows/form1.h"
#include "windows/form3.h"

void ComposeEqString(int Index) {
  Form1->EndClipboardNotice();
  if (Index < 0 || Index >= kBands) return;
  AppState.BandGainText[static_cast<std::size_t>(Index)] = bandGainText(Form1->Slider1(Index).value());
  AppState.EqString.clear();
  Form3->Text1.setText("");
  composeChain(AppState);
  Form3->Text1.setText(AppState.EqString);
}
