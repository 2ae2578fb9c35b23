#include "forms/label.h"

#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPalette>
#include <cmath>
#include <utility>

#include "forms/style.h"
#include "forms/surface.h"

namespace forms {
namespace {

/// By alignment: what Qt calls it, and the share of a change in width that goes to the left.
constexpr Qt::AlignmentFlag kFlags[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
constexpr double kLeftShares[] = {0, 1, 0.5};

/// Its ground hides no line of its container: those that cross it are painted again, behind its text.
class LabelWidget : public QLabel {
 public:
  /// Makes the text as narrow as it has to be before it is painted next. Measuring takes as long as all else
  /// of a change, and most captions of a sweep are never seen.
  void fitLater() { toFit_ = true; }

 protected:
  void paintEvent(QPaintEvent* event) override {
    // The widths are made for Arial: where neither that nor a font like it is installed, most are wider.
    if (std::exchange(toFit_, false)) setFont(narrowed(font(), text(), width()));
    paintLines(event->rect());
    QLabel::paintEvent(event);
  }

 private:
  void paintLines(const QRect& extent) {
    QPainter painter(this);
    painter.translate(-pos());
    static_cast<const Surface*>(parentWidget())->paintLines(painter, extent.translated(pos()));
  }

  bool toFit_ = false;
};

QLabel* makeLabel() {
  auto* label = new LabelWidget;
  label->setTextFormat(Qt::PlainText);
  label->setMinimumSize(0, 0);
  return label;
}

class Outline : public QWidget {
 public:
  Outline() { setAttribute(Qt::WA_TransparentForMouseEvents); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    drawOutline(painter, rect(), Qt::black);
  }
};

}  // namespace

Label::Label(FormWindow& form, const ControlData& data)
    : Control(form, data, makeLabel()), autoSize_(data.look.autoSize), elided_(data.look.elided) {
  container().addLabel(widget());
  setAlignment(data.look.alignment);
  setTransparent(data.look.transparent);
  setCaption(data.text);
}

void Label::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  widget()->setAccessibleName(toQt(caption));
  refit();
}

void Label::setAlignment(Alignment alignment) {
  alignment_ = alignment;
  static_cast<QLabel*>(widget())->setAlignment(kFlags[static_cast<int>(alignment)] | Qt::AlignVCenter);
}

void Label::setAutoSize(bool autoSize) {
  if (autoSize_ == autoSize) return;
  autoSize_ = autoSize;
  if (autoSize_) fitToText();
}

void Label::setTransparent(bool transparent) {
  widget()->setAutoFillBackground(!transparent);
}

void Label::refit() {
  auto* label = static_cast<LabelWidget*>(widget());
  const QString text = toQt(caption_);
  if (!autoSize_ && !elided_) label->fitLater();
  label->setText(elided_ ? label->fontMetrics().elidedText(text, Qt::ElideMiddle, label->width()) : text);
  if (autoSize_) fitToText();
}

void Label::fitToText() {
  const QFontMetricsF metrics(widget()->font());
  const double unit = container().unitsPerPixel();
  const double needed = std::ceil(metrics.horizontalAdvance(toQt(caption_))) * unit;
  const double shift = (width() - needed) * kLeftShares[static_cast<int>(alignment_)];
  place(left() + shift, top(), needed, std::ceil(metrics.height()) * unit);
}

Shape::Shape(FormWindow& form, const ControlData& data) : Control(form, data, new Outline) {}

}  // namespace forms
