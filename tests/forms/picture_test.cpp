#include <QImage>
#include <QScreen>
#include <QSlider>

#include "support/session.h"

namespace {

/// What the eye gets of the windows.
class Picture : public support::Session {
 protected:
  /// The window as it is painted by now.
  static QImage shown(const QWidget& window) {
    forms::Application::doEvents();
    return window.screen()->grabWindow(window.winId()).toImage();
  }
  static QRect placeOf(const forms::Control& control) {
    const QWidget* widget = control.widget();
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
  }
  /// What `act` shows below a label's text leaves each pixel of the text as it was.
  static void expectTextOnTop(const forms::Control& label, const std::function<void()>& act) {
    const QImage before = shown(*windowOf(label)).copy(placeOf(label));
    act();
    const QImage after = shown(*windowOf(label)).copy(placeOf(label));
    EXPECT_NE(before, after) << "nothing is shown there";
    const QRgb ink = QColor(label.foreColor()).rgb();  // Grey, so that the order of its parts is no matter.
    for (int y = 0; y < before.height(); ++y)
      for (int x = 0; x < before.width(); ++x)
        EXPECT_TRUE(before.pixel(x, y) != ink || after.pixel(x, y) == ink) << x << ", " << y;
  }
};

TEST_F(Picture, ShowsTheScaleAcrossTheBarOfTheFirstBandAndTheMarkerBelowTheNumber) {
  Form1->Slider1(0).setValue(1);  // A bar that was never moved crosses both.
  expectTextOnTop(Form1->Label2(0), [] { Form1->Slider1(0).setValue(-12); });
  expectTextOnTop(Form1->Label2(1), [] { Form1->Slider1(0).setValue(12); });
  expectTextOnTop(Form1->Label9(7), [] { Form1->Slider1(7).onMouseMove(7); });
}

TEST_F(Picture, ShowsABarInItsColour) {
  Form1->Slider1(3).setValue(-7);
  const QPoint onBar = placeOf(Form1->Slider1(3)).center() - QPoint(14, 20);
  EXPECT_EQ(shown(*windowOf(Form1->Label6)).pixelColor(onBar).name(), "#ffff80");
}

TEST_F(Picture, FillsNoPartOfAGroove) {
  const QRect middle = placeOf(Form1->Slider2).adjusted(90, 0, -90, 0);
  Form1->Slider2.setValue(-10);
  const QImage before = shown(*windowOf(Form1->Label6)).copy(middle);
  Form1->Slider2.setValue(10);
  EXPECT_EQ(before, shown(*windowOf(Form1->Label6)).copy(middle));
}

TEST_F(Picture, ShowsALineOverALabelWithoutText) {
  const auto* band = Form1->Picture1(2).widget()->findChild<QWidget*>("Label5");
  const QPoint end = band->mapTo(band->window(), band->rect().bottomRight());
  EXPECT_EQ(shown(*band->window()).pixelColor(end).name(), "#404040");
}

TEST_F(Picture, MarksTheFocusOnAllSides) {
  openSource(support::writeText(folder, "a.wav", ""));
  Form3->show(&*Form1);
  for (QWidget* window : {windowOf(Form1->Label6), windowOf(Form3->Text1)}) {
    window->activateWindow();
    for (QWidget* widget : window->findChildren<QWidget*>()) {
      if (!(widget->focusPolicy() & Qt::StrongFocus) || !widget->isVisible()) continue;
      const QRect extent(widget->mapTo(window, QPoint()), widget->size());
      widget->clearFocus();
      const QImage before = shown(*window).copy(extent);
      widget->setFocus(Qt::TabFocusReason);
      const QImage after = shown(*window).copy(extent);
      QList<int> rows(after.height());
      QList<int> columns(after.width());
      // A slider shows it by its whole thumb, in several shades.
      const bool isSlider = qobject_cast<QSlider*>(widget) != nullptr;
      for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x) {
          const bool isNew = after.pixel(x, y) != before.pixel(x, y);
          const bool isMark = isNew && (isSlider || after.pixelColor(x, y).name() == "#104e9e");
          rows[y] += isMark;
          columns[x] += isMark;
        }
      const int least = std::min(after.width(), after.height()) / 4;
      for (const QList<int>& lines : {rows, columns})
        EXPECT_GE(std::ranges::count_if(lines, [least](int pixels) { return pixels > least; }), 2)
            << "sides of " << widget->objectName().toStdString();
    }
  }
}

}  // namespace
