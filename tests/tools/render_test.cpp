#include <cmath>
#include <complex>
#include <cstring>
#include <vector>

#include "support/session.h"
#include "tools/tool_output.h"

namespace {

constexpr auto kMarker = "<%TEMPOutPutData%>\r\n";

class Render : public support::Session {
 protected:
  Render() : source(support::writeText(folder, "source file.wav", "sound")) {
    support::writeScript(folder, "ffprobe", "echo ' Duration: 00:03:21.00'");
    openSource(source);
  }

  void fakeRender(const std::string& script) { support::writeScript(folder, "ffmpeg", script); }

  static bool finished() {
    return support::waitFor([] { return Form2.isLoaded() && !Form2->Timer1.enabled(); });
  }

  /// Renders into `name` and waits for the end of the run.
  void render(const std::string& name) {
    Form2.unload();
    saveAs(folder.file(name));
    ASSERT_TRUE(finished()) << name;
  }

  std::string source;
};

TEST_F(Render, TellsTheProgressOneUpdateLate) {
  std::string texts;
  fakeRender(
      "for t in 00:01:00 00:02:00 00:03:00; do echo \"size= 1kB time=$t.00 bitrate\"; sleep 0.05; done");
  saveAs(folder.file("out.wav"));
  EXPECT_EQ(support::readFile(folder.file("out.wav")), kMarker);
  EXPECT_EQ(Form2->PBar.max(), 201);
  EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 00% Completed");
  EXPECT_EQ(Form1->caption(), "Tessavane Graphic Equalizer");
  struct Watch : QObject {
    std::function<void()> seen;
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) seen();
      return false;
    }
  } watch;
  watch.seen = [&] {
    const std::string now = Form2->Label1(2).caption() + " " + std::to_string(int(Form2->PBar.value())) + "|";
    if (!texts.ends_with(now)) texts += now;
  };
  Form2->Label1(2).widget()->installEventFilter(&watch);
  ASSERT_TRUE(finished());
  support::waitFor([&] { return texts.find("100%") != std::string::npos; });
  EXPECT_EQ(texts,
            "Progress: 00% Completed 0|Progress: 00.00% Completed 60|Progress: 29.85% Completed 120|"
            "Progress: 59.70% Completed 180|Progress: 100% Completed 0|");
  EXPECT_EQ(Form1->caption(), "No Caption Set");
  AppState.WindowMinimised = true;
  std::string piece = "time=00:00:09";
  Form2->PBar.setValue(60);
  Form2->objDOS_ReceiveOutputs(piece);
  EXPECT_EQ(Form1->caption(), "Velm:  29.85%");
}

TEST_F(Render, ReadsEachPieceByItself) {
  Form2->PBar.setMax(201);
  Form2->PBar.setValue(60);
  const struct {
    const char* piece;
    double value;
    const char* text;
  } rows[] = {{"", 60, "Progress: 00% Completed"},
              {"frame= 1", 60, "Progress: 00% Completed"},
              {"time=", 60, "Progress: 00% Completed"},
              {"time=00:0", 60, "Progress: 29.85% Completed"},
              {"1:00.00 bitrate", 60, "Progress: 29.85% Completed"},
              {"TIME=00:01:10.9", 70, "Progress: 29.85% Completed"},
              {"time=N/A bitrate=N/A", 70, "Progress: 34.83% Completed"},
              {"time=-00:00:01.00", 70, "Progress: 34.83% Completed"},
              {"runtime errors", 70, "Progress: 34.83% Completed"},
              {"time=00:09:00.00", 70, "Progress: 34.83% Completed"},
              {"time=00:03:21.00 \377\376", 201, "Progress: 34.83% Completed"},
              {"x time=00:03:21", 201, "Progress: 100.00% Completed"}};
  for (const auto& row : rows) {
    Form2->objDOS_ReceiveOutputs(row.piece);
    EXPECT_EQ(Form2->PBar.value(), row.value) << row.piece;
    EXPECT_EQ(Form2->Label1(2).caption(), row.text) << row.piece;
  }
}

