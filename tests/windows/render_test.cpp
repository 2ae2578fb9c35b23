#include <csignal>

#include "support/in_step.h"
#include "support/limit.h"
#include "support/session.h"

namespace {

constexpr auto kSource = "a \"source\t& -y\" $HOME\\ \u00e9e\u0301.wav";
constexpr auto kMarker = "<%TEMPOutPutData%>\r\n";

class Render : public support::Session {
 protected:
  Render() : source(support::writeText(folder, kSource, "sound")) {
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

  /// Renders with a tool that writes "data" and goes on until `hand` has done its work in between, or is done
  /// at once when it is the second to run; true when the tool has ended.
  bool renderMeanwhile(const std::string& name, const std::function<void()>& hand) {
    fakeRender(R"(for last; do :; done; exec 3> "$last"; printf data >&3
        echo $$ > "$0.pid"; echo run >> "$0.runs"; second=$(sed 1d "$0.runs")
        until [ -n "$second" ] || [ -e "$0.go" ]; do echo time=00:00:09; sleep 0.02; done
        printf " of the ${second:-first run}" >&3; echo > "$0.done")");
    QTimer person(qApp);
    QObject::connect(&person, &QTimer::timeout, [&] {
      if (forms::Application::isDeferring() || !std::filesystem::exists(folder.file("ffmpeg.runs"))) return;
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
  for (const char* script : {"head -c 10000000 /dev/zero; exit 1",
                             "printf '\\377time=00:00:01\\000'; kill -9 $$", "not executable", ""}) {
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
  fakeRender("printf '%s|' \"$@\" > \"$0.arguments\"");
  render("no such folder/out.wav");
  EXPECT_EQ(Form2->Label1(1).caption(), "");
  EXPECT_EQ(Form2->PBar.max(), 100);
  EXPECT_EQ(support::readFile(folder.file("ffmpeg.arguments")), "-y|-i|" + source + "|-af|volume=1,|");
}

TEST_F(Render, NeverEmptiesASourceOrAFileThatIsBeingWritten) {
  namespace fs = std::filesystem;
  support::shell("ffmpeg -v error -y -f lavfi -i anoisesrc=d=0.1 '" + source + "'");
  const std::string sound = support::readFile(source);
  fs::create_symlink(source, folder.file("link.wav"));
  fs::create_hard_link(source, folder.file("hard.wav"));
  fs::create_directory(folder.file("sub"));
  fs::create_symlink("/usr/bin/ffmpeg", folder.file("ffmpeg"));
  Form1->Slider1(2).setValue(1);
  for (const char* name : {kSource, "link.wav", "hard.wav", "sub/../link.wav"}) {
    render(name);
    EXPECT_TRUE(sound.size() > 8000 && support::readFile(source) == sound) << name;
  }
  fs::remove(folder.file("ffmpeg"));
  Form2.unload();
  EXPECT_TRUE(renderMeanwhile("out.wav", [&] {
    saveAs(folder.file("out.wav"));
    EXPECT_EQ(support::readFile(folder.file("out.wav")), "data") << "the target of the running render";
    openSource(support::writeText(folder, "other.wav", "sound"));
    saveAs(folder.file("hard.wav"));
    EXPECT_TRUE(support::readFile(source) == sound) << "the source of the running render";
  }));
}

TEST_F(Render, ASecondRenderToTheSameNameIsNotMixedWithTheFirst) {
  EXPECT_TRUE(renderMeanwhile("out.wav", [&] { render("out.wav"); }));
  EXPECT_EQ(support::readFile(folder.file("out.wav")), "data of the run");
}

TEST_F(Render, ASecondRenderThatFailsLeavesTheMarkerOrTheSourceThatTheTargetHasBecome) {
  for (const bool chosen : {false, true}) {
    const std::string target = folder.file("out.wav");
    EXPECT_TRUE(renderMeanwhile("out.wav", [&] {
      std::filesystem::remove(folder.file("ffmpeg"));
      Form2.unload();
      saveAs(target);
      if (chosen) openSource(target);
      EXPECT_TRUE(finished());
      EXPECT_EQ(support::readFile(target), chosen ? "data" : kMarker);
    }));
    Form2.unload();
    support::shell("rm '" + folder.path() + "'/ffmpeg*");
  }
}

TEST_F(Render, WhateverIsTakenAwayMeanwhileItEndsAndTheWindowWorksOn) {
  for (const char* fault :
       {"kill -KILL $(cat ffmpeg.pid)", "kill -STOP $(cat ffmpeg.pid); kill -CONT $(cat ffmpeg.pid)",
        "rm ffmpeg; echo > ffmpeg", "rm *source*", "rm -r sub"}) {
    std::filesystem::create_directory(folder.file("sub"));
    EXPECT_TRUE(renderMeanwhile("sub/out.wav", [&] {
      support::shell("cd '" + folder.path() + "'; " + fault);
    })) << fault;
    ASSERT_TRUE(finished()) << fault;
    EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 100% Completed") << fault;
    Form1->Slider1(3).setValue(Form1->Slider1(3).value() + 1);
    EXPECT_EQ(support::outOfStep(), "") << fault;
    Form2.unload();
    support::shell("cd '" + folder.path() + "'; rm -rf ffmpeg*");
  }
}

TEST_F(Render, AFullDiskEndsItAndLeavesTheSource) {
  support::shell("ffmpeg -v error -y -f lavfi -i anoisesrc=d=4 '" + source + "'");
  std::filesystem::create_symlink("/usr/bin/ffmpeg", folder.file("ffmpeg"));
  const std::string before = support::readFile(source);
  Form1->Slider1(2).setValue(1);
  signal(SIGXFSZ, SIG_IGN);
  {
    const support::Limit full(RLIMIT_FSIZE, 100000);
    render("out.wav");
  }
  EXPECT_EQ(Form2->Label1(2).caption(), "Progress: 100% Completed");
  EXPECT_EQ(support::readFile(folder.file("out.wav")).size(), 100000U);
  EXPECT_TRUE(support::readFile(source) == before);
}

TEST_F(Render, TheProgramWorksOnWhileItRendersAndDoesNotMissAWindowClosed) {
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
  EXPECT_EQ(support::readFile(folder.file("ffmpeg.runs")), "run\n") << "a finished window starts nothing";
  click(Form2->Command1);
  saveAs("");
  EXPECT_FALSE(Form2.isLoaded()) << "a Cancel opens nothing";
  support::shell("rm '" + folder.path() + "'/ffmpeg*");
  EXPECT_TRUE(renderMeanwhile("out.wav", [] {
    click(Form2->Command1);
    Form1->setCaption("untouched");
  }));
  forms::Application::doEvents();
  EXPECT_FALSE(Form2.isLoaded());
  EXPECT_EQ(Form1->caption(), "untouched");
}

}  // namespace
