#include <QClipboard>
#include <QPlainTextEdit>

#include "support/session.h"

namespace {

class StringWindow : public support::Session {
 protected:
  static void open() { Form1->Command1_Click(6); }
  static void compose() { Form1->Slider3.setValue(Form1->Slider3.value() == 1 ? 2 : 1); }
  static QPlainTextEdit& box() { return *static_cast<QPlainTextEdit*>(Form3->Text1.widget()); }
  static std::string listed() {
    std::string lines;
    for (const char c : AppState.EqString) lines += c == ',' ? "\r\n" : std::string(1, c);
    return lines;
  }
};

TEST_F(StringWindow, ShowsEveryChainAndStandsEmptyWhenItIsOpenedAnew) {
  open();
  EXPECT_EQ(Form3->Text1.text(), "");
  compose();
  forms::Application::doEvents();
  EXPECT_EQ(box().toPlainText().toStdString(), AppState.EqString);
  click(Form3->Command1(1));
  EXPECT_FALSE(Form3.isLoaded());
  open();
  EXPECT_EQ(Form3->Text1.text(), "");
  click(Form3->Command1(1));
  compose();
  open();
  EXPECT_EQ(box().toPlainText().toStdString(), AppState.EqString) << "loaded hidden by the composition";
}

TEST_F(StringWindow, MovesItsControlsWithItsSize) {
  open();
  QWidget* window = box().window();
  const auto sizes = [] {
    return QList<double>{Form3->Text1.width(), Form3->Text1.height(), Form3->Command1(0).top(),
                         Form3->Command1(1).left()};
  };
  window->resize(572, 254);
  EXPECT_EQ(Form3->width(), 8820) << "never narrower";
  EXPECT_EQ(sizes(), (QList<double>{window->width() - 20.0, 184, 204, window->width() - 133.0}));
  window->resize(900, 500);
  EXPECT_EQ(sizes(), (QList<double>{880, 430, 450, 900 - 20 - 113}));
  EXPECT_EQ(Form3->Command1(2).left(), 136);
  window->resize(900, 50);
  EXPECT_EQ(sizes(), (QList<double>{880, 430, 450, 767})) << "too low for the box";
}

TEST_F(StringWindow, ListsOneFilterALineAndSaysSoForAWhile) {
  open();
  click(Form3->Command1(2));
  EXPECT_EQ(Form3->caption(), "FFmpeg Equalizer String") << "an empty box";
  compose();
  std::string captions;
  QTimer watch(qApp);
  QObject::connect(&watch, &QTimer::timeout, [&] {
    captions = Form3->caption() + (Form3->Command1(0).enabled() || Form3->Text1.enabled() ? "!" : "");
    watch.stop();
  });
  QTimer::singleShot(0, [&] { watch.start(1); });
  click(Form3->Command1(2));
  EXPECT_EQ(captions, "Working...");
  EXPECT_EQ(Form3->Text1.text(), listed());
  EXPECT_EQ(Form3->caption(), "Done.");
  EXPECT_TRUE(Form3->Text1.enabled() && Form3->Command1(0).enabled());
  click(Form3->Command1(2));
  EXPECT_EQ(Form3->Text1.text(), listed()) << "listed twice";
  EXPECT_TRUE(support::waitFor([] { return Form3->caption() == "FFmpeg Equalizer String"; }));
  EXPECT_FALSE(Form3->Timer1.enabled());
  compose();
  EXPECT_EQ(Form3->Text1.text(), AppState.EqString);
}

TEST_F(StringWindow, ServesTheProgramWhileItLists) {
  open();
  compose();
  QTimer::singleShot(1, [] { Form1->Slider1(4).setValue(-8); });
  click(Form3->Command1(2));
  EXPECT_EQ(Form3->Text1.text(), listed()) << "a chain composed meanwhile";
  EXPECT_NE(Form3->Text1.text().find("f=33:width_type=o:width=2:g=8\r\n"), std::string::npos);
  compose();
  QTimer::singleShot(1, [] { click(Form3->Command1(1)); });
  click(Form3->Command1(2));
  EXPECT_FALSE(Form3.isLoaded()) << "closed while it lists";
}

TEST_F(StringWindow, SavesAndCopiesWhatTheBoxShows) {
  open();
  const auto saved = [this] {
    answerDialog(folder.file("chain"));
    click(Form3->Command1(0));
    return support::readFile(folder.file("chain"));
  };
  EXPECT_EQ(saved(), "\r\n");
  compose();
  EXPECT_EQ(saved(), AppState.EqString + "\r\n");
  click(Form3->Command1(2));
  EXPECT_EQ(saved(), listed() + "\r\n");
  answerDialog("");
  click(Form3->Command1(0));
  EXPECT_EQ(support::readFile(folder.file("chain")), listed() + "\r\n");

  click(Form3->Command1(3));
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), listed());
  EXPECT_EQ(Form3->Command1(3).caption(), "Data On Clipboard");
  QTest::keyClicks(&box(), "#");
  EXPECT_EQ(Form3->Command1(3).caption(), "Copy to Clipboard");
  EXPECT_EQ(saved(), "#" + listed() + "\r\n") << "an edit, with the line ends of the list";
  click(Form3->Command1(3));
  compose();
  EXPECT_EQ(Form3->Command1(3).caption(), "Copy to Clipboard");
}

}  // namespace
