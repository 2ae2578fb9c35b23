// A user who does anything at all with the real windows, and what has to hold after each step.
// Usage: random_user [STEPS [SEED]]. A seed stands for the same actions each time.
#include <QWheelEvent>
#include <iostream>
#include <random>

#include "support/session.h"

namespace {

/// Where everything about one action is drawn from, so that its number says it all.
using Dice = std::mt19937;

constexpr Qt::Key kKeys[] = {Qt::Key_Tab,  Qt::Key_Return, Qt::Key_Space, Qt::Key_X,     Qt::Key_Left,
                             Qt::Key_Down, Qt::Key_Home,   Qt::Key_End,   Qt::Key_PageUp};
constexpr const char* kNames[] = {"a", "odd'\"", "loud", "", "new", "n/x", "..", "\n", "AppPresets.ini"};
constexpr const char* kTargets[] = {"QAbstractButton", "QAbstractButton", "QSlider", "QWidget"};

/// Prints a lot that cannot be read where the source is "loud", and bit by bit where it is "odd".
constexpr auto kTool = R"(case "$*" in
  *loud*) cat "$0" "$0"; exit 1;;
  *odd*) for piece in '\r\n Dur' 'ation: 00:0' '3:21\r\ntime=00:0' '1:00 \377\000ti' 'me=N/A'
         do printf "$piece"; done;;
  *) echo ' Duration: 00:03:21.00, time=00:00:02.00 bitrate';;
esac)";

std::vector<std::string> trail;
QString nameToAnswer;

int below(qsizetype limit, Dice& dice) {
  return static_cast<int>(dice() % static_cast<Dice::result_type>(std::max<qsizetype>(1, limit)));
}

QPoint placeOn(const QWidget& widget, Dice& dice) {
  const int x = below(widget.width(), dice);
  return {x, below(widget.height(), dice)};
}

void drag(QWidget& widget, Dice& dice) {
  const QPoint end = placeOn(widget, dice);
  QTest::mousePress(&widget, Qt::LeftButton, {}, widget.rect().center());
  QTest::mouseMove(&widget, end);
  QTest::mouseRelease(&widget, Qt::LeftButton, {}, end);
}

void turnWheel(QWidget& widget, Dice& dice) {
  QWheelEvent event({}, {}, {}, {0, below(600, dice) - 300}, {}, {}, {}, false);
  QApplication::sendEvent(&widget, &event);
}

void sizeWindow(QWidget& window, Dice& dice) {
  if (below(10, dice) == 0) return window.showMinimized();
  window.showNormal();
  const int width = below(2000, dice);
  // No person can give another size to a window that has but one.
  if (window.minimumSize() != window.maximumSize()) window.resize(width, below(2000, dice));
}

void perform(Dice::result_type number, const std::string& when) {
  Dice dice(number);
  const QWidgetList windows = QApplication::topLevelWidgets();
  QWidget* window = windows[below(windows.size(), dice)];
  if (below(12, dice) == 0) return sizeWindow(*window, dice);
  QWidgetList widgets = window->findChildren<QWidget*>();
  const char* kind = kTargets[below(std::size(kTargets), dice)];
  widgets.removeIf([kind](QWidget* each) { return !each->inherits(kind) || !each->isVisible(); });
  if (widgets.isEmpty() || window->isMinimized()) return;
  QWidget& target = *widgets[below(widgets.size(), dice)];
  if (!target.isEnabled()) return;
  nameToAnswer = kNames[below(std::size(kNames), dice)];
  const int action = below(8, dice);
  trail.push_back(when + ": action " + std::to_string(action) + " on " + target.objectName().toStdString());
  if (action == 0) QTest::keyClick(&target, kKeys[below(std::size(kKeys), dice)]);
  if (action == 1) turnWheel(target, dice);
  if (action == 2) drag(target, dice);
  if (action > 2) QTest::mouseClick(&target, Qt::LeftButton, {}, placeOn(target, dice));
  EXPECT_EQ(support::outOfStep(), "");
}

/// Does it with coming events: outside of dialogs and of waits for a tool.
void performSoon(Dice::result_type number) {
  const auto due = [number] {
    if (QApplication::activeModalWidget() != nullptr || support::isHeldBack())
      performSoon(number);
    else
      perform(number, "  in the middle");
  };
  QMetaObject::invokeMethod(qApp, due, Qt::QueuedConnection);
}

void answerDialog() {
  QFileDialog* dialog = support::openDialog();
  if (dialog == nullptr || support::isHeldBack()) return;
  support::answer(*dialog, nameToAnswer);
  if (dialog->isVisible()) dialog->reject();
}

/// What lasts from step to step.
std::string atRest() {
  std::ostringstream text;
  text << QApplication::topLevelWidgets().size() - Form2.isLoaded() - Form3.isLoaded() << " windows, "
       << std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {})
       << " descriptors, children <" << support::readFile("/proc/thread-self/children") << ">, "
       << Form1->scaleWidth() << " pixels wide, "
       << (AppState.WindowMinimised == Form1->minimised() ? "size known" : "size unknown");
  return text.str();
}

using RandomUser = support::Session;

TEST_F(RandomUser, LeavesAllInOrder) {
  const auto arguments = testing::internal::GetArgvs();
  const int steps = arguments.size() > 1 ? std::stoi(arguments[1]) : 1000;
  Dice numbers(arguments.size() > 2 ? static_cast<Dice::result_type>(std::stoul(arguments[2])) : 1);
  for (const char* tool : {"ffprobe", "ffplay", "ffmpeg"}) support::writeScript(folder, tool, kTool);
  for (const char* name : {"a", "odd", "odd'\"", "loud"}) support::writeText(folder, name, "sound");
  Form1->Command1(10).onClick = nullptr;  // Would end the process.
  // What the first dialog and the first run open stays open.
  openSource(folder.file("odd"));
  EXPECT_TRUE(support::waitFor([] { return atRest().find("<>") != std::string::npos; }));
  const std::string before = atRest();
  QTimer answers;
  QObject::connect(&answers, &QTimer::timeout, &answerDialog);
  answers.start(0);
  for (int step = 1; step <= steps && !HasFailure(); ++step) {
    if (below(3, numbers) == 0) performSoon(numbers());
    perform(numbers(), std::to_string(step));
    if (Form2.isLoaded()) {
      Form2->Timer1.onTick = [inRender = numbers()](int) {
        performSoon(inRender);
        Form2->Timer1_Timer();
      };
      hastenRender();
    }
    forms::Application::doEvents();
    EXPECT_TRUE(support::waitFor([&] { return atRest() == before; })) << atRest() << " instead of " << before;
  }
  if (!HasFailure()) return;
  for (const std::string& action : trail) std::cout << action << "\n";
}

}  // namespace
