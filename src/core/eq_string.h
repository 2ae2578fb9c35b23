// The filter chain as text: what FFmpeg reads after `-af`, and what users see, save and copy.
#pragma once

#include <string>

#include "core/app_state.h"

/// Text of a band's gain in dB for a slider position: the position with its sign turned round, "-0" for 0.
std::string bandGainText(int position);

/// Makes the `EqString` of `state` anew from its other values: 32 filters, or 30 with low cut on, joined by
/// commas. Takes no memory that the text does not have already, once it has held a chain.
void composeChain(AppStateRecord& state);

/// `chain` with one filter a line, lines parted by carriage return and line feed. No filter has a comma
/// inside.
std::string onePerLine(const std::string& chain);
