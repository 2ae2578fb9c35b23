#include "core/app_state.h"

void SetBandDefaults() {
  AppState.BandWidth = 1;
  AppState.BandGainText.fill("0");
}
