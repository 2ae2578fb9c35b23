#include <QAbstractButton>
#include <QLabel>
#include <QSlider>

#include "mainwindow/form1_data.h"
#include "support/session.h"

namespace {

using Start = support::Session;

TEST_F(Start, ReachesTheFirstIdleState) {
  EXPECT_EQ(Form1->caption(), "Tessavane Graphic Equalizer");
  EXPECT_EQ(Form1->width(), 17550);
  EXPECT_EQ(Form1->height(), 5415);
  EXPECT_TRUE(support::waitFor([] { return Form1->Command1(0).widget()->hasFocus(); }))
      << "focus on the first button";
  const std::pair<int, bool> buttons[] = {{0, true},  {2, false}, {3, false}, {6, true},
                                          {7, false}, {8, false}, {10, true}};
  for (const auto& [index, enabled] : buttons) EXPECT_EQ(Form1->Command1(index).enabled(), enabled) << index;
  EXPECT_EQ(Form1->Command1.count(), 7);
  EXPECT_EQ(Form1->Command1(8).caption(), " EQ String > Clipboard");
  const char* readOuts[] = {"Preset Settings: 0",        "EQ Range: +/- 12 db",
                            "Low Cut Filter: Off",       "Indicators: On",
                            "Selected Frequency: 0hz",   "Gain Settings 100% Of Source",
                            "Current Bandwidth: 001 Hz", "Selected Frequency Value:  0db"};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(Form1->Label7(i).caption(), readOuts[i]);
  EXPECT_EQ(Form1->Label4(3).caption(), "Gain:100%");
  EXPECT_EQ(Form1->Label8(3).caption(), "Current Bandwidth Settings: 001 Hz");
  EXPECT_EQ(Form1->Text1.text(), "<%InputFile%>");
  EXPECT_EQ(Form1->Text1.backColor(), forms::kButtonFace);
  EXPECT_EQ(Form1->Label2(0).caption() + Form1->Label2(1).caption(), "+12db-12db");
  EXPECT_FALSE(Form1->Label6.visible() || Form1->Timer3.enabled() || Form2.isLoaded() || Form3.isLoaded());
  EXPECT_EQ(Form1->Line10.borderColor(), 8454016U);
  EXPECT_EQ(Form1->Line10.x1() - Form1->Line10.x2(), 62.5);
  EXPECT_EQ(AppState.AudioGain, 1);
  EXPECT_EQ(AppState.BandWidth, 1);
  EXPECT_EQ(AppState.EqString, "");
  EXPECT_EQ(AppState.PresetFilePath, folder.path() + "\\AppPresets.ini");
  EXPECT_EQ(AppState.BandGainText[31], "0");
}

TEST_F(Start, PlacesTheBandStrips) {
  for (int i = 0; i < 32; ++i) {
    const forms::Slider& slider = Form1->Slider1(i);
    EXPECT_EQ(slider.left(), 25 + 30 * i);
    EXPECT_EQ(slider.top() + slider.height(), Form1->Picture1(0).scaleHeight());
    EXPECT_EQ(Form1->Line4(i).x1(), slider.left() - 5);
    EXPECT_TRUE(slider.visible() && Form1->Line4(i).visible());
    const QRect number = Form1->Label9(i).widget()->geometry();
    const QRect thumb(slider.widget()->mapTo(slider.widget()->window(), QPoint()), slider.widget()->size());
    EXPECT_EQ(Form1->Label9(i).caption(), std::to_string(i + 1));
    EXPECT_EQ(number.top(), Form1->Label9(0).widget()->y());
    EXPECT_LE(number.bottom(), Form1->Picture1(0).top()) << "number " << i + 1;
    EXPECT_LT(std::abs(number.center().x() - thumb.center().x()), 8) << "number " << i + 1;
  }
  EXPECT_EQ(Form1->Line1.y1(), 83);
  EXPECT_EQ(Form1->Line4(1).y2(), 136);
}

/// The longest caption that each read-out can come to.
TEST_F(Start, ClipsNoCaption) {
  Form1->Slider2.setValue(-10);
  Form1->Slider3.setValue(254);
  Form1->Slider1(29).setValue(12);
  for (const QLabel* label : Form1->Label6.widget()->window()->findChildren<QLabel*>()) {
    EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width())
        << label->objectName().toStdString() << ": " << label->text().toStdString();
  }
  for (const QAbstractButton* button : Form1->Label6.widget()->window()->findChildren<QAbstractButton*>()) {
    EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), button->width() - 8)
        << button->objectName().toStdString();
  }
}

/// Every control stands on its window where its row says, unless it is placed at run time.
TEST_F(Start, NothingOverlapsThatTakesInput) {
  QList<QWidget*> takers;
  QWidget* window = Form1->Label6.widget()->window();
  for (QWidget* widget : window->findChildren<QWidget*>())
    if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus) takers += widget;
  EXPECT_EQ(takers.size(), 32 + 2 + 7 + 11 + 1 + 1);
  for (const QWidget* one : takers) {
    const QRect place(one->mapTo(window, QPoint()), one->size());
    EXPECT_TRUE(window->rect().contains(place)) << one->objectName().toStdString();
    for (const QWidget* other : takers) {
      if (one >= other) continue;
      const QRect cut = place & QRect(other->mapTo(window, QPoint()), other->size());
      EXPECT_TRUE(cut.width() < 2 || cut.height() < 2)
          << one->objectName().toStdString() << " and " << other->objectName().toStdString();
    }
  }
}

TEST_F(Start, TabsWalkTheStoredOrder) {
  std::string order;
  QWidget* widget = Form1->Command1(0).widget();
  for (int i = 0; i < 60 && (i == 0 || widget != Form1->Command1(0).widget()); ++i) {
    const auto* button = qobject_cast<QAbstractButton*>(widget);
    const bool stop = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled();
    if (stop && (button == nullptr || !button->autoExclusive() || button->isChecked()))
      order += widget->objectName().toStdString() + " ";
    widget = widget->nextInFocusChain();
  }
  std::string expected = "Command1(0) ";
  for (int i = 0; i < 32; ++i) expected += "Slider1(" + std::to_string(i) + ") ";
  expected += "Slider2 Option1(0) Text1 Option2(0) Option3(1) Command1(6) Command1(10) Check1 Slider3 ";
  EXPECT_EQ(order, expected);
}

TEST_F(Start, HoldsItsSizeAndKnowsWhenItIsMinimised) {
  QWidget* window = Form1->Label6.widget()->window();
  window->setMinimumSize(0, 0);
  window->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  const QSize before = window->size();
  window->resize(400, 300);
  EXPECT_TRUE(support::waitFor([&] { return window->size() == before; })) << window->width();
  EXPECT_EQ(Form1->width(), 17550);
  EXPECT_EQ(Form1->height(), 5415);
  window->showMinimized();
  EXPECT_TRUE(support::waitFor([] { return AppState.WindowMinimised; }));
  window->showNormal();
  EXPECT_TRUE(support::waitFor([] { return !AppState.WindowMinimised; }));
  EXPECT_EQ(window->size(), before);
}

}  // namespace
