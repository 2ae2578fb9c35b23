#include "forms/displays.h"

#include <QFrame>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QProgressBar>
#include <QStyleOptionProgressBar>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "forms/style.h"
#include "forms/surface.h"

namespace forms {
namespace {

/// By alignment: what Qt calls it, and the share of a change in width that goes to the left.
constexpr Qt::AlignmentFlag kFlags[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
constexpr double kLeftShares[] = {0, 1, 0.5};

/// Its ground hides no line of its container: those that cross it are painted again, behind its text. Qt must
/// not fill the ground by itself: it would not repaint the label with a line that moves under it.
class LabelWidget : public QLabel {
 public:
  LabelWidget() { setTextFormat(Qt::PlainText); }

  bool hasGround = false;
  /// The text is made as narrow as it has to be when it is painted next. Measuring takes as long as all else
  /// of a change, and most captions of a sweep are never seen.
  bool mustFit = false;

 protected:
  void paintEvent(QPaintEvent* event) override {
    // The widths are made for Arial: where neither that nor a font like it is installed, most are wider.
    if (std::exchange(mustFit, false)) setFont(narrowed(font(), text(), width()));
    QPainter painter(this);
    if (hasGround) painter.fillRect(event->rect(), palette().brush(backgroundRole()));
    painter.translate(-pos());
    static_cast<const Surface*>(parentWidget())->paintLines(painter, event->rect().translated(pos()));
    painter.end();
    QLabel::paintEvent(event);
  }
};

/// Can look empty while its value, which Qt tells a screen reader, is the maximum.
class BarWidget : public QProgressBar {
 public:
  bool looksEmpty = false;

 protected:
  void initStyleOption(QStyleOptionProgressBar* option) const override {
    QProgressBar::initStyleOption(option);
    if (looksEmpty) option->progress = option->minimum;
  }
};

}  // namespace

Label::Label(FormWindow& form, const ControlData& data)
    : Control(form, data, new LabelWidget),
      autoSize_(data.properties.autoSize),
      elided_(data.properties.elided) {
  setAlignment(data.properties.alignment);
  setTransparent(data.properties.transparent);
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
  autoSize_ = autoSize;
  refit();
}

void Label::setTransparent(bool transparent) {
  static_cast<LabelWidget*>(widget())->hasGround = !transparent;
  widget()->update();
}

void Label::refit() {
  auto* label = static_cast<LabelWidget*>(widget());
  const QString text = toQt(caption_);
  label->mustFit = !autoSize_ && !elided_;
  label->setText(elided_ ? label->fontMetrics().elidedText(text, Qt::ElideMiddle, label->width()) : text);
  if (!autoSize_) return;
  const QFontMetricsF metrics(widget()->font());
  const double unit = container().unitsPerPixel();
  const double needed = std::ceil(metrics.horizontalAdvance(toQt(caption_))) * unit;
  const double shift = (width() - needed) * kLeftShares[static_cast<int>(alignment_)];
  place(left() + shift, top(), needed, std::ceil(metrics.height()) * unit);
}

Shape::Shape(FormWindow& form, const ControlData& data) : Control(form, data, new QFrame) {
  static_cast<QFrame*>(widget())->setFrameStyle(QFrame::Box | QFrame::Plain);
  widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
}

PictureBox::PictureBox(FormWindow& form, const ControlData& data)
    : Control(form, data, new Surface(data.properties.border, data.properties.scale)) {}

double PictureBox::scaleWidth() const {
  return static_cast<const Surface*>(widget())->scaleWidth();
}

double PictureBox::scaleHeight() const {
  return static_cast<const Surface*>(widget())->scaleHeight();
}

ProgressBar::ProgressBar(FormWindow& form, const ControlData& data) : Control(form, data, new BarWidget) {
  auto* bar = static_cast<QProgressBar*>(widget());
  bar->setTextVisible(false);
  bar->setValue(0);
}

void ProgressBar::setValue(double value) {
  if (!(value >= 0 && value <= max_)) return;
  auto* bar = static_cast<BarWidget*>(widget());
  bar->looksEmpty = value == 0 && value_ > 0;
  value_ = value;
  bar->setValue(bar->looksEmpty ? bar->maximum() : static_cast<int>(value));
  bar->update();
}

void ProgressBar::setMax(double max) {
  // The widget counts in whole numbers; no source lasts this long.
  if (!(max > 0 && max <= std::numeric_limits<int>::max())) return;
  max_ = max;
  value_ = std::min(value_, max_);
  static_cast<QProgressBar*>(widget())->setMaximum(static_cast<int>(std::ceil(max)));
}

}  // namespace forms
