#include <gtest/gtest.h>

#include "core/eq_string.h"
#include "support/session.h"

namespace {

AppStateRecord flat() {
  AppStateRecord state;
  state.BandWidth = 1;
  state.BandGainText.fill("-0");
  return state;
}

TEST(Chain, TurnsTheSignOfAPositionRound) {
  const std::pair<int, const char*> rows[] = {{-12, "12"}, {-5, "5"}, {0, "-0"}, {5, "-5"}, {12, "-12"}};
  for (const auto& [value, expected] : rows) {
    std::string text;
    setBandGainText(text, value);
    EXPECT_EQ(text, expected) << "position " << value;
  }
}

TEST(Chain, HasAllBandsOrTheLowCutInPlaceOfTheLowestThree) {
  AppStateRecord state = flat();
  std::string chain;
  composeChain(chain, state);
  EXPECT_EQ(chain.size(), 1353u);
  EXPECT_TRUE(
      chain.starts_with("equalizer=f=19:width_type=o:width=1:g=-0,equalizer=f=20:width_type=o:width=1:g=-0,"
                        "equalizer=f=25:width_type=o:width=1:g=-0,equalizer=f=31.5:"))
      << chain;
  EXPECT_TRUE(chain.ends_with(",equalizer=f=20000:width_type=o:width=1:g=-0")) << chain;

  state.LowCutOn = true;
  state.BandGainText[18] = "5";
  composeChain(chain, state);
  EXPECT_EQ(chain.size(), 1270u);
  EXPECT_TRUE(chain.starts_with("equalizer=f=1:width_type=o:width=25:g=-5,equalizer=f=31.5:")) << chain;
  EXPECT_NE(chain.find(",equalizer=f=1000:width_type=o:width=1:g=5,equalizer=f=1250:"), std::string::npos)
      << chain;

  state = flat();
  state.BandWidth = 254;
  state.BandGainText.fill("-12");
  composeChain(chain, state);
  EXPECT_EQ(chain.size(), 1449u) << "the longest chain";
}

using ChainInWindow = support::Session;

TEST_F(ChainInWindow, IsEmptyUntilTheFirstMoveWhichLeavesOtherBandsAsTheyWere) {
  EXPECT_EQ(AppState.EqString, "");
  EXPECT_FALSE(Form3.isLoaded());
  Form1->Slider1(5).setValue(3);
  EXPECT_TRUE(AppState.EqString.starts_with(
      "equalizer=f=19:width_type=o:width=1:g=0,equalizer=f=20:width_type=o:width=1:g=0,"
      "equalizer=f=25:width_type=o:width=1:g=0,equalizer=f=31.5:width_type=o:width=1:g=0,"
      "equalizer=f=33:width_type=o:width=1:g=0,equalizer=f=40:width_type=o:width=1:g=-3,"
      "equalizer=f=50:width_type=o:width=1:g=0,"))
      << AppState.EqString;
  EXPECT_EQ(Form3->Text1.text(), AppState.EqString);
  EXPECT_FALSE(Form3->Text1.widget()->isVisible()) << "the string window is loaded hidden";
}

TEST_F(ChainInWindow, TakesOverALowCutAtTheNextCompositionOnly) {
  Form1->Slider1(1).setValue(4);
  const std::string before = AppState.EqString;
  click(Form1->Option3(0));
  EXPECT_EQ(AppState.EqString, before);
  Form1->Slider1(2).setValue(-7);
  EXPECT_TRUE(AppState.EqString.starts_with("equalizer=f=1:width_type=o:width=25:g=-5,equalizer=f=31.5:"))
      << AppState.EqString;
  Form1->Slider3.setValue(254);
  EXPECT_TRUE(
      AppState.EqString.starts_with("equalizer=f=1:width_type=o:width=25:g=-5,"
                                    "equalizer=f=31.5:width_type=o:width=254:g=-0,"))
      << AppState.EqString;
  click(Form1->Option3(1));
  ComposeEqString(31);
  EXPECT_NE(AppState.EqString.find("f=20:width_type=o:width=254:g=-4,"), std::string::npos)
      << AppState.EqString;
  EXPECT_NE(AppState.EqString.find("f=25:width_type=o:width=254:g=7,"), std::string::npos)
      << AppState.EqString;

  const std::string last = AppState.EqString;
  for (const int nowhere : {-1, 32}) ComposeEqString(nowhere);
  EXPECT_EQ(AppState.EqString, last);
}

}  // namespace
