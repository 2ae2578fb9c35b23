// The six presets: saving the controls into the profile file and bringing them back.
#pragma once

/// Writes the positions of all controls into the preset that is selected. Nothing happens with "No Preset",
/// and a file that cannot be written stays as it was.
void SavePreset();

/// Assigns the stored values of preset `PresetIndex` (0 to 6) to the controls, whose events do the rest. What
/// the stored line lacks stays as it is.
void LoadPreset(int PresetIndex);

/// Makes `Index` the selected preset and loads it; 0, "No Preset", also starts the way of all bands back to
/// 0.
void SelectPreset(int Index);
