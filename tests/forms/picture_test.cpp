#include <QImage>
#include <QScreen>
#include <cmath>

#include "support/session.h"
#include "windows/colors.h"

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

double luminance(QRgb color) {
  const auto linear = [](int level) {
    const double part = level / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

/// As the guidelines for accessible content (WCAG) measure it: 1 to 21.
double contrast(QRgb one, QRgb other) {
  const double lights[] = {luminance(one) + 0.05, luminance(other) + 0.05};
  return std::max(lights[0], lights[1]) / std::min(lights[0], lights[1]);
}

/// The pixels that differ by a contrast of 3 at least.
QImage marked(const QImage& without, const QImage& with) {
  QImage mark(with.size(), QImage::Format_Grayscale8);
  for (int y = 0; y < mark.height(); ++y)
    for (int x = 0; x < mark.width(); ++x)
      mark.setPixelColor(x, y, contrast(without.pixel(x, y), with.pixel(x, y)) >= 3 ? Qt::white : Qt::black);
  return mark;
}

/// The smallest share that a side of the box around all marked pixels has of them: small where one is
/// clipped.
double smallestSide(const QImage& mark) {
  const auto isMarked = [&mark](int x, int y) { return qGray(mark.pixel(x, y)) > 0; };
  QRect box;
  for (int y = 0; y < mark.height(); ++y)
    for (int x = 0; x < mark.width(); ++x)
      if (isMarked(x, y)) box |= QRect(x, y, 1, 1);
  if (box.width() < 5 || box.height() < 5) return 0;
  double counts[4] = {};
  for (int x = box.left(); x <= box.right(); ++x) {
    counts[0] += isMarked(x, box.top());
    counts[1] += isMarked(x, box.bottom());
  }
  for (int y = box.top(); y <= box.bottom(); ++y) {
    counts[2] += isMarked(box.left(), y);
    counts[3] += isMarked(box.right(), y);
  }
  return std::min(std::min(counts[0], counts[1]) / box.width(),
                  std::min(counts[2], counts[3]) / box.height());
}

TEST_F(Picture, MarksTheControlThatHasTheFocusOnAllSides) {
  Form1->EnableSourceButtons(true);
  Form2->show(&*Form1);
  Form3->show(&*Form1);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    for (QWidget* widget : window->findChildren<QWidget*>()) {
      const bool ownFocus = widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr;
      if (!ownFocus || !widget->isVisible() || !widget->isEnabled()) continue;
      for (const forms::Color ground : {forms::kButtonFace, kLightGrey}) {
        Form1->Text1.setBackColor(ground);
        widget->activateWindow();
        ASSERT_TRUE(support::waitFor([&] { return widget->isActiveWindow(); }));
        widget->setFocus();
        const QRect place(widget->mapTo(window, QPoint()), widget->size());
        const QImage with = window->grab(place).toImage();
        widget->clearFocus();
        EXPECT_GT(smallestSide(marked(window->grab(place).toImage(), with)), 0.6)
            << widget->objectName().toStdString();
      }
    }
  }
}

}  // namespace
