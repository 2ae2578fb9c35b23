// A user who does anything at all with the real windows, and what has to hold after each step.
// Usage: random_user [STEPS [SEED]]. A seed stands for the same actions each time.
#include <QPointer>
#include <QWheelEvent>
#include <iostream>
#include <random>

#include "core/eq_string.h"
#include "support/session.h"

static unsigned steps = 3000, seed = 1, step = 0;
static std::string trail;

extern "C" void __asan_on_error() {  // Called by the sanitizer too.
  std::cout << "In step " << step << " of " << steps << ", seed " << seed << ", the last actions: ..."
            << trail.substr(trail.size() - std::min<std::size_t>(trail.size(), 900)) << std::endl;
}

namespace {

/// Clicks on buttons and on anything, drags and wheel on sliders, keys where the focus is, moves of the
/// mouse, shapes of windows, patience until all is still: each as often as it is to come.
constexpr std::string_view kKinds = "bbbbbbbbbbaaaaddddddwwwffffffmmsssp";
using Dice = std::array<unsigned, 6>;  ///< kind, window, widget, two numbers for a place or a key, manner
/// Characters, and what lies behind Escape.
constexpr std::string_view kKeys = "\1\1\1\2\4\20\21\22\22\23\24\24\25\26\27   X";
const char* const kNames[] = {"a", "odd", "odd'\"", "loud", "", "new", "n/x", "..", "\n", "AppPresets.ini"};
constexpr auto kTool = R"(case "$*" in *loud*) cat "$0" "$0"; exit 1;;
*odd*) for t in '\r\n Dur' 'ation: 00:0' '3:21\r\ntime=00:0' '1:00 \377\000ti' 'me=N/A'; do printf "$t"; done;;
*) echo ' Duration: 00:03:21.00,'; for t in 0 1 2; do echo "size=1kB time=00:0$t:00.00 bitrate"; done;; esac)";
long queued = 0;
bool dragging = false;
const char* answer = "";

QWidget* window(unsigned number) {
  if (number % 40 < 32) return Form1->Label6.widget()->window();
  if (number % 40 < 39) return Form3.isLoaded() ? Form3->Text1.widget()->window() : nullptr;
  return Form2.isLoaded() ? Form2->Command1.widget()->window() : nullptr;
}

/// What holds whenever no handler runs.
void check() {
  const int limit = Form1->Option2(0).value() ? 12 : 6, gain = Form1->Slider2.value();
  AppStateRecord state = AppState;
  for (int i = 0; i < kBands; ++i) {
    const forms::Slider& band = Form1->Slider1(i);
    EXPECT_EQ(std::max({band.max(), -band.min(), std::abs(band.value())}), limit) << "range of " << i;
    // A band that was never moved is at 0; its text has no sign, and its bar is as it was made.
    std::string& text = state.BandGainText[static_cast<std::size_t>(i)];
    if (band.value() != 0 || text != "0") setBandGainText(text, band.value());
    const double bar = Form1->Line4(i).y1() - Form1->Line4(i).y2();
    const bool made = band.value() == 0 && bar == 20 - band.height();
    EXPECT_EQ(made ? 0 : bar, band.value() * 60 / limit) << "bar of " << i;
  }
  EXPECT_EQ(AppState.BandGainText, state.BandGainText);
  // The chain follows each change but that of the low cut, which waits for the next one.
  state.LowCutOn = state.EqString.starts_with(kLowCutFilter);
  state.BandWidth = Form1->Slider3.value();
  if (!state.EqString.empty()) composeChain(state.EqString, state);
  EXPECT_EQ(AppState.EqString, state.EqString);
  std::string shown = Form1->Label4(3).caption() + Form1->Label8(3).caption();
  for (const int i : {5, 6, 1, 2, 3}) shown += Form1->Label7(i).caption();
  const QString gains(
      "Gain:%2%Current Bandwidth Settings: %3 HzGain Settings %2% Of SourceCurrent Bandwidth: %3 Hz");
  const QString options = QString(Form1->Option3(0).value() ? "On" : "Off") +
                          "Indicators: " + (Form1->Check1.value() == 1 ? "On" : "Off");
  EXPECT_EQ(shown, (gains + "EQ Range: +/- %1 dbLow Cut Filter: " + options)
                       .arg(limit)
                       .arg(gain * 20)
                       .arg(state.BandWidth, 3, 10, QChar('0'))
                       .toStdString());
  EXPECT_EQ(Form1->Line10.x1() - Form1->Line10.x2(), gain * 12.5);
  int blue = 0;
  Form1->Label4.each([&](const forms::Label& label) { blue += label.foreColor() == 0xFF0000; });
  EXPECT_LE(blue, 1);
}

