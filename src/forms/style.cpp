#include "forms/style.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionSlider>

namespace forms {
namespace {

constexpr QRgb kFace = 0xFFD8D8D8;
/// Dark enough to stand out from each ground that it lies on, greys and white, by at least 3 to 1.
constexpr QRgb kFocus = 0xFF104E9E;

QPalette lightPalette() {
  QPalette palette{QColor(kFace)};
  palette.setColor(QPalette::Base, Qt::white);  // Qt would paint a disabled box grey.
  palette.setColor(QPalette::Highlight, QColor(kFocus));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(0xFFFFE1));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    palette.setColor(role, Qt::black);
    palette.setColor(QPalette::Disabled, role, QColor(0x707070));
  }
  return palette;
}

/// No part of a slider's groove is filled: colour belongs to the program's bars beside it. The slider that
/// has the focus, one of many, shows it by its whole thumb.
class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStyleFactory::create("Fusion")), plain_(lightPalette()), focus_(plain_) {
    focus_.setColor(QPalette::Button, QColor(kFocus));
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_Slider || slider == nullptr)
      return QProxyStyle::drawComplexControl(control, option, painter, widget);
    QStyleOptionSlider part = *slider;
    part.palette = plain_;
    part.state &= ~State_HasFocus;
    // Fusion fills the groove up to the thumb.
    part.sliderPosition = slider->minimum;
    part.subControls = SC_SliderGroove;
    QProxyStyle::drawComplexControl(control, &part, painter, widget);
    // Its ticks take the colour of whatever it drew last, where it has just made its picture of the groove.
    part.subControls = slider->subControls & SC_SliderTickmarks;
    QProxyStyle::drawComplexControl(control, &part, painter, widget);
    part = *slider;
    part.subControls = SC_SliderHandle;
    part.palette = slider->state & State_HasFocus ? focus_ : plain_;
    QProxyStyle::drawComplexControl(control, &part, painter, widget);
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const bool isMark = element == PE_FrameFocusRect;
    if (!isMark) QProxyStyle::drawPrimitive(element, option, painter, widget);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    // A box for text has no other sign of the focus, once nothing in it is selected.
    const bool isBox =
        element == PE_Frame || (element == PE_PanelLineEdit && frame != nullptr && frame->lineWidth == 0);
    // The neighbours of an option button cover its first and last row of pixels.
    const QRect extent =
        isMark && widget != nullptr ? option->rect & widget->rect().adjusted(0, 1, 0, -1) : option->rect;
    if (isMark || (isBox && option->state & State_HasFocus)) drawOutline(*painter, extent, QColor(kFocus));
    // Fusion only turns the edge from grey to blue, and of two buttons in a row one hides the other's edge.
    if (element == PE_PanelButtonCommand && option->state & State_HasFocus)
      drawOutline(*painter, option->rect.adjusted(1, 1, -1, -1), QColor(kFocus));
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    // So that a number stands nearer to its own circle than to the next one.
    if (metric == PM_RadioButtonLabelSpacing || metric == PM_CheckBoxLabelSpacing) return 4;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }

  SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   const QPoint& place, const QWidget* widget) const override {
    const SubControl hit = QProxyStyle::hitTestComplexControl(control, option, place, widget);
    // The groove itself is a few pixels thin: the whole thickness of the slider counts.
    return control == CC_Slider && hit == SC_None ? SC_SliderGroove : hit;
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    // Each frame of an animation would wake an otherwise idle process.
    if (hint == SH_Widget_Animation_Duration) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

 private:
  // Fusion keeps pictures of the parts of sliders that it has drawn, by palette object: each slider's own
  // palette, though equal to the others, would have it draw all parts anew.
  QPalette plain_;
  QPalette focus_;
};

}  // namespace

QColor toQt(Color color) {
  switch (color) {
    case kButtonFace:
      return QColor(kFace);
    case kButtonText:
    case kWindowText:
      return Qt::black;
    case kWindowBackground:
      return Qt::white;
    default:
      return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                    static_cast<int>(color >> 16 & 0xFF));
  }
}

QFont fontOf(double points, bool bold) {
  // Where it is missing, fontconfig names a font of the same widths, as Liberation Sans. A list of names here
  // would be searched name by name.
  QFont font("Arial");
  // In pixels: how many a point has is the desktop's choice, and the layout's are fixed.
  font.setPixelSize(qRound(points * 96 / 72));
  font.setStyleHint(QFont::SansSerif);
  font.setBold(bold);
  return font;
}

QFont narrowed(QFont font, const QString& text, int width) {
  if (font.stretch() != QFont::AnyStretch) font.setStretch(QFont::AnyStretch);
  // Hinted letters do not shrink in proportion: a narrower font can still be too wide.
  int stretch = QFont::Unstretched;
  while (QFontMetrics(font).horizontalAdvance(text) > width && stretch > QFont::UltraCondensed)
    font.setStretch(stretch -= 5);
  return font;
}

void drawOutline(QPainter& painter, const QRect& extent, const QColor& color) {
  const QRect rows[] = {{extent.topLeft(), QSize(extent.width(), 1)},
                        {extent.bottomLeft(), QSize(extent.width(), 1)},
                        {extent.topLeft(), QSize(1, extent.height())},
                        {extent.topRight(), QSize(1, extent.height())}};
  for (const QRect& row : rows) painter.fillRect(row, color);
}

void applyStyle() {
  QApplication::setStyle(new Style);
  QApplication::setPalette(lightPalette());
  QApplication::setFont(fontOf(Properties{}.fontSize, false));
}

}  // namespace forms
