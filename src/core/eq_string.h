// The filter chain, and the rules of its text.
#pragma once

#include <string>

#include "core/app_state.h"

/// Text of a band's gain in dB for a slider position: the position with its sign turned round, "-0" for 0.
void setBandGainText(std::string& text, int value);

/// Writes the chain of all bands into `chain`: 32 filters, or 30 with low cut on, joined by commas. Takes no
/// memory that `chain` does not have already, once it has held a chain.
void composeChain(std::string& chain, const AppStateRecord& state);

/// Takes over the position of band `Index` (0 to 31), rebuilds `EqString` whole and shows it in the string
/// window. Another index composes nothing.
void ComposeEqString(int Index);
