// A user who does anything at all with the real windows, and what has to hold after each step.
// Usage: random_user [STEPS [SEED]]. A seed stands for the same actions each time.
#include <QWheelEvent>
#include <iostream>
#include <random>

#include "support/session.h"

namespace {

enum class Action { PressButton, Click, DragSlider, TurnWheel, PressKey, MoveMouse, SizeWindow };

/// What the user does once.
struct Deed {
  Action action;
  int window, widget;  ///< which of those that there are
  int x, y;            ///< a place on the widget, or the window's new size
  int manner;          ///< 0 to 15
  Qt::Key key;
  const char* name;  ///< for a file dialog that opens
};

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

void click(QWidget& widget, const QPoint& place, const Deed& /*deed*/) {
  QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
}

void drag(QWidget& widget, const QPoint& place, const Deed& deed) {
  mouseIsDown = true;
  QTest::mousePress(&widget, Qt::LeftButton, {}, deed.manner < 8 ? widget.rect().center() : place);
  if (deed.manner % 4 == 0) forms::Application::doEvents();
  QTest::mouseMove(&widget, place);
  QTest::mouseRelease(&widget, Qt::LeftButton, {}, place);
  mouseIsDown = false;
}

void turnWheel(QWidget& widget, const QPoint& place, const Deed& deed) {
  const QPoint turned(0, deed.manner * 40 - 300);
  QWheelEvent event(place, widget.mapToGlobal(place), {}, turned, {}, {}, {}, false);
  QApplication::sendEvent(&widget, &event);
}

void pressKey(QWidget& widget, const QPoint& /*place*/, const Deed& deed) {
  QTest::keyClick(&widget, deed.key);
}

void moveMouse(QWidget& widget, const QPoint& place, const Deed& /*deed*/) {
  QMouseEvent event(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, {}, {});
  QApplication::sendEvent(&widget, &event);
}

void sizeWindow(QWidget& window, const QPoint& /*place*/, const Deed& deed) {
  if (deed.manner == 0) return window.showMinimized();
  if (deed.manner > 4) window.showNormal();
  if (deed.manner < 10) return;
  window.setMinimumSize(0, 0);
  window.resize(deed.x, deed.y);
}

struct Kind {
  Action action;
  int weight;  ///< how many of 33 actions are of this kind
  const char* words;
  const char* target;  ///< the kind of widgets that it is done to
  void (*perform)(QWidget&, const QPoint&, const Deed&);
};

/// In the order of the actions.
constexpr Kind kKinds[] = {
    {Action::PressButton, 10, "presses", "QAbstractButton", click},
    {Action::Click, 4, "clicks", "QWidget", click},
    {Action::DragSlider, 6, "drags", "QSlider", drag},
    {Action::TurnWheel, 3, "turns the wheel over", "QSlider", turnWheel},
    {Action::PressKey, 6, "types into", "QWidget", pressKey},
    {Action::MoveMouse, 2, "moves the mouse over", "QWidget", moveMouse},
    {Action::SizeWindow, 2, "sizes", "QWidget", sizeWindow},
};

const Kind& kindOf(const Deed& deed) {
  return kKinds[static_cast<int>(deed.action)];
}

Deed drawDeed(std::mt19937& random) {
  const auto below = [&random](std::size_t limit) { return static_cast<int>(random() % limit); };
  const Kind* kind = kKinds;
  for (int left = below(33); left >= kind->weight; ++kind) left -= kind->weight;
  return {kind->action,
          below(40),
          below(1000000),
          below(2000),
          below(2000),
          below(16),
          kKeys[below(std::size(kKeys))],
          kNames[below(std::size(kNames))]};
}

/// The main window mostly; null for another that is not open.
QWidget* windowOf(const Deed& deed) {
  if (deed.window < 32) return Form1->Label6.widget()->window();
  if (deed.window < 39) return Form3.isLoaded() ? Form3->Text1.widget()->window() : nullptr;
  return Form2.isLoaded() ? Form2->Command1.widget()->window() : nullptr;
}

/// What the deed is done to, null where it cannot be done.
QWidget* targetOf(const Deed& deed) {
  if (deed.action == Action::PressKey) return QApplication::focusWidget();
  QWidget* window = windowOf(deed);
  if (window == nullptr || deed.action == Action::SizeWindow) return window;
  auto widgets = window->findChildren<QWidget*>();
  widgets.removeIf([&](const QWidget* widget) { return !widget->inherits(kindOf(deed).target); });
  return widgets.isEmpty() || window->isMinimized() ? nullptr : widgets[deed.widget % widgets.size()];
}

void perform(const Deed& deed, const std::string& when) {
  QWidget* target = targetOf(deed);
  if (target == nullptr || !target->isVisible() || !target->isEnabled()) return;
  const QPoint place(deed.x % std::max(1, target->width()), deed.y % std::max(1, target->height()));
  std::ostringstream words;
  words << when << " " << kindOf(deed).words << " " << target->window()->objectName().toStdString() << " "
        << target->objectName().toStdString() << " (" << deed.x << ", " << deed.y << ", key " << deed.key
        << ", manner " << deed.manner << ")";
  trail.push_back(words.str());
  nameToAnswer = deed.name;
  kindOf(deed).perform(*target, place, deed);
  EXPECT_EQ(support::outOfStep(), "");
}

/// Does it with coming events: outside of drags, of dialogs and of waits for a tool.
void performSoon(const Deed& deed) {
  const auto due = [deed] {
    if (mouseIsDown || QApplication::activeModalWidget() != nullptr || support::isHeldBack())
      performSoon(deed);
    else
      perform(deed, "  in the middle");
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
  std::cout << steps << " steps, seed " << seed << std::endl;
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

  std::mt19937 random(static_cast<unsigned>(seed));
  bool wasSaving = false;
  for (int step = 1; step <= steps && !HasFailure(); ++step) {
    const Deed deed = drawDeed(random);
    const Deed meanwhile = drawDeed(random);
    const Deed inRender = drawDeed(random);
    if (random() % 4 == 0) performSoon(meanwhile);
    perform(deed, std::to_string(step));
    if (!std::exchange(wasSaving, Form2.isLoaded()) && Form2.isLoaded())
      Form2->Timer1.onTick = [inRender](int) {
        performSoon(inRender);
        Form2->Timer1_Timer();
      };
    forms::Application::doEvents();
    EXPECT_TRUE(support::waitFor([&] { return atRest() == before; })) << atRest() << " instead of " << before;
    if (!HasFailure()) continue;
    std::cout << "seed " << seed << ", step " << step << ":\n";
    for (std::size_t i = trail.size() - std::min<std::size_t>(trail.size(), 20); i < trail.size(); ++i)
      std::cout << trail[i] << "\n";
  }
  const auto stand = [] {
    return !Form1->Timer3.enabled() && !(Form2.isLoaded() && Form2->Timer1.enabled());
  };
  EXPECT_TRUE(support::waitFor(stand)) << "a timer runs on";
}

}  // namespace
