// What the main window is measured against: a window of the same size with as many widgets of the same kinds
// and the same texts, made with nothing but the widget toolkit as it stands.

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

namespace {

const char kNumbers[] =
    "1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16|17|18|19|20|21|22|23|24|25|26|27|28|29|30|31|32";
const char kBandNames[] =
    "19hz|20hz|25hz|31.5hz|33hz|40hz|50hz|63hz|75hz|80hz|125hz|160hz|250hz|313hz|400hz|450hz|500hz|630hz|1K|"
    "1.25K|1.6K|2K|2.5K|3.15K|4K|5K|6.3K|8K|10K|12.5K|16K|20K";
const char kButtons[] =
    "Open Source|Preview Audio|Save As|FFmpeg EQ String|Save Preset| EQ String > Clipboard";
const char kReadOuts[] =
    "Preset Settings: 0|EQ Range: +/- 12 db|Low Cut Filter: Off|Indicators: On|Selected Frequency: 0hz|"
    "Current Bandwidth: 001 Hz|Gain Settings 100% Of Source|Selected Frequency Value:  0db";
const char kScales[] =
    "1 Hz |Bandwidth|254 Hz|Decrease [ - ]|< Gain >|[ + ] Increase|Gain:100%|Current Bandwidth Settings: 001 "
    "Hz";

/// Gives `widget` its place in a row, or in rows of `columns`.
void place(QWidget& widget, int i, int columns, int top, QSize size) {
  widget.setGeometry(5 + i % columns * size.width(), top + i / columns * size.height(), size.width(),
                     size.height());
}

/// Makes a widget for each of `texts`, which `|` separates.
template <class Widget>
void putTexts(QWidget& parent, const char* texts, int columns, int top, QSize size) {
  int i = 0;
  for (const QString& text : QString(texts).split('|'))
    place(*new Widget(text, &parent), i++, columns, top, size);
}

void putSliders(QWidget& parent, int count, int top, QSize size, Qt::Orientation orientation) {
  for (int i = 0; i < count; ++i) {
    auto* slider = new QSlider(orientation, &parent);
    slider->setTickPosition(QSlider::TicksAbove);
    slider->setRange(-12, 12);
    place(*slider, i, count, top, size);
  }
}

QWidget& putBox(QWidget& parent, QRect extent) {
  auto* box = new QWidget(&parent);
  box->setAutoFillBackground(true);
  box->setGeometry(extent);
  return *box;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication::setStyle("Fusion");
  const QApplication application(argc, argv);
  QWidget window;
  window.setFixedSize(1170, 361);
  putTexts<QLabel>(window, kNumbers, 32, 3, {30, 12});

  QWidget& bands = putBox(window, {16, 16, 993, 153});
  putTexts<QLabel>(bands, kBandNames, 32, 1, {30, 14});
  putTexts<QLabel>(bands, "+12db|-12db", 1, 30, {25, 17});
  putSliders(bands, 32, 15, {30, 137}, Qt::Vertical);

  QWidget& commands = putBox(window, {16, 176, 993, 89});
  putTexts<QLineEdit>(commands, "<%InputFile%>", 1, 0, {980, 17});
  putTexts<QPushButton>(commands, kButtons, 3, 24, {134, 30});
  putSliders(commands, 2, 32, {480, 33}, Qt::Horizontal);
  putTexts<QLabel>(commands, kScales, 8, 66, {122, 17});

  QWidget& options = putBox(window, {1016, 16, 121, 249});
  putTexts<QLabel>(options, "Presets||EQ Range|Low Cut Filter|Indicators", 1, 0, {110, 17});
  putTexts<QRadioButton>(options, "No Preset|1|2|3|4|5|6", 3, 85, {37, 14});
  putTexts<QRadioButton>(putBox(options, {0, 130, 121, 33}), "+/- 12 db|+/- 6 db", 1, 0, {105, 16});
  putTexts<QRadioButton>(putBox(options, {0, 165, 121, 33}), "Low Cut On|Low Cut Off", 1, 0, {105, 16});
  putTexts<QCheckBox>(options, "Indicator bars", 1, 202, {105, 14});
  putTexts<QPushButton>(options, "Exit", 1, 218, {105, 25});

  putTexts<QLabel>(putBox(window, {16, 272, 1121, 33}), kReadOuts, 8, 8, {138, 17});
  window.show();
  return QApplication::exec();
}
