// The way of a band from its slider into the chain and the string window.
#pragma once

/// Takes over the position of band `Index` (0 to 31), rebuilds `EqString` whole and shows it in the string
/// window. Another index composes nothing.
void ComposeEqString(int Index);
