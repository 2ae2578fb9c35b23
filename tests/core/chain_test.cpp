#include <gtest/gtest.h>

#include "support/session.h"

namespace {

using Chain = support::Session;

TEST_F(Chain, HasAllBandsOrFromTheNextMoveOnTheLowCutInPlaceOfTheLowestThree) {
  const std::string& chain = AppState.EqString;
  for (const auto& [position, gain] : {std::pair{3, "-3"}, {-12, "12"}, {0, "-0"}}) {
    Form1->Slider1(2).setValue(position);
    const std::string moved = std::string(":g=0,equalizer=f=25:width_type=o:width=1:g=") + gain + ",";
    EXPECT_NE(chain.find(moved), std::string::npos) << chain;
  }
  EXPECT_TRUE(chain.starts_with("equalizer=f=19:width_type=o:width=1:g=0,equalizer=f=20:")) << chain;
  EXPECT_EQ(chain.size(), 1322U) << chain;
  click(Form1->Option3(0));
  EXPECT_TRUE(chain.starts_with("equalizer=f=19:")) << chain;
  Form1->Slider1(31).setValue(5);
  EXPECT_TRUE(chain.starts_with("equalizer=f=1:width_type=o:width=25:g=-5,equalizer=f=31.5:")) << chain;
  EXPECT_TRUE(chain.ends_with(":g=0,equalizer=f=20000:width_type=o:width=1:g=-5")) << chain;
  EXPECT_EQ(chain.size(), 1243U) << chain;
}

}  // namespace
