#include <QWindow>

#include "support/session.h"
#include "tools/render_target.h"

namespace {

namespace fs = std::filesystem;

constexpr auto kSource = "a \"source\t& -y\" $HOME\\ \u00e9e\u0301.wav";
constexpr auto kMarker = "<%TEMPOutPutData%>\r\n";

class Render : public support::Session {
 protected:
  Render() : source(support::writeText(folder, kSource, "sound")), target(folder.file("out.wav")) {
    support::writeScript(folder, "ffprobe", "echo ' Duration: 00:03:21.00'");
    openSource(source);
  }

  void fakeRender(const std::string& script) { support::writeScript(folder, "ffmpeg", script); }

  static bool isFinished() { return Form2.isLoaded() && !Form2->Timer1.enabled(); }

  /// Renders into `path` in a window of its own and waits for the end of the run.
  void render(const std::string& path) {
    Form2.unload();
    saveAs(path);
    hastenRender();
    ASSERT_TRUE(support::waitFor(isFinished)) << path;
  }

  /// Renders into `path` with a tool that writes "data" and goes on until `act` has been called in between; a
  /// second run of the tool ends at once.
  void renderMeanwhile(const std::string& path, const std::function<void()>& act) {
    fakeRender(R"(for last; do :; done
        exec 3> "$last"
        printf data >&3
        echo run >> "$0.runs"
        second=$(sed 1d "$0.runs")
        until [ -n "$second" ] || [ -e "$0.go" ]; do echo time=00:00:09; sleep 0.02; done
        printf " of the ${second:-first run}" >&3)");
    once([this] { return fs::exists(folder.file("ffmpeg.runs")); },
         [this, act] {
           act();
           support::writeText(folder, "ffmpeg.go", "");
         });
    saveAs(path);
    hastenRender();
    EXPECT_TRUE(support::waitFor([this] { return fs::exists(folder.file("ffmpeg.go")); }));
  }

