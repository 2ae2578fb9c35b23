#include <cmath>
#include <complex>
#include <csignal>
#include <cstring>
#include <sstream>

#include "support/limit.h"
#include "support/session.h"

namespace {

constexpr auto kMarker = "<%TEMPOutPutData%>\r\n";

class Render : public support::Session {
 protected:
  Render() : source(support::writeText(folder, "source file.wav", "sound")) {
    support::writeScript(folder, "ffprobe", "echo ' Duration: 00:03:21.00'");
    openSource(source);
  }

  void fakeRender(const std::string& script) { support::writeScript(folder, "ffmpeg", script); }
  void keepArguments() { fakeRender("printf '%s|' \"$@\" > \"$0.arguments\""); }
  std::string arguments() { return support::readFile(folder.file("ffmpeg.arguments")); }

  static bool finished() {
    return support::waitFor([] { return Form2.isLoaded() && !Form2->Timer1.enabled(); });
  }

  /// Renders into `name` and waits for the end of the run.
  void render(const std::string& name) {
    Form2.unload();
    saveAs(folder.file(name));
    ASSERT_TRUE(finished()) << name;
  }

  /// Renders with a tool that writes "data" and goes on until `hand` has done its work in between; true when
  /// the tool has ended.
  bool renderMeanwhile(const std::string& name, const std::function<void()>& hand) {
    fakeRender(
        "for last; do :; done; printf data > \"$last\"; echo $$ > \"$0.pid\"; echo run >> \"$0.runs\"\n"
        "until [ -e \"$0.go\" ]; do echo time=00:00:09; sleep 0.02; done; echo > \"$0.done\"");
    QTimer person(qApp);
    QObject::connect(&person, &QTimer::timeout, [&] {
      if (forms::Application::holdsBack() || !std::filesystem::exists(folder.file("ffmpeg.runs"))) return;
      person.stop();
      hand();
      support::writeText(folder, "ffmpeg.go", "");
    });
    person.start(1);
    saveAs(folder.file(name));
    return support::waitFor([this] {
      return std::filesystem::exists(folder.file("ffmpeg.done")) ||
             (Form2.isLoaded() && !Form2->Timer1.enabled());
    });
  }

