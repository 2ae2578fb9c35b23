// A user who does anything at all with the real windows, and what has to hold after each step.
// Usage: random_user [STEPS [SEED]]. A seed stands for the same actions each time.
#include <QWheelEvent>
#include <iostream>
#include <random>

#include "support/in_step.h"
#include "support/session.h"

/// Kinds of actions, each as often as it is to come; see `act`.
constexpr std::string_view kKinds = "bbbbbbbbbbaaaaddddddwwwffffffmmsssp";
using Dice = std::array<int, 6>;  ///< kind, window, widget, two numbers for a place or a key, manner
const char* const kNames[] = {"a", "odd", "odd'\"", "loud", "", "new", "n/x", "..", "\n", "AppPresets.ini"};
constexpr auto kTool = R"(case "$*" in *loud*) cat "$0" "$0"; exit 1;;
*odd*) for t in '\r\n Dur' 'ation: 00:0' '3:21\r\ntime=00:0' '1:00 \377\000ti' 'me=N/A'; do printf "$t"; done;;
*) echo ' Duration: 00:03:21.00,'; for t in 0 1 2; do echo "size=1kB time=00:0$t:00.00 bitrate"; done;; esac)";
static int steps = 3000, seed = 1, step = 0, dragging = 0;
static QString trail, answer;

static QWidget* window(int number) {
  if (number % 40 < 32) return Form1->Label6.widget()->window();
  if (number % 40 < 39) return Form3.isLoaded() ? Form3->Text1.widget()->window() : nullptr;
  return Form2.isLoaded() ? Form2->Command1.widget()->window() : nullptr;
}

/// What lasts from step to step: how much is open, the children (none), the width of the main window.
static std::string atRest() {
  auto count = QApplication::topLevelWidgets().size() - Form2.isLoaded() - Form3.isLoaded();
  count += std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  count += AppState.WindowMinimised != Form1->minimised();
  return std::to_string(count) + "/" + support::readFile("/proc/thread-self/children") + "/" +
         std::to_string(Form1->scaleWidth());
}

static void act(const Dice& dice, const char* when) {
  const char kind = kKinds[static_cast<std::size_t>(dice[0]) % kKinds.size()];
  const char sign = "\1\1\1\2\4\20\21\22\22\23\24\24\25\26\27   X"[dice[3] % 19];
  const char* type = kind == 'b' ? "QAbstractButton" : kind == 'd' || kind == 'w' ? "QSlider" : "QWidget";
  QWidget* widget = kind == 'f' ? QApplication::focusWidget() : window(dice[1]);
  if (widget != nullptr && !widget->isMinimized() && kind != 'f' && kind != 's') {
    auto all = widget->findChildren<QWidget*>() << widget;
    all.removeIf([type](const QWidget* one) { return !one->inherits(type); });
    widget = all.isEmpty() ? nullptr : all[dice[2] % all.size()];
  }
  if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) return;
  trail += "\n  " + QString::number(step) + when + kind + " " + widget->window()->objectName() + ".";
  trail += widget->objectName();
  for (const int number : dice) trail += " " + QString::number(number);
  const int x = dice[3] % 2000, y = dice[4] % 2000, manner = dice[5] / 16 % 16;
  const QPoint at(x % std::max(1, widget->width()), y % std::max(1, widget->height()));
  QWheelEvent wheel(at, widget->mapToGlobal(at), {}, {0, manner * 40 - 300}, {}, {}, {}, false);
  QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, {}, {});
  answer = kNames[static_cast<std::size_t>(dice[5]) % std::size(kNames)];
  if (kind == 'w') QApplication::sendEvent(widget, &wheel);
  if (kind == 'm') QApplication::sendEvent(widget, &move);
  if (kind == 'b' || kind == 'a') QTest::mouseClick(widget, Qt::LeftButton, {}, at);
  if (kind == 'f') QTest::keyClick(widget, Qt::Key(sign < ' ' ? Qt::Key_Escape + sign : sign));
  if (kind == 's' && manner == 0) widget->showMinimized();
  if (kind == 's' && manner > 4) widget->showNormal();
  if (kind == 's' && manner > 9) widget->setMinimumSize(0, 0), widget->resize(x, y);
  dragging = kind == 'd';
  if (dragging) QTest::mousePress(widget, Qt::LeftButton, {}, manner < 8 ? widget->rect().center() : at);
  if (dragging && manner % 4 == 0) forms::Application::doEvents();
  if (dragging) QTest::mouseMove(widget, at), QTest::mouseRelease(widget, Qt::LeftButton, {}, at);
  dragging = 0;
  const auto still = [] { return !Form1->Timer3.enabled() && !(window(39) && Form2->Timer1.enabled()); };
  EXPECT_TRUE(kind != 'p' || manner > 0 || support::waitFor(still)) << "a timer runs on";
  EXPECT_EQ(support::outOfStep(), "");
}

/// Acts with coming events: outside of drags, of dialogs and of waits for a tool.
static void actSoon(const Dice& dice) {
  const auto due = [dice] {
    const bool busy = dragging || QApplication::activeModalWidget() || forms::Application::isDeferring();
    busy ? actSoon(dice) : act(dice, " in the middle ");
  };
  QMetaObject::invokeMethod(qApp, due, Qt::QueuedConnection);
}

struct RandomUser : support::Session, QObject {
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* dialog = event->type() == QEvent::Show ? qobject_cast<QFileDialog*>(object) : nullptr;
    const auto type = [dialog = QPointer(dialog), name = answer] {
      if (!dialog) return;
      trail += "\n  answer " + name;
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(name);
      QTest::keyClick(dialog->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
      if (dialog->isVisible()) dialog->reject();
    };
    const auto served = [=] { forms::Application::runOrDefer(dialog, type); };
    return dialog != nullptr && !QMetaObject::invokeMethod(this, served, Qt::QueuedConnection);
  }
};

TEST_F(RandomUser, LeavesAllInOrder) {
  const auto words = testing::internal::GetArgvs();
  for (std::size_t i = 1; i < words.size(); ++i) (i == 1 ? steps : seed) = std::stoi(words[i]);
  std::cout << steps << " steps, seed " << seed << std::endl;
  for (const char* tool : {"ffprobe", "ffplay", "ffmpeg"}) support::writeScript(folder, tool, kTool);
  for (int i = 0; i < 4; ++i) support::writeText(folder, kNames[i], "sound");
  Form1->Command1(10).onClick = nullptr;  // Would end the process.
  qApp->installEventFilter(this);
  act({}, " ");  // What the first dialog and the first run open stays open.
  std::string before;
  EXPECT_TRUE(support::waitFor([&] { return (before = atRest()).find("//") != std::string::npos; }));
  const void* hooked = nullptr;
  std::mt19937 random(static_cast<unsigned>(seed));
  for (step = 1; step <= steps && !HasFailure(); ++step) {
    std::array<Dice, 3> dice;
    for (Dice& one : dice) std::ranges::generate(one, [&] { return static_cast<int>(random() >> 8); });
    if (dice[0][0] / 256 % 4 == 0) actSoon(dice[1]);
    act(dice[0], " ");
    if (std::exchange(hooked, window(39)) != window(39) && window(39) != nullptr)
      Form2->Timer1.onTick = [dice](int) { actSoon(dice[2]), Form2->Timer1_Timer(); };
    forms::Application::doEvents();
    EXPECT_EQ(support::outOfStep(), "");
    EXPECT_TRUE(support::waitFor([&] { return atRest() == before; })) << atRest() << " instead of " << before;
    if (HasFailure()) std::cout << "seed " << seed << " step " << step << qPrintable(": " + trail.right(800));
  }
}
