#include "forms/buttons.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>

#include "forms/application.h"
#include "forms/style.h"
#include "forms/surface.h"

namespace forms {
namespace {

/// An ampersand would underline the next letter and make it a key.
QString literal(const std::string& caption) {
  return toQt(caption).replace("&", "&&");
}

/// Tab stops once in a group: at its choice, or anywhere where it has none. The widget toolkit itself sees to
/// this only after the first visit.
void makeTabStops(const QButtonGroup& group) {
  const auto* choice = group.checkedButton();
  for (QAbstractButton* button : group.buttons())
    button->setFocusPolicy(choice == nullptr || choice == button ? Qt::StrongFocus : Qt::ClickFocus);
}

class PushButton : public QPushButton {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      if (!event->isAutoRepeat()) click();
      return;
    }
    QPushButton::keyPressEvent(event);
  }
};

}  // namespace

CommandButton::CommandButton(Form* form, const ControlData& data) : Control(form, data, new PushButton) {
  setCaption(data.text != nullptr ? data.text : "");
  QObject::connect(static_cast<QPushButton*>(widget()), &QPushButton::clicked, widget(),
                   [this] { raiseWhenServed(onClick); });
}

void CommandButton::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  auto* button = static_cast<QPushButton*>(widget());
  button->setText(literal(caption));
  button->setAccessibleName(toQt(caption).trimmed());
}

void CommandButton::adoptHandlers(const Control& other) {
  Control::adoptHandlers(other);
  onClick = static_cast<const CommandButton&>(other).onClick;
}

OptionButton::OptionButton(Form* form, const ControlData& data) : Control(form, data, new QRadioButton) {
  auto* button = static_cast<QRadioButton*>(widget());
  button->setText(literal(data.text != nullptr ? data.text : ""));
  button->setAutoFillBackground(true);
  button->setChecked(data.look.selected);
  if (auto* surface = dynamic_cast<Surface*>(button->parentWidget())) {
    QButtonGroup& group = surface->options();
    group.addButton(button);
    makeTabStops(group);
    QObject::connect(button, &QRadioButton::toggled, button, [&group] { makeTabStops(group); });
  }
  // Of those chosen one after the other while the program is held back, the last one counts.
  const auto clicked = [this] {
    if (value()) raise(onClick);
  };
  QObject::connect(button, &QRadioButton::clicked, button,
                   [button, clicked] { Application::runOrDefer(button, clicked); });
}

bool OptionButton::value() const {
  return static_cast<const QRadioButton*>(widget())->isChecked();
}

void OptionButton::setValue(bool value) {
  if (value == this->value()) return;
  auto* button = static_cast<QRadioButton*>(widget());
  if (value) {
    button->setChecked(true);
    raise(onClick);
    return;
  }
  // The widget refuses to leave its group without a choice.
  QButtonGroup* group = button->group();
  if (group != nullptr) group->setExclusive(false);
  button->setChecked(false);
  if (group != nullptr) group->setExclusive(true);
}

void OptionButton::adoptHandlers(const Control& other) {
  Control::adoptHandlers(other);
  onClick = static_cast<const OptionButton&>(other).onClick;
}

CheckBox::CheckBox(Form* form, const ControlData& data) : Control(form, data, new QCheckBox) {
  auto* box = static_cast<QCheckBox*>(widget());
  box->setText(literal(data.text != nullptr ? data.text : ""));
  box->setChecked(data.look.selected);
  QObject::connect(box, &QCheckBox::clicked, box, [this] { raiseWhenServed(onClick); });
}

int CheckBox::value() const {
  return static_cast<const QCheckBox*>(widget())->isChecked() ? 1 : 0;
}

}  // namespace forms
