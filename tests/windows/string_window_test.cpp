#include <QClipboard>
#include <QPlainTextEdit>

#include "support/session.h"
#include "windows/form3.h"

namespace {

class StringWindow : public support::Session {
 protected:
  static void open() { Form1->Command1_Click(6); }
  static void compose() { Form1->Slider3.setValue(3 - Form1->Slider3.value()); }
  static QPlainTextEdit& box() { return *static_cast<QPlainTextEdit*>(Form3->Text1.widget()); }
  static QString chain() { return QString::fromStdString(AppState.EqString); }
  static std::string listed() { return chain().replace(",", "\r\n").toStdString(); }
};

TEST_F(StringWindow, ShowsEveryChainAndStandsEmptyWhenItIsOpenedAnew) {
  open();
  compose();
  forms::Application::doEvents();
  EXPECT_EQ(box().toPlainText(), chain());
  click(Form3->Command1(1));
  open();
  EXPECT_EQ(Form3->Text1.text(), "");
  click(Form3->Command1(1));
  compose();
  open();
  EXPECT_EQ(box().toPlainText(), chain()) << "loaded hidden by the composition";
}

TEST_F(StringWindow, MovesItsControlsWithItsSize) {
  open();
  const std::tuple<int, int, QList<double>> rows[] = {
      {572, 254, {564, 184, 204, 451}}, {900, 500, {880, 430, 450, 767}}, {900, 50, {880, 430, 450, 767}}};
  for (const auto& [width, height, expected] : rows) {
    box().window()->resize(width, height);
    QList<double> found{Form3->Text1.width(), Form3->Text1.height()};
    found << Form3->Command1(0).top() << Form3->Command1(1).left();
    EXPECT_EQ(found, expected) << "at a height of " << height;
  }
}

TEST_F(StringWindow, ListsOneFilterALineWhileTheProgramIsServedAndSaysSoForAWhile) {
  open();
  click(Form3->Command1(2));
  EXPECT_EQ(Form3->caption(), kForm3Data.caption) << "an empty box";
  compose();
  std::string meanwhile;
  Form3->Text1.onChange = [&](int) {
    meanwhile = Form3->caption() + (Form3->Command1(0).enabled() || Form3->Text1.enabled() ? "!" : "");
  };
  QTimer::singleShot(1, [] { Form1->Slider1(4).setValue(-8); });
  click(Form3->Command1(2));
  EXPECT_EQ(meanwhile + Form3->caption(), "Working...Done.");
  EXPECT_EQ(Form1->Slider1(4).value(), -8);
  EXPECT_EQ(Form3->Text1.text(), listed()) << "a chain composed meanwhile";
  EXPECT_TRUE(Form3->Text1.enabled() && Form3->Command1(0).enabled());
  QTimer::singleShot(kForm3Data.timers[0].interval, Qt::PreciseTimer, [&] { meanwhile = Form3->caption(); });
  click(Form3->Command1(2));
  EXPECT_EQ(Form3->Text1.text(), listed()) << "listed twice";
  EXPECT_TRUE(support::waitFor([&] { return meanwhile != "Working..." && !Form3->Timer1.enabled(); }));
  EXPECT_EQ(meanwhile + Form3->caption(), "Done.FFmpeg Equalizer String") << "from the second listing on";
  QTimer::singleShot(1, [] { click(Form3->Command1(1)); });
  click(Form3->Command1(2));
  EXPECT_FALSE(Form3.isLoaded()) << "closed while it lists";
}

TEST_F(StringWindow, SavesAndCopiesWhatTheBoxShowsWithItsEdits) {
  open();
  compose();
  QTest::keyClick(&box(), Qt::Key_Return);
  click(Form3->Command1(3));
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "\r\n" + AppState.EqString);
  EXPECT_EQ(Form3->Command1(3).caption(), "Data On Clipboard");
  QTest::keyClicks(&box(), "#");
  EXPECT_EQ(Form3->Command1(3).caption(), "Copy to Clipboard");
  const std::string source = support::writeText(folder, "source.wav", "sound");
  openSource(source);
  // A Cancel counts, whatever a dialog inside this one was answered with.
  QTimer::singleShot(0, [&] { Form1->CDialog.setFileName(folder.file("cancelled")); });
  clickAndAnswer(Form3->Command1(0), "");
  EXPECT_FALSE(std::filesystem::exists(folder.file("cancelled")));
  for (const std::string& answer : {folder.file("chain"), source}) clickAndAnswer(Form3->Command1(0), answer);
  EXPECT_EQ(support::readFile(folder.file("chain")), "\r\n#" + AppState.EqString + "\r\n");
  EXPECT_EQ(support::readFile(source), "sound");
}

}  // namespace