TEST_F(Render, EndsInTheSameWayWhateverTheToolDoes) {
  const std::pair<const char*, bool> scripts[] = {{"exit 1", true},
                                                  {"head -c 10000000 /dev/zero", true},
                                                  {"printf 'time=00:00:01'; kill -9 $$", true},
                                                  {"printf '\\377\\376time\\000'", true},
                                                  {"", false}};
  for (const auto& [script, executable] : scripts) {
    fakeRender(script);
    if (!executable) std::filesystem::permissions(folder.file("ffmpeg"), std::filesystem::perms(0644));
    render("out.wav");
    EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 100% Completed") << script;
    EXPECT_EQ(Form2->PBar.value(), 0) << script;
    EXPECT_EQ(Form2->objDOS.get(), nullptr) << script;
    EXPECT_EQ(support::readFile(folder.file("out.wav")), kMarker) << script;
  }
  std::filesystem::remove(folder.file("ffmpeg"));
  render("no tool.wav");
  AppState.SourceSeconds = "";
  fakeRender("printf '%s|' \"$@\" > \"$0.arguments\"");
  render("no such folder/out.wav");
  EXPECT_EQ(Form2->Label1(1).caption(), "");
  EXPECT_EQ(Form2->PBar.max(), 100);
  EXPECT_EQ(support::readFile(folder.file("ffmpeg.arguments")), "-y|-i|" + source + "|-af|volume=1,|");
}

TEST_F(Render, PassesEveryNameInOnePiece) {
  fakeRender("printf '%s|' \"$@\" > \"$0.arguments\"");
  Form1->Slider1(18).setValue(-6);
  const std::string names[] = {"a b.wav",
                               "\"q\".wav",
                               "it's.wav",
                               "& %d $HOME ;.wav",
                               "line\nbreak.wav",
                               "-y",
                               "-i x",
                               "\u00e9.wav",
                               "e\u0301.wav",
                               std::string(251, 'n') + ".wav",
                               "?#:.wav",
                               "back\\slash.wav",
                               "tab\t.wav",
                               " both ends ",
                               "\\ffmpeg.exe",
                               "'\"\" \"'"};
  for (const std::string& name : names) {
    const std::string path = support::writeText(folder, name, "sound");
    openSource(path);
    const std::string target = "to" + name.substr(0, 200);
    render(target);
    EXPECT_EQ(support::readFile(folder.file("ffmpeg.arguments")),
              "-y|-i|" + path + "|-af|volume=1," + AppState.EqString + "|" + folder.file(target) + "|");
  }
}

TEST_F(Render, NeverEmptiesTheSourceOrAFileThatIsBeingWritten) {
  fakeRender("printf '%s|' \"$@\" > \"$0.arguments\"");
  namespace fs = std::filesystem;
  fs::create_symlink(source, folder.file("link.wav"));
  fs::create_hard_link(source, folder.file("hard.wav"));
  fs::create_directory(folder.file("sub"));
  for (const char* name : {"source file.wav", "link.wav", "hard.wav", "sub/../source file.wav"}) {
    render(name);
    EXPECT_EQ(support::readFile(source), "sound") << name;
    EXPECT_EQ(AppState.SavePathShort, AppState.SourcePathShort) << name;
  }
  Form2.unload();
  fakeRender(
      "for last; do :; done; printf data > \"$last\"; until [ -e \"$0.go\" ]; do echo time=; sleep 0.02; "
      "done");
  const std::string target = folder.file("out.wav");
  QTimer late(qApp);
  std::string during;
  QObject::connect(&late, &QTimer::timeout, [&] {
    if (forms::Application::holdsBack() || support::readFile(target) != "data") return;
    late.stop();
    saveAs(target);
    during = support::readFile(target);
    support::writeText(folder, "ffmpeg.go", "");
  });
  late.start(0);
  saveAs(target);
  ASSERT_TRUE(finished());
  EXPECT_EQ(during, "data");
}

TEST_F(Render, AFinishedWindowStartsNothingAndAClosedOneComesBackFresh) {
  fakeRender("echo run >> \"$0.runs\"");
  render("one.wav");
  saveAs(folder.file("two.wav"));
  EXPECT_NE(Form2->Label1(1).caption().find("two.wav"), std::string::npos);
  QTest::qWait(1200);
  EXPECT_EQ(support::readFile(folder.file("ffmpeg.runs")), "run\n");
  EXPECT_EQ(support::readFile(folder.file("two.wav")), kMarker);
  click(Form2->Command1);
  EXPECT_FALSE(Form2.isLoaded());
  saveAs("");
  EXPECT_FALSE(Form2.isLoaded()) << "a Cancel opens nothing";
  saveAs(folder.file("three.wav"));
  EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 00% Completed");
  ASSERT_TRUE(finished());
}

