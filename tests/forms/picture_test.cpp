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
  /// Those pixels of a picture that `matters` names are as they were.
  static void expectSame(const QImage& before, const QImage& after,
                         const std::function<bool(const QColor&)>& matters) {
    for (int y = 0; y < before.height(); ++y)
      for (int x = 0; x < before.width(); ++x) {
        const QColor color = before.pixelColor(x, y);
        if (matters(color)) {
          EXPECT_EQ(after.pixelColor(x, y).name(), color.name()) << x << ", " << y;
        }
      }
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
        const int underText = i == 0 ? 8 : 0;
        EXPECT_GE(pixels, 60 - underText) << "at " << end << " of range " << range << " in band " << i;
      }
    }
  }
}

TEST_F(Picture, ShowsTheScaleAcrossTheBarOfTheFirstBand) {
  const QWidget& window = *windowOf(Form1->Label6);
  for (const int end : {0, 1}) {
    Form1->Slider1(0).setValue(0);
    const QRect place = placeOf(Form1->Label2(end));
    const QImage plain = shown(window).copy(place);
    Form1->Slider1(0).setValue(end == 0 ? -12 : 12);
    const QImage crossed = shown(window).copy(place);
    EXPECT_NE(plain, crossed) << "no bar at end " << end;
    expectSame(plain, crossed, [](const QColor& color) { return color == Qt::black; });
  }
}

TEST_F(Picture, TheMarkerLeavesTheNumberOfTheBandWhole) {
  const QWidget& window = *windowOf(Form1->Label6);
  const QRect number = placeOf(Form1->Label9(7));
  const QImage before = shown(window).copy(number);
  Form1->Slider1(7).onMouseMove(7);
  const QImage after = shown(window).copy(number);
  EXPECT_NE(before, after) << "no marker";
  expectSame(before, after, [&](const QColor& color) { return color != before.pixelColor(0, 1); });
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

/// How many rows, or columns, of a mark have at least a quarter of its width, or height.
int sides(const std::vector<QPoint>& mark, const QRect& extent, bool rows) {
  std::map<int, int> lengths;
  for (const QPoint& point : mark) ++lengths[rows ? point.y() : point.x()];
  const int least = (rows ? extent.width() : extent.height()) / 4;
  return static_cast<int>(
      std::ranges::count_if(lengths, [least](const auto& side) { return side.second > least; }));
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

TEST_F(Picture, MarksTheFocusOnAllSidesByAContrastOf3To1) {
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
      std::vector<QPoint> mark;
      QRect around;
      for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x)
          if (after.pixel(x, y) != before.pixel(x, y) &&
              (standsOut(after.pixel(x, y), before.pixel(x, y)) || standsOut(after.pixel(x, y), ground)))
            mark.emplace_back(x, y);
      for (const QPoint& point : mark) around |= QRect(point, QSize(1, 1));
      const int thumb = 10;
      const int expected = qobject_cast<QSlider*>(widget) != nullptr ? thumb : widget->height() - 2;
      const std::string name = widget->objectName().toStdString();
      EXPECT_GE(around.height(), expected) << name << " of " << widget->height();
      for (const bool rows : {true, false})
        EXPECT_GE(sides(mark, around, rows), 2) << (rows ? "rows" : "columns") << " of the mark of " << name;
    }
  }
}

}  // namespace
