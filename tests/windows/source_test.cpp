#include "windows/source.h"

#include <QListView>
#include <QMimeData>
#include <QSettings>
#include <QWindow>

#include "support/session.h"
#include "tools/command_lines.h"

namespace {

using Source = support::Session;

TEST_F(Source, OpensTheButtonsAndShowsThePath) {
  support::writeScript(folder, "ffprobe", "printf '%s\\n' \"$0\" \"$@\" > \"$0.arguments\"");
  const std::string path = support::writeText(folder, "my \"song\".wav", "");
  openSource(path);
  EXPECT_EQ(shownFilter, "All Files (*.*)");
  for (const int i : {2, 3, 6, 7, 8}) EXPECT_TRUE(Form1->Command1(i).enabled()) << i;
  EXPECT_EQ(Form1->Text1.text(), GetShortPath(path));
  EXPECT_EQ(Form1->Text1.backColor(), 0xC0C0C0U);
  EXPECT_EQ(support::readFile(folder.file("ffprobe.arguments")),
            folder.file("ffprobe") + "\n-hide_banner\n-stats\n-i\n" + path + "\n");
  EXPECT_FALSE(QSettings("QtProject").isWritable()) << "the dialog keeps settings in the home";
}

TEST_F(Source, OneLocalFileIsTakenWhereItIsDroppedOnTheMainWindow) {
  const std::string path = support::writeText(folder, "a \u00e9.wav", "");
  const QUrl file = QUrl::fromLocalFile(QString::fromStdString(path));
  QWindow* window = windowOf(Form1->Text1)->windowHandle();
  const QPoint sourceLine = Form1->Text1.widget()->mapTo(windowOf(Form1->Text1), QPoint(50, 8));
  for (const QList<QUrl>& urls :
       {QList<QUrl>{}, {QUrl("https://a.invalid/a.wav")}, {QUrl("file:///bin")}, {file, file}, {file}}) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(sourceLine, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window, &enter);
    EXPECT_EQ(enter.isAccepted(), urls == QList<QUrl>{file}) << urls.size() << " files";
    QDropEvent drop(sourceLine, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window, &drop);
  }
  forms::Application::doEvents();
  EXPECT_EQ(AppState.SourcePathShort, GetShortPath(path));
}

TEST_F(Source, ACancelLeavesTheOneBeforeAndAFileThatIsNotThereNone) {
  const std::string path = support::writeText(folder, "a.wav", "");
  openSource(path);
  openSource("");
  EXPECT_EQ(Form1->Text1.text(), GetShortPath(path));
  EXPECT_EQ(Form1->Text1.backColor(), forms::kButtonFace);
  openSource(folder.file("not there.wav"));
  EXPECT_EQ(AppState.SourcePathShort, "");
  EXPECT_EQ(Form1->Text1.text(), "");
}

TEST_F(Source, TheDialogShowsAllNamesOpensFoldersAndClosesItsCompletions) {
  std::filesystem::create_directory(folder.file("sub"));
  const std::string path = support::writeText(folder, "sub/no point", "");
  const auto seen = [] {
    auto* list = support::openDialog()->findChild<QListView*>("listView");
    return list->model()->rowCount(list->rootIndex()) == 1;
  };
  once([] { return support::openDialog() != nullptr; },
       [seen] {
         support::answer(*support::openDialog(), "sub");
         ASSERT_NE(support::openDialog(), nullptr) << "a folder is taken for a file";
         EXPECT_TRUE(support::waitFor(seen)) << "a name without a point is hidden";
         auto* name = support::openDialog()->findChild<QLineEdit*>("fileNameEdit");
         QTest::keyClicks(name, "no");
         EXPECT_TRUE(support::waitFor([] { return QApplication::activePopupWidget() != nullptr; }));
         QTest::keyClicks(name, " point");
         QTest::keyClick(name, Qt::Key_Return);
       });
  click(Form1->Command1(0));
  EXPECT_EQ(Form1->Text1.text(), GetShortPath(path));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "completions stay open";
}

TEST_F(Source, IsMeasuredInWholeSecondsWhateverItsTags) {
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

TEST_F(Source, ASecondOneChosenInsideTheFirstProbeWins) {
  support::writeScript(folder, "ffprobe", R"(case "$4" in
      *first*) echo ' Duration: 00:00:01'; timeout 20 sh -c 'until [ -e "$0.go" ]; do sleep 0.01; done' "$0";;
      *) echo > "$0.go"; echo ' Duration: 00:00:02';;
      esac)");
  const std::string second = support::writeText(folder, "second.wav", "");
  const std::string first = support::writeText(folder, "first.wav", "");
  once([] { return Form1->objDOS.get() != nullptr; },
       [this, first, second] {
         EXPECT_EQ(Form1->Text1.text(), GetShortPath(first)) << "not shown before the probe is over";
         openSource(second);
       });
  openSource(first);
  EXPECT_EQ(Form1->Text1.text(), GetShortPath(second));
  EXPECT_EQ(AppState.SourceSeconds, "2");
}

TEST_F(Source, PreviewComposesAfreshAndHandsTheChainToThePlayer) {
  support::writeScript(folder, "ffplay",
                       "printf '%s\\n' \"$@\" > \"$0.arguments\"; printf 'Duration:\\r\\n00:00:04'\n"
                       "sleep 0.1; echo Duration: 00:00:09");
  const std::string path = support::writeText(folder, "a.wav", "");
  openSource(path);
  click(Form1->Option3(0));
  click(Form1->Command1(2));
  EXPECT_TRUE(AppState.EqString.starts_with("equalizer=f=1:width_type=o:width=25:g=-5,"));
  EXPECT_EQ(support::readFile(folder.file("ffplay.arguments")),
            "-i\n" + path + "\n-af\nvolume=1," + AppState.EqString + "\n");
  for (const std::string& text : AppState.BandGainText) EXPECT_EQ(text, "-0");
  EXPECT_EQ(AppState.SourceSeconds, "4") << "from the first piece alone";
}

}  // namespace
