// What the main window is measured against: a window of the same size with as many widgets of the same kinds,
// made with nothing but the widget toolkit.

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

namespace {

/// Makes `count` widgets in rows of `columns` from `top` on.
template <class Widget, class... Arguments>
void put(QWidget& parent, int count, int columns, int top, QSize size, Arguments... arguments) {
  for (int i = 0; i < count; ++i) {
    auto* widget = new Widget(arguments..., &parent);
    widget->setGeometry(5 + i % columns * size.width(), top + i / columns * size.height(), size.width(),
                        size.height());
  }
}

QWidget& putBox(QWidget& parent, QRect place) {
  auto* box = new QWidget(&parent);
  box->setAutoFillBackground(true);
  box->setGeometry(place);
  return *box;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication::setStyle("Fusion");
  const QApplication application(argc, argv);
  QWidget window;
  window.setFixedSize(1170, 361);
  put<QLabel>(window, 34, 34, 3, {30, 12}, "12");

  QWidget& bands = putBox(window, {16, 16, 993, 153});
  put<QLabel>(bands, 34, 34, 1, {29, 14}, "1.25K");
  put<QSlider>(bands, 32, 32, 15, {30, 137}, Qt::Vertical);

  QWidget& commands = putBox(window, {16, 176, 993, 89});
  put<QLineEdit>(commands, 1, 1, 0, {980, 17});
  put<QPushButton>(commands, 6, 3, 24, {134, 30}, "Open Source");
  put<QSlider>(commands, 2, 2, 32, {260, 33}, Qt::Horizontal);
  put<QLabel>(commands, 8, 8, 66, {110, 17}, "Decrease [ - ]");

  QWidget& options = putBox(window, {1016, 16, 121, 249});
  put<QLabel>(options, 5, 1, 0, {110, 17}, "Low Cut Filter");
  put<QRadioButton>(options, 7, 3, 85, {37, 14}, "1");
  put<QRadioButton>(putBox(options, {0, 130, 121, 33}), 2, 1, 0, {105, 16}, "+/- 12 db");
  put<QRadioButton>(putBox(options, {0, 165, 121, 33}), 2, 1, 0, {105, 16}, "Low Cut On");
  put<QCheckBox>(options, 1, 1, 202, {105, 14}, "Indicator bars");
  put<QPushButton>(options, 1, 1, 218, {105, 25}, "Exit");

  put<QLabel>(putBox(window, {16, 272, 1121, 33}), 8, 8, 8, {138, 17}, "Current Bandwidth: 001 Hz");
  putBox(window, {16, 448, 65, 161});
  window.show();
  return QApplication::exec();
}
