// A user who does anything at all with the real windows, and what has to hold after each step.
// Usage: random_user [STEPS [SEED]]. A seed stands for the same actions each time.
#include <QWheelEvent>
#include <iostream>
#include <random>

#include "support/session.h"

namespace {

/// Where everything about one action is drawn from, so that its number says it all.
using Dice = std::mt19937;
using Number = Dice::result_type;

constexpr Qt::Key kKeys[] = {Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return,  Qt::Key_Space, Qt::Key_X,
                             Qt::Key_Left, Qt::Key_Right,   Qt::Key_Up,      Qt::Key_Down,  Qt::Key_Home,
                             Qt::Key_End,  Qt::Key_PageUp,  Qt::Key_PageDown};
constexpr const char* kNames[] = {"a",   "odd", "odd'\"", "loud", "",
                                  "new", "n/x", "..",     "\n",   "AppPresets.ini"};

/// Prints a lot that cannot be read where the source is "loud", and bit by bit where it is "odd".
constexpr auto kTool = R"(case "$*" in
  *loud*) cat "$0" "$0"; exit 1;;
  *odd*) for piece in '\r\n Dur' 'ation: 00:0' '3:21\r\ntime=00:0' '1:00 \377\000ti' 'me=N/A'
         do printf "$piece"; done;;
  *) echo ' Duration: 00:03:21.00,'
     for second in 0 1 2; do echo "size=1kB time=00:0$second:00.00 bitrate"; done;;
esac)";

std::vector<std::string> trail;
bool mouseIsDown = false;
QString nameToAnswer;

int below(int limit, Dice& dice) {
  return static_cast<int>(dice() % static_cast<Number>(std::max(1, limit)));
}

QPoint placeOn(const QWidget& widget, Dice& dice) {
  const int x = below(widget.width(), dice);
  return {x, below(widget.height(), dice)};
}

void click(QWidget& widget, Dice& dice) {
  QTest::mouseClick(&widget, Qt::LeftButton, {}, placeOn(widget, dice));
}

void drag(QWidget& widget, Dice& dice) {
  const QPoint end = placeOn(widget, dice);
  mouseIsDown = true;
  QTest::mousePress(&widget, Qt::LeftButton, {}, below(2, dice) == 0 ? widget.rect().center() : end);
  if (below(4, dice) == 0) forms::Application::doEvents();
  QTest::mouseMove(&widget, end);
  QTest::mouseRelease(&widget, Qt::LeftButton, {}, end);
  mouseIsDown = false;
}

void turnWheel(QWidget& widget, Dice& dice) {
  const QPoint turned(0, below(600, dice) - 300);
  QWheelEvent event({}, {}, {}, turned, {}, {}, {}, false);
  QApplication::sendEvent(&widget, &event);
}

void pressKey(QWidget& widget, Dice& dice) {
  QTest::keyClick(&widget, kKeys[below(std::size(kKeys), dice)]);
}

void sizeWindow(QWidget& window, Dice& dice) {
  if (below(10, dice) == 0) return window.showMinimized();
  window.showNormal();
  const int width = below(2000, dice);
  // No person can give another size to a window that has but one.
  if (window.minimumSize() != window.maximumSize()) window.resize(width, below(2000, dice));
}

enum class Action { PressButton, Click, DragSlider, TurnWheel, PressKey, SizeWindow };

struct Kind {
  Action action;
  int weight;  ///< how many of 100 actions are of this kind
  const char* words;
  const char* target;  ///< the kind of widgets that it is done to
  void (*perform)(QWidget&, Dice&);
};

constexpr Kind kKinds[] = {
    {Action::PressButton, 32, "presses", "QAbstractButton", click},
    {Action::Click, 14, "clicks", "QWidget", click},
    {Action::DragSlider, 18, "drags", "QSlider", drag},
    {Action::TurnWheel, 9, "turns the wheel over", "QSlider", turnWheel},
    {Action::PressKey, 18, "types into", "QWidget", pressKey},
    {Action::SizeWindow, 9, "sizes", "QWidget", sizeWindow},
};

