#include <sys/stat.h>

#include <QClipboard>
#include <QPlainTextEdit>
#include <QWindow>

#include "support/session.h"
#include "windows/form3.h"

namespace {

class StringWindow : public support::Session {
 protected:
  StringWindow() { open(); }
  static void open() { Form1->Command1_Click(6); }
  static void compose() { Form1->Slider3.setValue(3 - Form1->Slider3.value()); }
  static QPlainTextEdit& box() { return *static_cast<QPlainTextEdit*>(Form3->Text1.widget()); }
  static QString chain() { return QString::fromStdString(AppState.EqString); }
  static std::string listed() { return chain().replace(",", "\r\n").toStdString(); }
};

TEST_F(StringWindow, StandsOverItsOwnerWithEveryChainAndEmptyWhenItIsOpenedAnew) {
  const QWidget* owner = windowOf(Form1->Label6);
  EXPECT_EQ(box().window()->windowHandle()->transientParent(), owner->windowHandle());
  EXPECT_NEAR(box().window()->geometry().center().y(), owner->geometry().center().y(), 1);
  compose();
  QTest::mouseClick(box().viewport(), Qt::LeftButton);
  EXPECT_EQ(box().toPlainText(), chain());
  click(Form3->Command1(1));
  open();
  EXPECT_EQ(Form3->Text1.text(), "");
}

TEST_F(StringWindow, MovesItsControlsWithItsSize) {
  EXPECT_EQ(Form3->scaleHeight(), 254) << "as it opens";
  EXPECT_EQ(box().window()->minimumWidth(), 584) << "with a frame of 4 pixels";
  const std::tuple<int, int, QList<double>> rows[] = {
      {572, 254, {564, 184, 204, 451}}, {900, 500, {880, 430, 450, 767}}, {900, 50, {880, 430, 450, 767}}};
  for (const auto& [width, height, expected] : rows) {
    box().window()->resize(width, height);
    const QList<double> found{Form3->Text1.width(), Form3->Text1.height(), Form3->Command1(0).top(),
                              Form3->Command1(1).left()};
    EXPECT_EQ(found, expected) << "at a height of " << height;
  }
}

TEST_F(StringWindow, ListsOneFilterALineAndWorksForLongerTheLongerTheTextIs) {
  click(Form3->Command1(2));
  EXPECT_EQ(Form3->caption(), kForm3Data.caption) << "an empty box";
  compose();
  Form3->Text1.onChange = [this](int) {
    events += Form3->caption();
    EXPECT_FALSE(Form3->Command1(0).enabled() || Form3->Text1.enabled());
    EXPECT_EQ(box().palette().color(QPalette::Base).name(), "#ffffff");
  };
  int passes = 0;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&passes] { ++passes; });
  watch.start(0);
  click(Form3->Command1(2));
  EXPECT_GE(passes, chain().size());
  click(Form3->Command1(2));
  EXPECT_EQ(Form3->Text1.text(), listed());
  EXPECT_EQ(events, "Working...");
  EXPECT_TRUE(Form3->Text1.enabled() && Form3->Command1(0).enabled());
}

TEST_F(StringWindow, SaysThatItIsDoneForAWhileAfterTheLastListing) {
  compose();
  click(Form3->Command1(2));
  std::string afterAWhile;
  QTimer::singleShot(kForm3Data.timers[0].interval, Qt::PreciseTimer,
                     [&] { afterAWhile = Form3->caption(); });
  click(Form3->Command1(2));
  EXPECT_EQ(Form3->caption(), "Done.");
  EXPECT_TRUE(support::waitFor([] { return !Form3->Timer1.enabled(); }));
  EXPECT_EQ(afterAWhile, "Done.");
  EXPECT_EQ(Form3->caption(), "FFmpeg Equalizer String");
}

TEST_F(StringWindow, CopiesWhatTheBoxShowsAndTellsUntilItIsEdited) {
  compose();
  QTest::keyClick(&box(), Qt::Key_Return);
  click(Form3->Command1(3));
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "\r\n" + AppState.EqString);
  EXPECT_EQ(Form3->Command1(3).caption(), "Data On Clipboard");
  QTest::keyClicks(&box(), "#");
  EXPECT_EQ(Form3->Command1(3).caption(), "Copy to Clipboard");
}

TEST_F(StringWindow, SavesWhatTheBoxShowsButNotOverTheSourceNorIntoAPipe) {
  const std::string source = support::writeText(folder, "source.wav", "sound");
  openSource(source);
  compose();
  QTest::keyClick(&box(), Qt::Key_Return);
  mkfifo(folder.file("pipe").c_str(), 0600);
  for (const std::string& path : {folder.file("chain"), source, folder.file("pipe")})
    clickAndAnswer(Form3->Command1(0), path);
  EXPECT_EQ(shownFilter, "Text Files (*.txt)");
  EXPECT_EQ(support::readFile(folder.file("chain")), "\r\n" + AppState.EqString + "\r\n");
  EXPECT_EQ(support::readFile(source), "sound");
}

TEST_F(StringWindow, SavesNothingAfterACancelWhateverADialogInsideThisOneWasAnsweredWith) {
  QTimer::singleShot(0, [this] { Form1->CDialog.setFileName(folder.file("cancelled")); });
  clickAndAnswer(Form3->Command1(0), "");
  EXPECT_FALSE(std::filesystem::exists(folder.file("cancelled")));
}

}  // namespace
