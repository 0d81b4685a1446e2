#include <QAccessible>
#include <QPushButton>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"

namespace fundlet {

using namespace std::string_literals;

using Controls = StartedTest;

TEST_F(Controls, ShowEachPropertyThatIsSet) {
  static constexpr Colour kColour{1, 2, 3};
  const auto is = [](const QWidget& widget, const char* name, int value) {
    return widget.property(name).isValid() && widget.property(name).toInt() == value;
  };
  using Widget = const QWidget&;
  const std::tuple<const char*, PropertyValue, std::function<bool(Widget)>> cases[] = {
      {"Visible", false, [](Widget w) { return w.isHidden() && w.isEnabled(); }},
      {"Enabled", false, [](Widget w) { return !w.isEnabled(); }},
      {"Underline", true, [](Widget w) { return w.font().underline(); }},
      {"Italic", true, [](Widget w) { return w.font().italic(); }},
      {"Bold", true, [](Widget w) { return w.font().bold(); }},
      {"TextSize", 17.0F, [](Widget w) { return w.font().pixelSize() == 17; }},
      {"TextFont", "Noto Sans", [](Widget w) { return w.font().family() == "Noto Sans"; }},
      {"BackColor", kColour, [](Widget w) { return w.palette().base() == QColor(1, 2, 3); }},
      {"ReadOnly", false, [](Widget w) { return !w.property("readOnly").toBool(); }},
      {"ReadOnly", true, [](Widget w) { return w.property("readOnly").toBool(); }},
      {"CueText", "x", [](Widget w) { return w.property("placeholderText") == "x"; }},
      {"Password", true, [&](Widget w) { return is(w, "echoMode", QLineEdit::Password); }},
      {"Border", false, [&](Widget w) { return is(w, "frame", 0) || is(w, "frameShape", 0); }},
      {"ScrollbarVertical", false,
       [&](Widget w) { return is(w, "verticalScrollBarPolicy", Qt::ScrollBarAlwaysOff); }},
      {"ScrollbarHorizontal", true,
       [&](Widget w) { return is(w, "lineWrapMode", QPlainTextEdit::NoWrap); }}};
  user::Press("F1");
  Control* const controls[] = {&Main().StaticText1(), &Main().StartYearField(),
                               &Main().SaveButton(), &GlobalModule::HelpWindow->TextField()};
  for (Control* control : controls) {
    for (const auto& [name, value, shows] : cases) {
      for (const PropertyRow& row : control->Properties()) {
        if (row.name != name) continue;
        const Property own{name, value};
        control->_SetProperties(EncodePropertySet({&row, 1}, {&own, 1}));
        EXPECT_TRUE(shows(*control->Native())) << control->Name() << ", " << name;
      }
    }
  }
}

TEST_F(Controls, NameThemselvesAndThePropertyIfASetIsWrongAndKeepWhatWasBeforeIt) {
  auto& sign = Main().StaticText1();
  const auto set = [&](const std::string& bytes) {
    return [=, &sign] { sign._SetProperties(bytes); };
  };
  const Property caption{"Caption", "x"};
  const auto encode = [&] { EncodePropertySet(sign.Properties(), {&caption, 1}); };
  const std::pair<std::function<void()>, const char*> errors[] = {
      {set("MenuBarVisible \x01"),
       "control “StaticText1”, property “MenuBarVisible”: there is no such property"},
      {set("Left \x01\0"s),
       "control “StaticText1”, property “Left”: the set ends inside the value"},
      {set("Text \xFF\xFF\xFF\xFFx"),
       "control “StaticText1”, property “Text”: the set ends inside the value"},
      {set("Text \x02\0\0\0okText"s), "control “StaticText1”, property “”: a name without a value"},
      {[&] { Main()._SetProperties("TabIndex x"); },
       "window “Fundlet”, property “TabIndex”: there is no such property"},
      {encode, "no place for the property “Caption”"}};
  for (const auto& [action, error] : errors) EXPECT_EQ(ErrorOf(action), error);
  EXPECT_EQ(sign.Text(), "ok");
}

TEST_F(Controls, GiveAndSetTheSelectionOfAFieldForAScreenReader) {
  Fill("StartFundletField", "1,234.56");
  auto& field = Main().StartFundletField();
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(field.Native());
  QAccessibleTextInterface& text = *face->textInterface();
  const auto expect_selected = [&](int from, int to) {
    int start = -1;
    int end = -1;
    text.selection(0, &start, &end);
    EXPECT_TRUE(start == from && end == to) << start << ", " << end;
    EXPECT_EQ(text.selectionCount(), to > 0 ? 1 : 0);
    EXPECT_EQ(field.SelLength(), to - from);
  };
  text.setSelection(0, 2, 5);
  expect_selected(2, 5);
  text.removeSelection(0);
  expect_selected(0, 0);
  text.addSelection(1, 3);
  expect_selected(1, 3);
  text.setCursorPosition(4);
  EXPECT_EQ(text.cursorPosition(), 4);
  EXPECT_EQ(text.text(2, 5), "234");
  for (int at = 0; at < text.characterCount(); ++at) {
    const QRect place = text.characterRect(at);
    EXPECT_EQ(text.offsetAtPoint(place.center() - QPoint(place.width() / 3, 0)), at);
    EXPECT_EQ(text.characterRect(at + 1).left(), place.right() + 1);
  }
  face->editableTextInterface()->replaceText(2, 5, "7");
  EXPECT_EQ(face->text(QAccessible::Value), "1,7.56");
  face = QAccessible::queryAccessibleInterface(&Found("StartYearField"));
  Main().StartYearField().SetText("123456");
  for (const auto& [set, shown] :
       {std::pair{"654321", "123456"}, {"65432", "65432"}, {"54321", "65432"}}) {
    face->setText(QAccessible::Value, set);
    EXPECT_EQ(Text("StartYearField"), shown) << "beyond the limit, a text may only get shorter";
  }
}

TEST_F(Controls, BringADialogToTheFrontWhenTheyArePressedBeneathIt) {
  user::Press("F1");
  user::Activate(Main());
  CalculateRefused([](QWidget& dialog) {
    const std::pair<std::function<void()>, bool> inputs[] = {
        {[] { QTest::mouseMove(Main().Native().windowHandle(), QPoint(9, 9)); }, false},
        {[] { user::Click(Found("StartYearField")); }, true},
        {[] { QTest::keyClick(Main().Native().windowHandle(), Qt::Key_Return); }, true},
        {[] { user::CloseBox(GlobalModule::HelpWindow->Native()); }, false}};
    for (const auto& [input, raises] : inputs) {
      user::Activate(Main());
      input();
      EXPECT_EQ(QApplication::activeWindow() == &dialog, raises);
      EXPECT_TRUE(dialog.isVisible());
    }
    ByKey(Qt::Key_Escape)(dialog);
  });
  EXPECT_FALSE(GlobalModule::HelpShowing);
  EXPECT_EQ(FocusName(), "StartAgeField");
}

}  // namespace fundlet
