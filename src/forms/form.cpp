#include "forms/form.h"

#include <QCoreApplication>
#include <QIcon>
#include <algorithm>
#include <string_view>

#include "forms/application.h"
#include "forms/controls.h"
#include "forms/form_surface.h"
#include "forms/look.h"
#include "forms/make_control.h"

namespace forms {

Form::Form(const FormData& data)
    : data_(data),
      window_(std::make_unique<FormSurface>(*this, data)),
      outerWidth_(window_->outerSize().width() * kTwipsPerPixel),
      outerHeight_(window_->outerSize().height() * kTwipsPerPixel) {
  setCaption(data.caption);
  if (data.icon != nullptr) setIcon(Icon(data.icon));
  for (const ControlData& row : data.controls) put(row.name, row.index, makeControl(*this, row));
  for (const LineData& row : data.lines) put(row.name, row.index, std::make_unique<Line>(this, row));
  for (const TimerData& row : data.timers) put(row.name, kSingle, std::make_unique<Timer>(this, row));
  if (data.commonDialog != nullptr) put(data.commonDialog, kSingle, std::make_unique<CommonDialog>(this));
  makeTabOrder(data.controls);
}

Form::~Form() {
  items_.clear();
  window_.reset();
}

void Form::put(const char* name, int index, std::unique_ptr<Item> item) {
  Items& items = items_[name];
  const auto place = static_cast<std::size_t>(std::max(index, 0));
  if (items.size() <= place) items.resize(place + 1);
  items[place] = std::move(item);
}

void Form::makeTabOrder(std::span<const ControlData> controls) {
  std::vector<const ControlData*> rows;
  for (const ControlData& row : controls)
    if (row.tab >= 0) rows.push_back(&row);
  std::ranges::sort(rows, {}, &ControlData::tab);
  QWidget* previous = nullptr;
  for (const ControlData* row : rows) {
    const auto place = static_cast<std::size_t>(std::max(row->index, 0));
    QWidget* next = static_cast<Control&>(*items(row->name)[place]).widget();
    if (next->focusPolicy() == Qt::NoFocus) continue;
    if (previous != nullptr) QWidget::setTabOrder(previous, next);
    previous = next;
  }
}

void Form::loadMember(const char* name, int index) {
  for (const ControlData& row : data_.controls) {
    if (row.index != 0 || std::string_view(row.name) != name) continue;
    ControlData member = row;
    member.index = index;
    member.look.hidden = true;
    Items& made = items(name);
    put(name, index, makeControl(*this, member));
    // The keyboard finds the new member right behind the one before it.
    for (auto before = static_cast<std::size_t>(index); before-- > 0;) {
      if (!made[before]) continue;
      QWidget::setTabOrder(static_cast<Control&>(*made[before]).widget(),
                           static_cast<Control&>(*made[static_cast<std::size_t>(index)]).widget());
      break;
    }
  }
  for (const LineData& row : data_.lines) {
    if (row.index != 0 || std::string_view(row.name) != name) continue;
    LineData member = row;
    member.index = index;
    put(name, index, std::make_unique<Line>(this, member));
  }
}

const SliderData* Form::sliderData(const char* name) const {
  const auto row = std::ranges::find_if(
      data_.sliders, [&](const SliderData& slider) { return std::string_view(slider.name) == name; });
  return row != data_.sliders.end() ? &*row : nullptr;
}

Surface* Form::surface(const char* container) {
  if (*container == '\0') return window_.get();
  auto* found = dynamic_cast<Surface*>(window_->findChild<QWidget*>(container));
  return found != nullptr ? found : window_.get();
}

void Form::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  window_->setWindowTitle(toQt(caption));
}

void Form::setIcon(const Icon& icon) {
  icon_ = icon;
  if (icon.picture() != nullptr) window_->setWindowIcon(*icon.picture());
}

double Form::width() const {
  return outerWidth_;
}

double Form::height() const {
  return outerHeight_;
}

double Form::scaleWidth() const {
  return window_->width() * window_->unitsPerPixel();
}

double Form::scaleHeight() const {
  return window_->height() * window_->unitsPerPixel();
}

bool Form::minimised() const {
  return window_->isMinimized();
}

void Form::setWidth(double twips) {
  if (!(twips > 0) || minimised() || twips == outerWidth_) return;
  outerWidth_ = twips;
  window_->applyOuterSize();
}

void Form::setHeight(double twips) {
  if (!(twips > 0) || minimised() || twips == outerHeight_) return;
  outerHeight_ = twips;
  window_->applyOuterSize();
}

void Form::takeOuterSize(double width, double height) {
  outerWidth_ = width;
  outerHeight_ = height;
  raise(onResize);
}

void Form::raise(const std::function<void()>& event) {
  if (!event || !loaded_ || Application::holdsBack()) return;
  const auto alive = shared_from_this();
  event();
}

void Form::load(std::function<void()> forget) {
  forget_ = std::move(forget);
  loaded_ = true;
  raise(onLoad);
}

void Form::show(const Form* owner) {
  if (!loaded_) return;
  if (!window_->isVisible()) {
    window_->standBeside(owner != nullptr ? owner->window_.get() : nullptr);
    raise(onResize);
    if (!loaded_) return;
  }
  window_->bringForward();
}

void Form::unload() {
  if (!loaded_ || unloading_) return;
  unloading_ = true;
  const auto alive = shared_from_this();
  raise(onQueryUnload);
  raise(onUnload);
  raise(onTerminate);
  loaded_ = false;
  window_->hide();
  forget_();
}

void Form::destroyLater(Form* form) {
  // The last reference can go inside an event of one of the form's own widgets.
  if (QCoreApplication::instance() == nullptr) return;
  const auto destroy = [form] { delete form; };
  QMetaObject::invokeMethod(QCoreApplication::instance(), destroy, Qt::QueuedConnection);
}

}  // namespace forms
