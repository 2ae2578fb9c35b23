#include "core/eq_string.h"

#include <array>
#include <charconv>
#include <string_view>

void composeChain(AppStateRecord& state) {
  std::array<char, 12> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), state.BandWidth).ptr;
  const std::string_view width(digits.data(), static_cast<std::size_t>(end - digits.data()));
  std::string& chain = state.EqString;
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

std::string bandGainText(int position) {
  const std::string digits = std::to_string(position);
  return position < 0 ? digits.substr(1) : '-' + digits;
}

std::string onePerLine(const std::string& chain) {
  std::string lines;
  for (const char c : chain)
    if (c == ',')
      lines += "\r\n";
    else
      lines += c;
  return lines;
}