  std::string source;
};

TEST_F(Render, TellsTheProgressOneUpdateLateAndReadsEachPieceByItself) {
  fakeRender("exit");
  saveAs(folder.file("out.wav"));
  EXPECT_EQ(support::readFile(folder.file("out.wav")), kMarker);
  EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 00% Completed");
  EXPECT_EQ(Form2->PBar.max(), 201);
  const std::tuple<const char*, double, std::string> rows[] = {
      {"size= 1kB time=00:01:00.00 bitrate", 60, "00.00"},
      {"TIME=00:02:00", 120, "29.85"},
      {"time=00:0", 120, "59.70"},
      {"3:00.00 bitrate", 120, "59.70"},
      {"time=N/A bitrate=N/A", 120, "59.70"},
      {"time=00:03:00.00 \377\376", 180, "59.70"},
      {"time=", 180, "59.70"},
      {"time=-00:00:01.00", 180, "89.55"},
      {"time=00:09:00.00", 180, "89.55"},
      {"x time=00:03:21", 201, "89.55"},
      {"time=00", 201, "100.00"}};
  for (const auto& [piece, value, percent] : rows) {
    Form2->objDOS_ReceiveOutputs(piece);
    EXPECT_EQ(Form2->PBar.value(), value) << piece;
    EXPECT_EQ(Form2->Label1(2).caption(), "Progress: " + percent + "% Completed") << piece;
  }
  EXPECT_EQ(Form1->caption(), "No Caption Set");
  AppState.WindowMinimised = true;
  Form2->objDOS_ReceiveOutputs("time=00");
  EXPECT_EQ(Form1->caption(), "Velm:  100.00%");
}

TEST_F(Render, EndsInTheSameWayWhateverTheToolDoes) {
  for (const char* script : {"exit 1", "head -c 10000000 /dev/zero", "printf 'time=00:00:01'; kill -9 $$",
                             "printf '\\377\\376time\\000'", "not executable", ""}) {
    fakeRender(script);
    if (script == std::string("not executable"))
      std::filesystem::permissions(folder.file("ffmpeg"), std::filesystem::perms(0644));
    if (*script == '\0') std::filesystem::remove(folder.file("ffmpeg"));
    render("out.wav");
    EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 100% Completed") << script;
    EXPECT_EQ(Form2->PBar.value(), 0) << script;
    EXPECT_EQ(support::readFile(folder.file("out.wav")), kMarker) << script;
  }
  AppState.SourceSeconds = "";
  keepArguments();
  render("no such folder/out.wav");
  EXPECT_EQ(Form2->Label1(1).caption(), "");
  EXPECT_EQ(Form2->PBar.max(), 100);
  EXPECT_EQ(arguments(), "-y|-i|" + source + "|-af|volume=1,|");
}

TEST_F(Render, PassesEveryNameInOnePiece) {
  keepArguments();
  Form1->Slider1(18).setValue(-6);
  std::istringstream names(
      "a \"q\" it's & %d $HOME ;.wav|line\nbreak\ttab\\back?#:.wav|-y|-i x|\u00e9e\u0301.wav| both ends "
      "|'\"\" \"'|" +
      std::string(251, 'n') + ".wav");
  for (std::string name; std::getline(names, name, '|');) {
    const std::string path = support::writeText(folder, name, "sound");
    openSource(path);
    const std::string target = "to" + name.substr(0, 200);
    render(target);
    EXPECT_EQ(arguments(),
              "-y|-i|" + path + "|-af|volume=1," + AppState.EqString + "|" + folder.file(target) + "|");
  }
}

TEST_F(Render, NeverEmptiesASourceOrAFileThatIsBeingWritten) {
  namespace fs = std::filesystem;
  fs::create_symlink(source, folder.file("link.wav"));
  fs::create_hard_link(source, folder.file("hard.wav"));
  fs::create_directory(folder.file("sub"));
  keepArguments();
  for (const char* name : {"source file.wav", "link.wav", "hard.wav", "sub/../source file.wav"}) {
    render(name);
    EXPECT_EQ(support::readFile(source), "sound") << name;
    EXPECT_EQ(AppState.SavePathShort, AppState.SourcePathShort) << name;
  }
  Form2.unload();
  EXPECT_TRUE(renderMeanwhile("out.wav", [&] {
    saveAs(folder.file("out.wav"));
    EXPECT_EQ(support::readFile(folder.file("out.wav")), "data") << "the target of the running render";
    openSource(support::writeText(folder, "other.wav", "sound"));
    saveAs(folder.file("hard.wav"));
    EXPECT_EQ(support::readFile(source), "sound") << "the source of the running render";
    EXPECT_EQ(AppState.SavePathShort, AppState.SourcePathShort);
  }));
}

TEST_F(Render, AFinishedWindowStartsNothingAndAClosedOneComesBackFresh) {
  fakeRender("echo run >> \"$0.runs\"");
  render("one.wav");
  saveAs(folder.file("two.wav"));
  EXPECT_NE(Form2->Label1(1).caption().find("two.wav"), std::string::npos);
  EXPECT_FALSE(Form2->Timer1.enabled()) << "a second render is on its way";
  click(Form2->Command1);
  saveAs("");
  EXPECT_FALSE(Form2.isLoaded()) << "a Cancel opens nothing";
  saveAs(folder.file("three.wav"));
  EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 00% Completed");
  ASSERT_TRUE(finished());
  EXPECT_EQ(support::readFile(folder.file("ffmpeg.runs")), "run\nrun\n");
}

TEST_F(Render, AWindowClosedInTheMiddleIsNotMissedAndDoesNotComeBack) {
  EXPECT_TRUE(renderMeanwhile("out.wav", [] {
    click(Form2->Command1);
    Form1->setCaption("untouched");
  }));
  forms::Application::doEvents();
  EXPECT_FALSE(Form2.isLoaded());
  EXPECT_EQ(Form1->caption(), "untouched");
}

TEST_F(Render, WhateverIsTakenAwayMeanwhileItEndsAndTheWindowWorksOn) {
  for (const char* fault :
       {"kill -KILL $(cat ffmpeg.pid)", "kill -STOP $(cat ffmpeg.pid); kill -CONT $(cat ffmpeg.pid)",
        "rm ffmpeg; echo > ffmpeg", "rm 'source file.wav'", "rm -r sub"}) {
    std::filesystem::create_directory(folder.file("sub"));
    EXPECT_TRUE(renderMeanwhile("sub/out.wav", [&] {
      support::shell("cd '" + folder.path() + "'; " + fault);
    })) << fault;
    ASSERT_TRUE(finished()) << fault;
    EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 100% Completed") << fault;
    Form1->Slider1(3).setValue(Form1->Slider1(3).value() + 1);
    EXPECT_EQ(AppState.BandGainText[3], std::to_string(-Form1->Slider1(3).value())) << fault;
    Form2.unload();
    support::shell("cd '" + folder.path() + "'; rm -rf ffmpeg*");
  }
}

TEST_F(Render, TheWindowWorksOnWhileItRenders) {
  support::writeScript(folder, "ffplay", "echo played > \"$0.done\"");
  EXPECT_TRUE(renderMeanwhile("one.wav", [&] {
    Form1->Slider1(0).setValue(-1);
    click(Form1->Command1(2));
    saveAs(folder.file("two.wav"));
  }));
  ASSERT_TRUE(finished());
  EXPECT_TRUE(AppState.EqString.ends_with(":g=-0")) << "the preview has composed the chain";
  EXPECT_EQ(support::readFile(folder.file("ffplay.done")), "played\n");
  EXPECT_EQ(support::readFile(folder.file("two.wav")), kMarker);
  EXPECT_NE(Form2->Label1(1).caption().find("two.wav"), std::string::npos);
  EXPECT_EQ(support::readFile(folder.file("ffmpeg.runs")), "run\n") << "one render";
}

/// The real tool.
class RealRender : public Render {
 protected:
  RealRender() { std::filesystem::create_symlink("/usr/bin/ffmpeg", folder.file("ffmpeg")); }

