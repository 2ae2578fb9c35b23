#include "forms/form.h"

#include <string_view>

#include "forms/surface.h"

namespace forms {
namespace {

std::size_t slot(int index) {
  return static_cast<std::size_t>(std::max(index, 0));
}

QWidget* widgetOf(const Item& item) {
  return static_cast<const Control&>(item).widget();
}

template <class T>
std::unique_ptr<Control> make(Form& form, const ControlData& row) {
  return std::make_unique<T>(form, row);
}

/// In the order of `Kind`.
constexpr std::unique_ptr<Control> (*kMakers[])(Form&, const ControlData&) = {
    make<PictureBox>,    make<Label>,        make<Shape>,    make<TextBox>, make<TextBox>,
    make<CommandButton>, make<OptionButton>, make<CheckBox>, make<Slider>,  make<ProgressBar>};

std::unique_ptr<Control> makeControl(Form& form, const ControlData& row) {
  return kMakers[static_cast<int>(row.kind)](form, row);
}

}  // namespace

Form::Form(const FormData& data) : FormWindow(data), data_(data) {
  for (const ControlData& row : data.controls) put(row.name, row.index, makeControl(*this, row));
  for (const LineData& row : data.lines) put(row.name, row.index, std::make_unique<Line>(*this, row));
  for (const TimerData& row : data.timers) put(row.name, kSingle, std::make_unique<Timer>(*this, row));
  if (data.commonDialog != nullptr) put(data.commonDialog, kSingle, std::make_unique<CommonDialog>(*this));
  makeTabOrder();
}

void Form::put(const char* name, int index, std::unique_ptr<Item> item) {
  Items& items = items_[name];
  if (items.size() <= slot(index)) items.resize(slot(index) + 1);
  items[slot(index)] = std::move(item);
}

void Form::makeTabOrder() {
  std::vector<const ControlData*> rows;
  for (const ControlData& row : data_.controls)
    if (row.tab >= 0) rows.push_back(&row);
  std::ranges::sort(rows, {}, &ControlData::tab);
  QWidget* previous = nullptr;
  for (const ControlData* row : rows) {
    QWidget* next = widgetOf(*items_[row->name][slot(row->index)]);
    if (next->focusPolicy() == Qt::NoFocus) continue;
    if (previous != nullptr) QWidget::setTabOrder(previous, next);
    previous = next;
  }
}

/// A hidden control, or a line, like member 0 of its array.
std::unique_ptr<Item> Form::makeLikeFirst(const char* name, int index) {
  const auto isFirst = [name](const auto& row) {
    return row.index == 0 && std::string_view(row.name) == name;
  };
  if (const auto first = std::ranges::find_if(data_.controls, isFirst); first != data_.controls.end()) {
    ControlData row = *first;
    row.index = index;
    row.properties.hidden = true;
    return makeControl(*this, row);
  }
  LineData row = *std::ranges::find_if(data_.lines, isFirst);
  row.index = index;
  row.visible = false;
  return std::make_unique<Line>(*this, row);
}

void Form::loadMember(const char* name, int index) {
  put(name, index, makeLikeFirst(name, index));
  const Items& members = items_[name];
  const auto* made = dynamic_cast<const Control*>(members[slot(index)].get());
  if (made == nullptr) return;
  // Qt puts a new widget at the end of the tab order; the keyboard is to find it right after its neighbour.
  std::size_t before = slot(index) - 1;
  while (members[before] == nullptr) --before;
  QWidget::setTabOrder(widgetOf(*members[before]), made->widget());
}

}  // namespace forms
