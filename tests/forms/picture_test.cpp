#include <QImage>
#include <QScreen>
#include <QSlider>
#include <cmath>

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
  /// The bar of a band with one pixel around, from the highest place of the thumb to the lowest.
  static QRect placeOfBar(int band) {
    const QRect slider = placeOf(Form1->Slider1(band));
    return {slider.left() - 7, slider.top(), 5, slider.height()};
  }
};

TEST_F(Picture, ShowsTheBarsOfAllBandsAlikeWhateverLabelsStandThere) {
  const QWidget& window = *windowOf(Form1->Label6);
  for (const int range : {0, 1}) {
    click(Form1->Option2(range));
    shown(window);
    for (const int end : {Form1->Slider1(0).min(), Form1->Slider1(0).max()}) {
      for (int i = 0; i < 32; ++i) Form1->Slider1(i).setValue(end);
      const QImage picture = shown(window);
      const QRgb color = picture.pixel(placeOfBar(31).center().x(), end < 0 ? 60 : 140);
      for (int i = 0; i < 32; ++i) {
        const QImage bar = picture.copy(placeOfBar(i));
        int pixels = 0;
        for (int y = 0; y < bar.height(); ++y) pixels += bar.pixel(2, y) == color;
        EXPECT_EQ(pixels, 60) << "at " << end << " of range " << range << " in band " << i;
      }
    }
  }
}

TEST_F(Picture, ShowsALineOverALabelWithoutText) {
  const auto* band = Form1->Picture1(2).widget()->findChild<QWidget*>("Label5");
  const QPoint end = band->mapTo(band->window(), band->rect().bottomRight());
  EXPECT_EQ(shown(*band->window()).pixelColor(end).name(), "#404040");
}

TEST_F(Picture, FillsNoPartOfAGroove) {
  const QWidget& window = *windowOf(Form1->Label6);
  for (forms::Slider* slider : {&Form1->Slider1(3), &Form1->Slider2, &Form1->Slider3}) {
    const QRect extent = placeOf(*slider);
    const bool lies = extent.width() > extent.height();
    const QSize third(lies ? extent.width() / 3 : 0, lies ? 0 : extent.height() / 3);
    const QRect middle = extent.adjusted(third.width(), third.height(), -third.width(), -third.height());
    slider->setValue(slider->min());
    const QImage behind = shown(window).copy(middle);
    slider->setValue(slider->max());
    EXPECT_EQ(behind, shown(window).copy(middle)) << slider->widget()->objectName().toStdString();
  }
}

/// Of a colour, from 0 to 1, as the Web Content Accessibility Guidelines define it.
double luminance(QRgb color) {
  const auto linear = [](int part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

bool standsOut(QRgb color, QRgb before) {
  const auto [darker, lighter] = std::minmax({luminance(color), luminance(before)});
  return (lighter + 0.05) / (darker + 0.05) >= 3;
}

TEST_F(Picture, MarksTheFocusInFullHeightByAContrastOf3To1) {
  openSource(support::writeText(folder, "a.wav", ""));
  Form3->show(&*Form1);
  for (QWidget* window : {windowOf(Form1->Label6), windowOf(Form3->Text1)}) {
    window->activateWindow();
    for (QWidget* widget : window->findChildren<QWidget*>()) {
      if (!(widget->focusPolicy() & Qt::StrongFocus) || !widget->isVisible()) continue;
      const QRect extent(widget->mapTo(window, QPoint()), widget->size());
      const QRgb ground = widget->parentWidget()->palette().color(QPalette::Window).rgb();
      widget->clearFocus();
      const QImage before = shown(*window).copy(extent);
      widget->setFocus(Qt::TabFocusReason);
      const QImage after = shown(*window).copy(extent);
      QRect mark;
      for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x)
          if (after.pixel(x, y) != before.pixel(x, y) &&
              (standsOut(after.pixel(x, y), before.pixel(x, y)) || standsOut(after.pixel(x, y), ground)))
            mark |= QRect(x, y, 1, 1);
      const int thumb = 10;
      const int expected = qobject_cast<QSlider*>(widget) != nullptr ? thumb : widget->height() - 2;
      EXPECT_GE(mark.height(), expected) << widget->objectName().toStdString() << " of " << widget->height();
    }
  }
}

}  // namespace