/// How much is open or not done between two steps, the children, and the width of the main window.
std::string open() {
  auto count = queued + std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  count += QApplication::topLevelWidgets().size() - Form2.isLoaded() - Form3.isLoaded();
  count += AppState.WindowMinimised != Form1->minimised();
  const std::string children = support::readFile("/proc/thread-self/children");
  return std::to_string(count) + " / " + children + " / " + std::to_string(Form1->scaleWidth());
}

void act(const Dice& dice, const std::string& when) {
  const char kind = kKinds[dice[0] % kKinds.size()], sign = kKeys[dice[3] % kKeys.size()];
  const char* type = kind == 'b' ? "QAbstractButton" : kind == 'd' || kind == 'w' ? "QSlider" : "QWidget";
  QPointer widget(kind == 'f' ? QApplication::focusWidget() : window(dice[1]));
  if (widget && !widget->isMinimized() && kind != 'f' && kind != 's') {
    auto all = widget->findChildren<QWidget*>() << widget;
    all.removeIf([type](const QWidget* one) { return !one->inherits(type); });
    widget = all.isEmpty() ? nullptr : all[dice[2] % static_cast<unsigned>(all.size())];
  }
  if (!widget || !widget->isVisible() || !widget->isEnabled()) return;
  trail += "\n  " + std::to_string(step) + when + kind + " " + widget->window()->objectName().toStdString();
  trail += "." + widget->objectName().toStdString();
  for (const unsigned number : dice) trail += " " + std::to_string(number);
  const int x = static_cast<int>(dice[3] % 2000), y = static_cast<int>(dice[4] % 2000);
  const int manner = static_cast<int>(dice[5] / 16 % 16);
  const QPoint at(x % std::max(1, widget->width()), y % std::max(1, widget->height()));
  QWheelEvent wheel(at, widget->mapToGlobal(at), {}, {0, manner * 40 - 300}, {}, {}, {}, false);
  QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, {}, {});
  answer = kNames[dice[5] % std::size(kNames)];
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
  dragging = false;
  const auto still = [] { return !Form1->Timer3.enabled() && !(window(39) && Form2->Timer1.enabled()); };
  EXPECT_TRUE(kind != 'p' || manner > 0 || support::waitFor(still)) << "a timer runs on";
  check();
}

/// Acts with coming events: outside of drags, of dialogs and of waits for a tool.
void actSoon(const Dice& dice) {
  ++queued;
  const auto due = [dice] {
    --queued;
    const bool busy = dragging || QApplication::activeModalWidget() || forms::Application::holdsBack();
    busy ? actSoon(dice) : act(dice, " in the middle ");
  };
  QMetaObject::invokeMethod(qApp, due, Qt::QueuedConnection);
}

class RandomUser : public support::Session, public QObject {
 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    const QPointer dialog(event->type() == QEvent::Show ? qobject_cast<QFileDialog*>(object) : nullptr);
    const auto type = [dialog, name = answer] {
      trail += std::string("\n  answer ") + name;
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(name);
      QTest::keyClick(dialog->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
      if (dialog && dialog->isVisible()) dialog->reject();
    };
    const auto served = [=] { forms::Application::whenServed(dialog, type); };
    return dialog && !QMetaObject::invokeMethod(this, served, Qt::QueuedConnection);
  }
};

TEST_F(RandomUser, LeavesAllInOrder) {
  std::ifstream arguments("/proc/self/cmdline");
  std::string word;
  for (unsigned* number : {&step, &steps, &seed})
    if (std::getline(arguments, word, '\0') && number != &step)
      *number = static_cast<unsigned>(std::stoul(word));
  std::cout << steps << " steps, seed " << seed << std::endl;
  for (const char* tool : {"ffprobe", "ffplay", "ffmpeg"}) support::writeScript(folder, tool, kTool);
  for (int i = 0; i < 4; ++i) support::writeText(folder, kNames[i], "sound");
  Form1->Command1(10).onClick = nullptr;  // Would end the process.
  qApp->installEventFilter(this);
  act({}, " ");  // What the first dialog and the first run open stays open.
  const std::string before = open();
  const void* hooked = nullptr;
  std::mt19937 random(seed);
  for (step = 1; step <= steps && !HasFailure(); ++step) {
    std::array<Dice, 3> dice;
    for (Dice& one : dice) std::ranges::generate(one, [&] { return static_cast<unsigned>(random() >> 8); });
    if (dice[0][0] / 256 % 4 == 0) actSoon(dice[1]);
    act(dice[0], " ");
    if (std::exchange(hooked, window(39)) != window(39) && window(39) != nullptr)
      Form2->Timer1.onTick = [dice](int) { actSoon(dice[2]), Form2->Timer1_Timer(); };
    forms::Application::doEvents();
    EXPECT_TRUE(support::waitFor([&] { return open() == before; })) << open() << " instead of " << before;
    if (HasFailure()) __asan_on_error();
  }
}

}  // namespace
