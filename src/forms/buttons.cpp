#include "forms/buttons.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <utility>

#include "forms/style.h"
#include "forms/surface.h"

namespace forms {
namespace {

/// Puts a caption in letters that leave `taken` pixels of the button's width to the rest of it.
void putCaption(QAbstractButton& button, const std::string& caption, int taken) {
  // A single ampersand would underline the next letter and make it a key.
  button.setText(toQt(caption).replace("&", "&&"));
  button.setFont(narrowed(button.font(), toQt(caption), button.width() - taken));
}

/// What Fusion puts before a caption: a circle or a box, and the space after it.
constexpr int kIndicator = 18;

/// Tab stops once in a group: at its choice, or at each button where it has none. Qt sees to that only once
/// the focus has been there.
void makeTabStops(const QButtonGroup& group) {
  const auto* choice = group.checkedButton();
  for (QAbstractButton* button : group.buttons())
    button->setFocusPolicy(choice == nullptr || choice == button ? Qt::StrongFocus : Qt::ClickFocus);
}

/// Arrow keys walk the group in the order of its members; by itself Qt goes by their places on the screen.
class RadioButton : public QRadioButton {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool forward = event->key() == Qt::Key_Down || event->key() == Qt::Key_Right;
    const bool back = event->key() == Qt::Key_Up || event->key() == Qt::Key_Left;
    if (!forward && !back) return QRadioButton::keyPressEvent(event);
    const QList<QAbstractButton*> all = group()->buttons();
    const qsizetype next = all.indexOf(this) + (forward ? 1 : -1);
    if (next < 0 || next >= all.size()) return;
    // Chosen first, so that a screen reader finds the new focus selected.
    if (isChecked()) all[next]->click();
    all[next]->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  }
};

class PushButton : public QPushButton {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter) return QPushButton::keyPressEvent(event);
    if (!event->isAutoRepeat()) click();
  }
};

}  // namespace

CommandButton::CommandButton(FormWindow& form, const ControlData& data)
    : Control(form, data, new PushButton) {
  setCaption(data.text);
  QObject::connect(static_cast<QPushButton*>(widget()), &QPushButton::clicked, widget(),
                   [this] { raise(onClick); });
}

void CommandButton::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  auto* button = static_cast<QPushButton*>(widget());
  constexpr int kEdges = 8;
  putCaption(*button, caption, kEdges);
  button->setAccessibleName(toQt(caption).trimmed());
}

OptionButton::OptionButton(FormWindow& form, const ControlData& data) : Control(form, data, new RadioButton) {
  auto* button = static_cast<QRadioButton*>(widget());
  putCaption(*button, data.text, kIndicator);
  button->setAutoFillBackground(true);
  button->setChecked(data.properties.selected);
  // Without a group, Qt would take the buttons of inner containers for choices of the same one.
  QButtonGroup& group = container().options();
  group.addButton(button);
  makeTabStops(group);
  QObject::connect(button, &QRadioButton::toggled, button, [this, &group](bool checked) {
    isNewChoice_ = checked;
    makeTabStops(group);
  });
  const bool canBeChosenAgain = data.properties.canBeChosenAgain;
  QObject::connect(button, &QRadioButton::clicked, button, [this, canBeChosenAgain] {
    if (std::exchange(isNewChoice_, false) || canBeChosenAgain) raise(onClick);
  });
}

bool OptionButton::value() const {
  return static_cast<const QRadioButton*>(widget())->isChecked();
}

void OptionButton::setValue(bool value) {
  if (value == this->value()) return;
  auto* button = static_cast<QRadioButton*>(widget());
  if (value) {
    button->setChecked(true);
    isNewChoice_ = false;
    raise(onClick);
    return;
  }
  // Qt does not let an exclusive group go without a choice.
  button->group()->setExclusive(false);
  button->setChecked(false);
  button->group()->setExclusive(true);
}

CheckBox::CheckBox(FormWindow& form, const ControlData& data) : Control(form, data, new QCheckBox) {
  auto* box = static_cast<QCheckBox*>(widget());
  putCaption(*box, data.text, kIndicator);
  box->setChecked(data.properties.selected);
  QObject::connect(box, &QCheckBox::clicked, box, [this] { raise(onClick); });
}

int CheckBox::value() const {
  return static_cast<const QCheckBox*>(widget())->isChecked() ? 1 : 0;
}

}  // namespace forms