  void makeSource(const std::string& arguments) {
    source = folder.file("real source.wav");
    support::shell("ffmpeg -v error -y -f lavfi -i " + arguments + " '" + source + "'");
    openSource(source);
  }
};

TEST_F(RealRender, WritesTheBytesThatTheCommandWritesByHand) {
  makeSource("anoisesrc=d=4:a=0.3,aformat=channel_layouts=stereo");
  for (int i = 0; i < 32; ++i) Form1->Slider1(i).setValue(i % 25 - 12);
  Form1->Slider2.setValue(3);
  render("window.wav");
  support::shell("ffmpeg -v quiet -y -i '" + source + "' -af 'volume=0.6," + AppState.EqString + "' '" +
                 folder.file("hand.wav") + "'");
  EXPECT_GT(support::readFile(folder.file("hand.wav")).size(), 700000U);
  EXPECT_TRUE(support::readFile(folder.file("window.wav")) == support::readFile(folder.file("hand.wav")));
  const std::string before = support::readFile(source);
  std::filesystem::create_symlink(source, folder.file("link.wav"));
  render("link.wav");
  EXPECT_TRUE(support::readFile(source) == before) << "the real tool spoilt its source through a link";
}

TEST_F(RealRender, AFullDiskEndsItAndLeavesTheSource) {
  makeSource("anoisesrc=d=4");
  Form1->Slider1(2).setValue(1);
  const std::string before = support::readFile(source);
  signal(SIGXFSZ, SIG_IGN);
  {
    const support::Limit full(RLIMIT_FSIZE, 100000);
    render("out.wav");
  }
  EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 100% Completed");
  EXPECT_EQ(support::readFile(folder.file("out.wav")).size(), 100000U);
  EXPECT_TRUE(support::readFile(source) == before);
}

/// Response of a peaking filter of 6 dB at 1000 Hz, one octave wide, at a rate of 48 kHz, as the audio EQ
/// cookbook (R. Bristow-Johnson) gives it.
std::complex<double> peaking(std::complex<double> z) {
  const double w0 = 2 * M_PI * 1000 / 48000, a = std::pow(10, 6 / 40.0);
  const double alpha = std::sin(w0) * std::sinh(std::log(2.0) / 2 * w0 / std::sin(w0));
  const auto middle = -2 * std::cos(w0) * z;
  return (1 + alpha * a + middle + (1 - alpha * a) * z * z) /
         (1 + alpha / a + middle + (1 - alpha / a) * z * z);
}

TEST_F(RealRender, EqualizesAsAPeakingFilterOfOneOctaveDoes) {
  makeSource("\"aevalsrc=if(eq(n\\,0)\\,16000/32768\\,0):s=48000:d=1\" -c:a pcm_s16le");
  Form1->Slider1(18).setValue(-6);
  render("impulse.wav");
  const std::string wav = support::readFile(folder.file("impulse.wav"));
  ASSERT_GT(wav.size(), 90000U);
  for (int i = 0; i < 20; ++i) {
    const double frequency = 250 * std::pow(2, i / 4.75);
    const auto z = std::polar(1.0, -2 * M_PI * frequency / 48000);
    std::complex<double> sum = 0, power = 1;
    for (std::size_t at = wav.find("data") + 8; at + 1 < wav.size(); at += 2, power *= z) {
      std::int16_t sample = 0;
      std::memcpy(&sample, wav.data() + at, 2);
      sum += power * (sample / 16000.0);
    }
    EXPECT_NEAR(20 * std::log10(std::abs(sum)), 20 * std::log10(std::abs(peaking(z))), 0.1)
        << frequency << " Hz";
  }
}

}  // namespace