TEST_F(Render, AWindowClosedInTheMiddleIsNotMissedAndDoesNotComeBack) {
  fakeRender("for i in 1 2 3 4 5; do echo time=00:00:0$i; sleep 0.02; done; echo done > \"$0.done\"");
  saveAs(folder.file("out.wav"));
  bool closed = false;
  QTimer early(qApp);
  QObject::connect(&early, &QTimer::timeout, [&] {
    if (forms::Application::holdsBack() || Form1->caption() != "No Caption Set") return;
    early.stop();
    Form1->setCaption("untouched");
    click(Form2->Command1);
    closed = true;
  });
  early.start(1);
  ASSERT_TRUE(
      support::waitFor([&] { return closed && support::readFile(folder.file("ffmpeg.done")) == "done\n"; }));
  forms::Application::doEvents();
  EXPECT_FALSE(Form2.isLoaded());
  EXPECT_EQ(Form1->caption(), "untouched");
}

TEST_F(Render, TheWindowWorksOnWhileItRenders) {
  fakeRender("echo $2 $3 >> \"$0.runs\"; until [ -e \"$0.go\" ]; do echo time=; sleep 0.02; done");
  support::writeScript(folder, "ffplay", "echo played > \"$0.done\"");
  saveAs(folder.file("one.wav"));
  const auto before = AppState.EqString;
  QTimer hand(qApp);
  QObject::connect(&hand, &QTimer::timeout, [&] {
    if (forms::Application::holdsBack() || support::readFile(folder.file("ffmpeg.runs")).empty()) return;
    hand.stop();
    Form1->Slider1(0).setValue(-1);
    click(Form1->Command1(2));
    saveAs(folder.file("two.wav"));
    support::writeText(folder, "ffmpeg.go", "");
  });
  hand.start(0);
  ASSERT_TRUE(finished());
  EXPECT_NE(AppState.EqString, before);
  EXPECT_EQ(support::readFile(folder.file("ffplay.done")), "played\n");
  EXPECT_EQ(support::readFile(folder.file("two.wav")), kMarker);
  EXPECT_NE(Form2->Label1(1).caption().find("two.wav"), std::string::npos);
  EXPECT_EQ(support::readFile(folder.file("ffmpeg.runs")), "-i " + source + "\n") << "one render";
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

/// Samples of a 16-bit mono WAV file.
std::vector<double> samples(const std::string& wav) {
  const auto data = wav.find("data") + 8;
  std::vector<double> result((wav.size() - data) / 2);
  for (std::size_t i = 0; i < result.size(); ++i) {
    std::int16_t sample = 0;
    std::memcpy(&sample, wav.data() + data + 2 * i, 2);
    result[i] = sample;
  }
  return result;
}

/// Response in dB of an impulse of `height` at `frequency`.
double responseDb(const std::vector<double>& impulse, double height, double frequency, double rate) {
  std::complex<double> sum = 0;
  for (std::size_t i = 0; i < impulse.size(); ++i)
    sum += impulse[i] * std::polar(1.0, -2 * M_PI * frequency / rate * static_cast<double>(i));
  return 20 * std::log10(std::abs(sum) / height);
}

/// A peaking filter as the audio EQ cookbook (R. Bristow-Johnson) gives it, bandwidth in octaves.
double peakingDb(double gain, double centre, double octaves, double frequency, double rate) {
  const double w0 = 2 * M_PI * centre / rate;
  const double alpha = std::sin(w0) * std::sinh(std::log(2.0) / 2 * octaves * w0 / std::sin(w0));
  const double a = std::pow(10, gain / 40);
  const std::complex<double> z = std::polar(1.0, -2 * M_PI * frequency / rate);
  const auto top = 1 + alpha * a - 2 * std::cos(w0) * z + (1 - alpha * a) * z * z;
  const auto bottom = 1 + alpha / a - 2 * std::cos(w0) * z + (1 - alpha / a) * z * z;
  return 20 * std::log10(std::abs(top / bottom));
}

TEST_F(RealRender, EqualizesAsAPeakingFilterOfOneOctaveDoes) {
  constexpr double kHeight = 16000;
  constexpr double kRate = 48000;
  makeSource("\"aevalsrc=if(eq(n\\,0)\\,16000/32768\\,0):s=48000:d=1\" -c:a pcm_s16le");
  Form1->Slider1(18).setValue(-6);
  render("impulse.wav");
  const auto impulse = samples(support::readFile(folder.file("impulse.wav")));
  ASSERT_GT(impulse.size(), 40000U);
  for (int i = 0; i < 20; ++i) {
    const double frequency = 250 * std::pow(2, i / 4.75);
    EXPECT_NEAR(responseDb(impulse, kHeight, frequency, kRate), peakingDb(6, 1000, 1, frequency, kRate), 0.1)
        << frequency << " Hz";
  }
}

}  // namespace