  const std::string source;
  const std::string target;
};

TEST_F(Render, TellsTheProgressOneUpdateLateAndReadsEachPieceByItself) {
  fakeRender("exit");
  saveAs(target);
  EXPECT_EQ(shownFilter, "WAV Files (*.wav)");
  EXPECT_EQ(std::pair(Form2->width(), Form2->height()), std::pair(6900.0, 3420.0));
  EXPECT_EQ(windowOf(Form2->PBar)->windowHandle()->transientParent(),
            windowOf(Form1->Label6)->windowHandle());
  EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 00% Completed");
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
  for (const std::string script : {"head -c 10000000 /dev/zero; exit 1",
                                   "printf '\\377time=00:00:01\\000'; kill -9 $$", "not executable", ""}) {
    fakeRender(script);
    if (script == "not executable") fs::permissions(folder.file("ffmpeg"), fs::perms(0644));
    if (script.empty()) fs::remove(folder.file("ffmpeg"));
    render(target);
    EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 100% Completed") << script;
    EXPECT_EQ(Form2->PBar.value(), 0) << script;
    EXPECT_EQ(support::readFile(target), kMarker) << script;
  }
}

TEST_F(Render, RunsWithoutATargetWhereNoneCanBeMadeAndWithoutALengthWhereNoneIsKnown) {
  AppState.SourceSeconds = "";
  fakeRender("printf '%s|' \"$@\" > \"$0.arguments\"");
  render(folder.file("no such folder/out.wav"));
  EXPECT_EQ(Form2->Label1(1).caption(), "");
  EXPECT_EQ(Form2->PBar.max(), 100);
  EXPECT_EQ(support::readFile(folder.file("ffmpeg.arguments")), "-y|-i|" + source + "|-af|volume=1,|");
}

TEST_F(Render, NeverEmptiesItsSourceByWhateverName) {
  support::shell("ffmpeg -v error -y -f lavfi -i anoisesrc=d=0.1 '" + source + "'");
  const std::string sound = support::readFile(source);
  EXPECT_GT(sound.size(), 8000U);
  fs::create_symlink(source, folder.file("link.wav"));
  fs::create_hard_link(source, folder.file("hard.wav"));
  fs::create_directory(folder.file("sub"));
  fs::create_symlink("/usr/bin/ffmpeg", folder.file("ffmpeg"));
  Form1->Slider1(2).setValue(1);
  for (const char* name : {kSource, "link.wav", "hard.wav", "sub/../link.wav"}) {
    render(folder.file(name));
    EXPECT_TRUE(support::readFile(source) == sound) << name;
  }
  constexpr std::uintmax_t kLarge = 3'000'000'000;  // Takes no room: all but the sound is a hole.
  fs::resize_file(source, kLarge);
  EXPECT_EQ(useOf(folder.file("link.wav"), AppState), FileUse::Input);
}

TEST_F(Render, NeverEmptiesThePresetFile) {
  const std::string presets = support::writeText(folder, "AppPresets.ini", "presets");
  saveAs(presets);
  clickAndAnswer(Form3->Command1(0), presets);
  EXPECT_EQ(support::readFile(presets), "presets");
}

TEST_F(Render, ATargetThatARunningOneWritesAndThatKeepsItsNameIsNone) {
  AppState.SavePathShort = "/dev/null";
  const RunningRender inUse(AppState);
  claimTarget(AppState);
  EXPECT_EQ(AppState.SavePathShort, "");
}

TEST_F(Render, AFileThatItReadsOrWritesIsNotEmptiedMeanwhile) {
  renderMeanwhile(target, [this] {
    saveAs(target);
    EXPECT_EQ(support::readFile(target), "data") << "by a second render";
    clickAndAnswer(Form3->Command1(0), target);
    EXPECT_EQ(support::readFile(target), "data") << "by a saved text";
    openSource(support::writeText(folder, "other.wav", "sound"));
    saveAs(source);
    EXPECT_EQ(support::readFile(source), "sound");
  });
  saveAs(target);
  EXPECT_EQ(support::readFile(target), kMarker) << "when the render is over";
}

TEST_F(Render, ASecondOneToTheSameFileIsNotMixedWithTheFirstAndKeepsALink) {
  fs::create_symlink(target, folder.file("link.wav"));
  renderMeanwhile(target, [this] { render(folder.file("link.wav")); });
  EXPECT_EQ(support::readFile(target), "data of the run");
  EXPECT_TRUE(fs::is_symlink(folder.file("link.wav")));
}

TEST_F(Render, ASecondOneThatFailsLeavesTheMarkerOrTheSourceThatTheTargetHasBecome) {
  for (const bool isSource : {false, true}) {
    renderMeanwhile(target, [this, isSource] {
      fs::remove(folder.file("ffmpeg"));
      Form2.unload();
      saveAs(target);
      if (isSource) openSource(target);
      EXPECT_TRUE(support::waitFor(isFinished));
      EXPECT_EQ(support::readFile(target), isSource ? "data" : kMarker);
      EXPECT_EQ(AppState.SavePathShort.empty(), isSource);
    });
    Form2.unload();
    support::shell("rm '" + folder.path() + "'/ffmpeg*");
  }
}

TEST_F(Render, AnotherTargetInTheOpenWindowStartsNothing) {
  renderMeanwhile(target, [this] { saveAs(folder.file("two.wav")); });
  EXPECT_EQ(support::readFile(folder.file("two.wav")), kMarker);
  EXPECT_NE(Form2->Label1(1).caption().find("two.wav"), std::string::npos);
  EXPECT_EQ(support::readFile(folder.file("ffmpeg.runs")), "run\n");
}

TEST_F(Render, AClosedWindowStaysClosedAndTellsNoMore) {
  renderMeanwhile(target, [] {
    click(Form2->Command1);
    Form1->setCaption("untouched");
  });
  forms::Application::doEvents();
  EXPECT_FALSE(Form2.isLoaded());
  EXPECT_EQ(Form1->caption(), "untouched");
}

}  // namespace
