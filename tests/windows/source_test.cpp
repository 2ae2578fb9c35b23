#include "windows/source.h"

#include "support/limit.h"
#include "support/session.h"
#include "tools/command_lines.h"

namespace {

using Source = support::Session;

TEST_F(Source, OpensTheButtonsAndShowsThePath) {
  support::writeScript(
      folder, "ffprobe",
      "printf '%s\\n' \"$0\" \"$@\" > \"$0.arguments\"; printf '  Duration: 00:03:21.45, start'");
  const std::string path = support::writeText(folder, "my \"song\".wav", "");
  openSource("");
  EXPECT_EQ(Form1->Text1.text(), "<%InputFile%>");
  EXPECT_FALSE(Form1->Command1(3).enabled()) << "a Cancel at the very first use";
  openSource(path);
  for (const int i : {2, 3, 6, 7, 8}) EXPECT_TRUE(Form1->Command1(i).enabled()) << i;
  EXPECT_EQ(Form1->Text1.text(), GetShortPath(path));
  EXPECT_EQ(Form1->Text1.backColor(), 0xC0C0C0U);
  EXPECT_EQ(AppState.SourceSeconds, "201");
  EXPECT_EQ(support::readFile(folder.file("ffprobe.arguments")),
            folder.file("ffprobe") + "\n-hide_banner\n-stats\n-i\n" + path + "\n");

  openSource("");
  EXPECT_EQ(Form1->Text1.text(), GetShortPath(path));
  EXPECT_EQ(Form1->Text1.backColor(), forms::kButtonFace);
  openSource(folder.file("not there.wav"));
  EXPECT_EQ(AppState.SourcePathShort + Form1->Text1.text(), "");
}

TEST_F(Source, MeasuresARealSourceInWholeSecondsWhateverItsTags) {
  std::filesystem::create_symlink("/usr/bin/ffprobe", folder.file("ffprobe"));
  const std::string path = folder.file("a.flac");
  support::shell(
      "ffmpeg -v error -f lavfi -i sine=d=3.6 -metadata title='Duration: none' -metadata comment=" +
      std::string(2000, 'x') + " '" + path + "'");
  openSource(path);
  EXPECT_EQ(AppState.SourceSeconds, "3");
  openSource(support::writeText(folder, "no sound.wav", "nothing"));
  EXPECT_EQ(AppState.SourceSeconds, "3") << "a source without a duration leaves the number of the one before";
}

#ifndef TESSAVANE_SANITIZED  // The sanitizer itself needs more than any such limit.
TEST_F(Source, IsOpenedThoughTheProbePrintsMoreThanThereIsMemoryFor) {
  support::writeScript(folder, "ffprobe", "echo Duration: 00:00:07; head -c 100000000 /dev/zero");
  const std::string path = support::writeText(folder, "a.wav", "");
  openSource("");  // What the first dialog takes for good is taken before.
  // More than half of this is full when the output has doubled its room for the last time.
  const support::Limit limit(RLIMIT_AS, support::memory(false) + 110000000);
  openSource(path);
  EXPECT_EQ(Form1->Text1.text(), GetShortPath(path));
  EXPECT_EQ(AppState.SourceSeconds, "7");
}
#endif

TEST_F(Source, ASecondSourceServedInsideTheFirstProbeWins) {
  support::writeScript(folder, "ffprobe",
                       "case \"$4\" in *first*) echo Input; until [ -e \"$0.go\" ]; do sleep 0.01; done\n"
                       "echo ' Duration: 00:00:01';; *) echo > \"$0.go\"; echo ' Duration: 00:00:02';; esac");
  const std::string second = support::writeText(folder, "second.wav", "");
  QTimer person(qApp);
  QObject::connect(&person, &QTimer::timeout, [&] {
    if (forms::Application::isDeferring() || Form1->objDOS.get() == nullptr) return;
    person.stop();
    openSource(second);
  });
  person.start(0);
  openSource(support::writeText(folder, "first.wav", ""));
  EXPECT_EQ(Form1->Text1.text(), GetShortPath(second));
  EXPECT_EQ(AppState.SourceSeconds, "2");
}

TEST_F(Source, PreviewComposesAfreshAndHandsTheChainToThePlayer) {
  support::writeScript(folder, "ffplay",
                       "printf '%s\\n' \"$@\" > \"$0.arguments\"; echo ' Duration: 00:00:04'; echo more");
  const std::string path = support::writeText(folder, "a.wav", "");
  openSource(path);
  click(Form1->Option3(0));
  click(Form1->Command1(2));
  EXPECT_TRUE(AppState.EqString.starts_with("equalizer=f=1:width_type=o:width=25:g=-5,"))
      << AppState.EqString;
  EXPECT_EQ(support::readFile(folder.file("ffplay.arguments")),
            "-i\n" + path + "\n-af\nvolume=1," + AppState.EqString + "\n");
  for (const std::string& text : AppState.BandGainText) EXPECT_EQ(text, "-0");
  EXPECT_EQ(AppState.SourceSeconds, "4");
  std::filesystem::remove(folder.file("ffplay"));
  Form1->Slider1(9).setValue(-3);
  click(Form1->Command1(2));
  EXPECT_EQ(Form1->objDOS.get(), nullptr) << "after a preview without a player";
}

}  // namespace
