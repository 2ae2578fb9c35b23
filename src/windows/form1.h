// The main window: its controls, what they do, and what it shows.
#pragma once

#include "forms/form.h"
#include "tools/dos_outputs.h"

/// Handlers have the name of their control and event; the index is that of the member in its array.
class MainWindow : public forms::Form {
 public:
  MainWindow();

  forms::ControlArray<forms::PictureBox> Picture1{*this, "Picture1"};
  forms::PictureBox& Picture4 = control<forms::PictureBox>("Picture4");
  forms::ControlArray<forms::Slider> Slider1{*this, "Slider1"};
  forms::Slider& Slider2 = control<forms::Slider>("Slider2");
  forms::Slider& Slider3 = control<forms::Slider>("Slider3");
  forms::ControlArray<forms::Label> Label1{*this, "Label1"};
  forms::ControlArray<forms::Label> Label2{*this, "Label2"};
  forms::ControlArray<forms::Label> Label4{*this, "Label4"};
  forms::Label& Label6 = control<forms::Label>("Label6");
  forms::ControlArray<forms::Label> Label7{*this, "Label7"};
  forms::ControlArray<forms::Label> Label8{*this, "Label8"};
  forms::ControlArray<forms::Label> Label9{*this, "Label9"};
  forms::Line& Line1 = control<forms::Line>("Line1");
  forms::ControlArray<forms::Line> Line4{*this, "Line4"};
  forms::Line& Line10 = control<forms::Line>("Line10");
  forms::TextBox& Text1 = control<forms::TextBox>("Text1");
  forms::ControlArray<forms::CommandButton> Command1{*this, "Command1"};
  forms::ControlArray<forms::OptionButton> Option1{*this, "Option1"};
  forms::ControlArray<forms::OptionButton> Option2{*this, "Option2"};
  forms::ControlArray<forms::OptionButton> Option3{*this, "Option3"};
  forms::CheckBox& Check1 = control<forms::CheckBox>("Check1");
  forms::Timer& Timer3 = control<forms::Timer>("Timer3");
  forms::CommonDialog& CDialog = control<forms::CommonDialog>("CDialog");

  /// The runner of the probe or of the preview. Its handler gets the first piece alone: after that a preview
  /// serves no event.
  RunnerVariable objDOS;

  /// Makes the members of the band arrays from the second on, and gives all 32 bands their places and
  /// captions.
  void BuildMainWindow();

  void Form_Load();
  void Form_QueryUnload();
  void Form_Unload();
  void Form_Terminate();
  void Form_Resize();
  void Form_MouseMove();
  void Command1_Click(int Index);
  void Slider1_MouseMove(int Index);
  void Slider1_Scroll(int Index);
  void Slider1_Change(int Index);
  void Slider2_MouseMove();
  void Slider2_Scroll();
  void Slider2_change();
  void Slider3_Scroll();
  void Slider3_Change();
  void Check1_Click();
  void Option1_Click(int Index);
  void Option2_Click(int Index);
  void Option3_Click(int Index);
  void Option3_MouseMove();
  void Label4_MouseMove(int Index);
  void Label4_MouseUp(int Index);
  void Picture1_MouseMove();
  void Picture4_MouseMove();
  void Text1_MouseMove();
  void Timer3_Timer();
  void objDOS_ReceiveOutputs(std::string& CommandOutputs);

  /// Shows band `Index` in the status strip and in its bar.
  void ShowSelectedBand(int Index);
  /// Paints the caption of band `Index` red and all others black.
  void HighlightBandLabel(int Index);
  /// Takes `Value`, -10 to 10, over as the gain and shows it in percent.
  void ShowGain(int Value);
  /// Brings the bar under the gain slider to its value, and in its colour.
  void ShowGainBar();
  /// Takes `Value`, 1 to 254, over as the bandwidth and shows it.
  void ShowBandWidth(int Value);
  /// Paints the captions around the gain slider black.
  void ResetGainLabels();
  /// Puts all bands to 0 in the range `Index`: 0 is +/- 12 dB, 1 is +/- 6 dB.
  void ApplyRange(int Index);
  /// Shows the range `Index` in the status strip.
  void ShowRange(int Index);
  /// Takes `Index` over as the choice of the low cut, 0 is on and 1 is off, and shows it in the status strip.
  void ShowLowCut(int Index);
  /// Shows the bars of all bands where they are switched on, and hides them where not.
  void ShowIndicatorBars();
  /// Shows in the status strip whether the bars are switched on.
  void ShowIndicatorState();
  /// Ends the state in which the clipboard button says that it has copied.
  void EndClipboardNotice();
  /// Enables or disables the buttons that wait for a source.
  void EnableSourceButtons(bool Enabled);

  /// Measures the source with `ffprobe`.
  void GetSourceDuration();
  /// Plays the source with `ffplay` through the settings of this moment; returns when the player has ended.
  void AudioPreview();

 private:
  void PlaceSliders();
  void PlaceBandLabels();
  void PlaceScale();
  void SetBandCaptions();
  void PreviewSound();
};

extern forms::DefaultInstance<MainWindow> Form1;
extern const forms::FormData kForm1Data;
