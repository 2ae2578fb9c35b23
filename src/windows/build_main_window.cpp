// The 32 band strips, made and placed before the window first shows. All numbers are pixels of the container.

#include "core/band_table.h"
#include "windows/colors.h"
#include "windows/form1.h"

namespace {

constexpr double kSmallFont = 7;  // points

}  // namespace

void MainWindow::BuildMainWindow() {
  for (int i = 1; i < kBands; ++i) {
    Slider1.load(i);
    Label1.load(i);
    Line4.load(i);
    Label9.load(i);
  }
  Slider1.each([this](auto& slider) {
    slider.onMouseMove = [this](int i) { Slider1_MouseMove(i); };
    slider.onScroll = [this](int i) { Slider1_Scroll(i); };
    slider.onChange = [this](int i) { Slider1_Change(i); };
  });
  PlaceSliders();
  PlaceBandLabels();
  PlaceScale();
  SetBandCaptions();
}

void MainWindow::PlaceSliders() {
  forms::Slider& first = Slider1(0);
  first.setTop(15);
  first.setLeft(25);
  first.setWidth(20);
  first.setHeight(Picture1(0).scaleHeight() - 15);
  for (int i = 0; i < kBands; ++i) {
    forms::Slider& slider = Slider1(i);
    slider.setLeft(first.left() + first.width() * i * 1.5);
    slider.setTop(first.top());
    slider.setHeight(first.height());
    slider.setWidth(first.width());
    forms::Line& bar = Line4(i);
    bar.setY1(20);
    bar.setY2(slider.height());
    bar.setX1(slider.left() - 5);
    bar.setX2(slider.left() - 5);
    bar.setBorderWidth(3);
    bar.setVisible(true);
    slider.setVisible(true);
  }
}

void MainWindow::PlaceBandLabels() {
  for (int i = 0; i < kBands; ++i) {
    forms::Label& caption = Label1(i);
    caption.setTop(0);
    caption.setLeft(Slider1(i).left());
    caption.setAlignment(forms::Alignment::Centre);
    caption.setTransparent(true);
    caption.setWidth(i == 0 ? 40 : 28);
    caption.setFontSize(kSmallFont);
    caption.setVisible(true);
  }
  for (int i = 0; i < kBands; ++i) {
    forms::Label& number = Label9(i);
    // A pixel higher than the 5 of the layout: the marker under it would cover the lowest row of its digits.
    number.setTop(Picture1(0).top() - Label9(0).height() - 6);
    number.setLeft(Slider1(i).left() + Picture1(0).left() + number.width() / 2);
    number.setAlignment(forms::Alignment::Centre);
    number.setAutoSize(true);
    number.setTransparent(true);
    number.setForeColor(kPaleGrey);
    number.setCaption(std::to_string(i + 1));
    number.setWidth(28);
    number.setHeight(6);
    number.setFontSize(kSmallFont);
    number.zOrder();
    number.setVisible(true);
  }
  Label9(0).setTop(Label9(1).top());
}

void MainWindow::PlaceScale() {
  const forms::Slider& slider = Slider1(0);
  const double tops[] = {slider.top() + 10, slider.height() + slider.top() - 25};
  const char* captions[] = {"+12db", "-12db"};
  for (int i = 0; i < 2; ++i) {
    forms::Label& end = Label2(i);
    end.setAlignment(forms::Alignment::Left);
    end.setWidth(25);
    end.setFontSize(kSmallFont);
    end.setTop(tops[i]);
    end.setLeft(0);
    end.setCaption(captions[i]);
  }
  const double middle = slider.top() + slider.height() / 2;
  Line1.setY1(middle);
  Line1.setY2(middle);
  Line1.setX1(5);
  Line1.setX2(Picture1(0).scaleWidth() - 10);
  Line1.setBorderWidth(2);
}

void MainWindow::SetBandCaptions() {
  for (int i = 0; i < kBands; ++i) {
    const std::string caption(BandTable[static_cast<std::size_t>(i)].caption);
    Label1(i).setCaption(caption);
    Slider1(i).setSpokenName(caption);
  }
}
