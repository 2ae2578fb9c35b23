#include "core/eq_string.h"

#include <charconv>
#include <string_view>

#include "mainwindow/form1.h"
#include "stringwindow/form3.h"

namespace {

std::string_view decimal(int value, char (&buffer)[12]) {
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  return {buffer, static_cast<std::size_t>(end - buffer)};
}

}  // namespace

void setBandGainText(std::string& text, int value) {
  char buffer[12];
  const std::string_view digits = decimal(value, buffer);
  if (digits.front() == '-') {
    text = digits.substr(1);
  } else {
    text = '-';
    text += digits;
  }
}

void composeChain(std::string& chain, const AppStateRecord& state) {
  char buffer[12];
  const std::string_view width = decimal(state.BandWidth, buffer);
  chain.clear();
  if (state.LowCutOn) chain += kLowCutFilter;
  for (int i = state.LowCutOn ? kFirstBandAboveLowCut : 0; i < kBands; ++i) {
    const auto band = static_cast<std::size_t>(i);
    if (!chain.empty()) chain += ',';
    chain += BandTable[band].filterHead;
    chain += width;
    chain += ":g=";
    chain += state.BandGainText[band];
  }
}

void ComposeEqString(int Index) {
  Form1->EndClipboardNotice();
  if (Index < 0 || Index >= kBands) return;
  setBandGainText(AppState.BandGainText[static_cast<std::size_t>(Index)], Form1->Slider1(Index).value());
  AppState.EqString.clear();
  Form3->Text1.setText("");
  composeChain(AppState.EqString, AppState);
  Form3->Text1.setText(AppState.EqString);
}
