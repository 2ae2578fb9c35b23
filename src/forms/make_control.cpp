#include "forms/make_control.h"

#include "forms/controls.h"

namespace forms {

std::unique_ptr<Control> makeControl(Form& form, const ControlData& row) {
  switch (row.kind) {
    case Kind::PictureBox:
      return std::make_unique<PictureBox>(&form, row);
    case Kind::Label:
      return std::make_unique<Label>(&form, row);
    case Kind::Shape:
      return std::make_unique<Shape>(&form, row);
    case Kind::TextBox:
    case Kind::MultiLineTextBox:
      return std::make_unique<TextBox>(&form, row);
    case Kind::CommandButton:
      return std::make_unique<CommandButton>(&form, row);
    case Kind::OptionButton:
      return std::make_unique<OptionButton>(&form, row);
    case Kind::CheckBox:
      return std::make_unique<CheckBox>(&form, row);
    case Kind::Slider:
      return std::make_unique<Slider>(&form, row);
    case Kind::ProgressBar:
      return std::make_unique<ProgressBar>(&form, row);
  }
  return nullptr;
}

}  // namespace forms