const Kind& drawKind(Dice& dice) {
  const Kind* kind = kKinds;
  for (int left = below(100, dice); left >= kind->weight; ++kind) left -= kind->weight;
  return *kind;
}

/// The main window mostly; null for another that is not open.
QWidget* drawWindow(Dice& dice) {
  const int window = below(40, dice);
  if (window < 32) return Form1->Label6.widget()->window();
  if (window < 39) return Form3.isLoaded() ? Form3->Text1.widget()->window() : nullptr;
  return Form2.isLoaded() ? Form2->Command1.widget()->window() : nullptr;
}

/// What is there for that kind of action, null where there is nothing.
QWidget* drawTarget(const Kind& kind, Dice& dice) {
  if (kind.action == Action::PressKey) return QApplication::focusWidget();
  QWidget* window = drawWindow(dice);
  if (window == nullptr || kind.action == Action::SizeWindow) return window;
  auto widgets = window->findChildren<QWidget*>();
  widgets.removeIf([&](const QWidget* widget) { return !widget->inherits(kind.target); });
  if (widgets.isEmpty() || window->isMinimized()) return nullptr;
  return widgets[below(static_cast<int>(widgets.size()), dice)];
}

void perform(Number number, const std::string& when) {
  Dice dice(number);
  const Kind& kind = drawKind(dice);
  QWidget* target = drawTarget(kind, dice);
  if (target == nullptr || !target->isVisible() || !target->isEnabled()) return;
  trail.push_back(when + " " + kind.words + " " + target->window()->objectName().toStdString() + " " +
                  target->objectName().toStdString());
  nameToAnswer = kNames[below(std::size(kNames), dice)];
  kind.perform(*target, dice);
  EXPECT_EQ(support::outOfStep(), "");
}

/// Does it with coming events: outside of drags, of dialogs and of waits for a tool.
void performSoon(Number number) {
  const auto due = [number] {
    if (mouseIsDown || QApplication::activeModalWidget() != nullptr || support::isHeldBack())
      performSoon(number);
    else
      perform(number, "  in the middle");
  };
  QMetaObject::invokeMethod(qApp, due, Qt::QueuedConnection);
}

void answerDialog() {
  QFileDialog* dialog = support::openDialog();
  if (dialog == nullptr || support::isHeldBack()) return;
  trail.push_back("  answers <" + nameToAnswer.toStdString() + ">");
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
  const int steps = arguments.size() > 1 ? std::stoi(arguments[1]) : 3000;
  const int seed = arguments.size() > 2 ? std::stoi(arguments[2]) : 1;
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

  Dice numbers(static_cast<Number>(seed));
  bool wasSaving = false;
  for (int step = 1; step <= steps && !HasFailure(); ++step) {
    if (below(4, numbers) == 0) performSoon(numbers());
    perform(numbers(), std::to_string(step));
    const Number inRender = numbers();
    if (!std::exchange(wasSaving, Form2.isLoaded()) && Form2.isLoaded())
      Form2->Timer1.onTick = [inRender](int) {
        performSoon(inRender);
        Form2->Timer1_Timer();
      };
    forms::Application::doEvents();
    EXPECT_TRUE(support::waitFor([&] { return atRest() == before; })) << atRest() << " instead of " << before;
  }
  const auto stand = [] {
    return !Form1->Timer3.enabled() && !(Form2.isLoaded() && Form2->Timer1.enabled());
  };
  EXPECT_TRUE(support::waitFor(stand)) << "a timer runs on";
  std::cout << steps << " steps, seed " << seed << ", " << trail.size() << " actions\n";
  if (!HasFailure()) return;
  for (std::size_t i = trail.size() - std::min<std::size_t>(trail.size(), 30); i < trail.size(); ++i)
    std::cout << trail[i] << "\n";
}

}  // namespace
