// What a hand on the window has to wait for: the real windows on a platform without a screen. Painting comes
// after the step and is not part of it. The current folder becomes the program's own.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QWidget>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <new>

#include "core/app_state.h"
#include "core/eq_string.h"
#include "forms/application.h"
#include "platform/program_folder.h"
#include "windows/form1.h"
#include "windows/startup.h"

namespace {

std::size_t allocations = 0;

}  // namespace

// Inlined, they look to GCC 14 like a `free` of what did not come from `malloc`.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++allocations;
  if (void* const memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}

namespace {

/// Times `step` alone; what it has left to be painted is painted between two steps.
template <class Step>
void timeStep(benchmark::State& state, Step step) {
  const auto start = std::chrono::steady_clock::now();
  step();
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  state.SetIterationTime(taken.count());
  forms::Application::doEvents();
}

/// A different position for each band, never 0, within +/- `limit`.
int position(int band, int limit) {
  const int size = band % limit + 1;
  return band % 2 == 0 ? size : -size;
}

void composition(benchmark::State& state) {
  AppStateRecord record;
  record.BandWidth = 1;
  for (int i = 0; i < kBands; ++i) record.BandGainText[static_cast<std::size_t>(i)] = bandGainText(0);
  composeChain(record);
  const std::size_t before = allocations;
  int band = 0;
  for (auto _ : state) {
    record.BandGainText[static_cast<std::size_t>(band)] = bandGainText(position(band, 12));
    composeChain(record);
    benchmark::DoNotOptimize(record.EqString.data());
    band = (band + 1) % kBands;
    record.BandWidth = 1 + (record.BandWidth + 1) % 254;
  }
  state.counters["allocations"] = static_cast<double>(allocations - before);
}
BENCHMARK(composition)->Unit(benchmark::kMicrosecond);

void bandwidthStep(benchmark::State& state) {
  forms::Slider& slider = Form1->Slider3;
  int direction = 1;
  for (auto _ : state) {
    if (slider.value() == slider.max()) direction = -1;
    if (slider.value() == slider.min()) direction = 1;
    QKeyEvent press(QEvent::KeyPress, direction > 0 ? Qt::Key_Right : Qt::Key_Left, Qt::NoModifier);
    const int wanted = AppState.BandWidth + direction;
    timeStep(state, [&] { QCoreApplication::sendEvent(slider.widget(), &press); });
    if (AppState.BandWidth != wanted) state.SkipWithError("the key did not move the slider");
  }
}
BENCHMARK(bandwidthStep)->Iterations(2000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Sends `widget` a mouse event at `place`, with the left button held unless it is a release.
void sendMouse(QWidget* widget, QEvent::Type type, QPointF place) {
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, place, widget->mapToGlobal(place), button, held, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &event);
}

void dragStep(benchmark::State& state) {
  forms::Slider& slider = Form1->Slider1(kBands / 2);
  QWidget* widget = slider.widget();
  const QPointF middle = widget->rect().center();
  const double travel = widget->height() - widget->style()->pixelMetric(QStyle::PM_SliderLength);
  slider.setValue(0);
  sendMouse(widget, QEvent::MouseButtonPress, middle);
  int direction = 1;
  for (auto _ : state) {
    if (slider.value() == slider.max()) direction = -1;
    if (slider.value() == slider.min()) direction = 1;
    const int wanted = slider.value() + direction;
    const QPointF place = middle + QPointF(0, wanted * travel / (slider.max() - slider.min()));
    timeStep(state, [&] { sendMouse(widget, QEvent::MouseMove, place); });
    if (slider.value() != wanted) state.SkipWithError("the thumb did not follow");
  }
  sendMouse(widget, QEvent::MouseButtonRelease, middle);
}
BENCHMARK(dragStep)->Iterations(2000)->UseManualTime()->Unit(benchmark::kMillisecond);

void sweepTick(benchmark::State& state) {
  auto& sliders = Form1->Slider1;
  for (auto _ : state) {
    sliders.each([](forms::Slider& slider) {
      if (slider.value() == 0) slider.setValue(slider.index() % 2 == 0 ? 12 : -12);
    });
    // Before its last tick a sweep leaves the timer alone, which would otherwise tick here, too.
    AppState.SweepTicks = 0;
    const int before = sliders(kBands - 1).value();
    timeStep(state, [] { Form1->Timer3_Timer(); });
    if (sliders(kBands - 1).value() != before + 1) state.SkipWithError("the bands did not move");
  }
}
BENCHMARK(sweepTick)->Iterations(240)->UseManualTime()->Unit(benchmark::kMillisecond);

void writePresets(const std::string& path) {
  std::ofstream file(path, std::ios::binary);
  for (const int preset : {1, 2}) {
    file << "[Preset#" << preset << "]\r\nFrequency=";
    for (int i = 0; i < kBands; ++i) file << position(i + preset, preset == 1 ? 12 : 6) << ":";
    file << (preset == 1 ? "LowCut=0:Range=0:BandWidth=254:AudioGain=160\r\n"
                         : "LowCut=1:Range=1:BandWidth=002:AudioGain=-40\r\n");
  }
}

void click(QWidget* widget) {
  const QPointF place(8, widget->height() / 2.0);
  sendMouse(widget, QEvent::MouseButtonPress, place);
  sendMouse(widget, QEvent::MouseButtonRelease, place);
}

void preset(benchmark::State& state) {
  writePresets("AppPresets.ini");
  int chosen = 1;
  for (auto _ : state) {
    timeStep(state, [&] { click(Form1->Option1(chosen).widget()); });
    const bool first = chosen == 1;
    const bool loaded = AppState.BandWidth == (first ? 254 : 2) &&
                        Form1->Slider2.value() == (first ? 8 : -2) && AppState.RangeIndex == chosen - 1 &&
                        AppState.LowCutOn == first &&
                        Form1->Slider1(kBands - 1).value() == position(kBands - 1 + chosen, first ? 12 : 6);
    if (!loaded) state.SkipWithError("the preset did not arrive");
    chosen = 3 - chosen;
  }
}
BENCHMARK(preset)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  platform::setProgramFolder(std::filesystem::current_path().string());
  const forms::Application application;
  Main();
  forms::Application::doEvents();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
