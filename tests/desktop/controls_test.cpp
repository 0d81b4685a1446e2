#include <cmath>
#include <map>

#include <QAccessible>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/controls/entry_widget.h"
#include "desktop/controls/label.h"
#include "desktop/controls/progress_wheel.h"
#include "desktop/controls/push_button.h"
#include "desktop/controls/separator.h"
#include "desktop/controls/text_area.h"
#include "desktop/controls/text_field.h"
#include "tests/desktop/bare_window.h"

namespace fundlet {
namespace {

using Controls = BareWindow;
using Buttons = BareWindow;
using AccessibleText = BareWindow;

// What a control shows of a property: under the name of Qt's property, or under one given here.
QVariant Shown(const Control& control, const std::string& what) {
  const QWidget& widget = *control.Native();
  const auto* button = dynamic_cast<const PushButton*>(&control);
  const auto* entry = dynamic_cast<const EntryWidget*>(&widget);
  const bool is_label = dynamic_cast<const Label*>(&control) != nullptr;
  const std::map<std::string, QVariant> own = {
      {"shown", control.Visible()},
      {"order", control.TabIndex()},
      {"given name", QString::fromStdString(control.Name())},
      {"ring", control.UseFocusRing()},
      {"cancels", button != nullptr && button->IsCancel()},
      {"limit", entry != nullptr ? entry->Limit() : QVariant()},
      {"bold", widget.font().bold()},
      {"italic", widget.font().italic()},
      {"underline", widget.font().underline()},
      {"pixels", widget.font().pixelSize()},
      {"family", widget.font().family()},
      {"ground", widget.palette().color(QPalette::Base).name()},
      {"ink", widget.palette().color(is_label ? QPalette::WindowText : QPalette::Text).name()},
  };
  const auto found = own.find(what);
  const QVariant value = found != own.end() ? found->second : widget.property(what.c_str());
  const bool is_enum = value.metaType().flags().testFlag(QMetaType::IsEnumeration);
  return is_enum ? QVariant(value.toInt()) : value;
}

TEST_F(Controls, ShowEachOfTheirProperties) {
  struct Case {
    Property property;
    const char* what;
    QVariant shown;
  };
  const QString system_font = QGuiApplication::font().family();
  const int centre = Qt::AlignHCenter | Qt::AlignVCenter;
  const int right = Qt::AlignRight | Qt::AlignVCenter;
  const int left = Qt::AlignLeft | Qt::AlignVCenter;
  const Case cases[] = {
      {{"TabIndex", 7}, "order", 7},
      {{"Height", 31}, "height", 31},
      {{"Width", 43}, "width", 43},
      {{"Top", 5}, "y", 5},
      {{"Left", 6}, "x", 6},
      {{"Name", "x"}, "given name", "x"},
      {{"Name", "y"}, "objectName", "y"},
      {{"Enabled", false}, "enabled", false},
      {{"HelpTag", "a\rb"}, "accessibleDescription", "a\nb"},
      {{"Visible", false}, "shown", false},
      {{"Underline", true}, "underline", true},
      {{"Italic", true}, "italic", true},
      {{"Bold", true}, "bold", true},
      {{"TextSize", 17.0F}, "pixels", 17},
      {{"TextFont", "Noto Sans"}, "family", "Noto Sans"},
      {{"TextFont", "System"}, "family", system_font},
      {{"TextColor", Colour{1, 2, 3}}, "ink", "#010203"},
      {{"BackColor", Colour{4, 5, 6}}, "ground", "#040506"},
      {{"UseFocusRing", false}, "ring", false},
      {{"UseFocusRing", true}, "ring", true},
      {{"Text", "x"}, "text", "x"},
      {{"Text", "a\rb"}, "plainText", "a\nb"},
      {{"TextAlign", 2}, "alignment", right},
      {{"TextAlign", 1}, "alignment", centre},
      {{"TextAlign", 0}, "alignment", left},
      {{"Alignment", 3}, "alignment", right},
      {{"Alignment", 2}, "alignment", centre},
      {{"Alignment", 1}, "alignment", left},
      {{"LimitText", 9}, "limit", 9},
      {{"ReadOnly", true}, "readOnly", true},
      {{"CueText", "x"}, "placeholderText", "x"},
      {{"Password", true}, "echoMode", QLineEdit::Password},
      {{"Password", false}, "echoMode", QLineEdit::Normal},
      {{"Border", false}, "frame", false},
      {{"Border", false}, "frameShape", QFrame::NoFrame},
      {{"Border", true}, "frameShape", QFrame::StyledPanel},
      {{"ScrollbarVertical", true}, "verticalScrollBarPolicy", Qt::ScrollBarAlwaysOn},
      {{"ScrollbarVertical", false}, "verticalScrollBarPolicy", Qt::ScrollBarAlwaysOff},
      {{"ScrollbarHorizontal", true}, "lineWrapMode", QPlainTextEdit::NoWrap},
      {{"ScrollbarHorizontal", false}, "lineWrapMode", QPlainTextEdit::WidgetWidth},
      {{"ScrollbarHorizontal", false}, "horizontalScrollBarPolicy", Qt::ScrollBarAlwaysOff},
      {{"ScrollbarHorizontal", true}, "horizontalScrollBarPolicy", Qt::ScrollBarAsNeeded},
      {{"Caption", "a&b"}, "text", "a&&b"},
      {{"Default", true}, "default", true},
      {{"Cancel", true}, "cancels", true},
  };
  Control* const controls[] = {&Add<Label>("label"),       &Add<TextField>("field"),
                               &Add<PushButton>("button"), &Add<TextArea>("area"),
                               &Add<Separator>("rule"),    &Add<ProgressWheel>("wheel")};
  for (Control* control : controls) {
    for (const PropertyRow& row : control->Properties()) {
      bool seen = false;
      for (const auto& [property, what, shown] : cases) {
        if (property.name != row.name || !Shown(*control, what).isValid()) continue;
        Set(*control, property);
        EXPECT_EQ(Shown(*control, what).toString(), shown.toString())
            << typeid(*control).name() << ", " << row.name << " as " << what;
        seen = true;
      }
      EXPECT_EQ(seen, row.set != nullptr) << typeid(*control).name() << ", " << row.name;
    }
  }
}

TEST_F(Controls, NarrowATextThatIsTooWideAndNoOther) {
  const std::string text = "A text of some width";
  auto& label = Add<Label>("label");
  auto& button = Add<PushButton>("button");
  const std::pair<TextControl*, int> cases[] = {{&label, 0}, {&button, 10}};
  label.SetText(text);
  button.SetCaption(text);
  for (const auto& [control, frames] : cases) {
    const auto width = [&, native = control->Native()] {
      return QFontMetricsF(native->font()).horizontalAdvance(QString::fromStdString(text));
    };
    control->SetWidth(1000);
    const int needed = static_cast<int>(std::ceil(width()));
    control->SetWidth(needed + frames);
    EXPECT_EQ(control->Native()->font().stretch(), QFont::AnyStretch);
    control->SetWidth(needed + frames - 2);
    EXPECT_LE(width(), needed - 2);
    EXPECT_GT(control->Native()->font().stretch(), 90);
    control->SetWidth(20);
    EXPECT_EQ(control->Native()->font().stretch(), 50);
  }
}

TEST_F(Buttons, AreTheOneThatReturnPressesAndTheOneThatEscapeDoes) {
  std::string pressed;
  Property role{"Default", true};
  for (const char* name : {"default ", "cancel "}) {
    auto& button = Add<PushButton>(name);
    button.Action = [&](PushButton& sender) { pressed += sender.Name(); };
    Set(button, role);
    role.name = "Cancel";
  }
  auto& field = Add<TextField>("field");
  auto& area = Add<TextArea>("area");
  area.SetReadOnly(true);
  Show();
  for (Control* focused : {static_cast<Control*>(&field), static_cast<Control*>(&area),
                           &window_->_ControlByName("cancel ")}) {
    focused->SetFocus();
    pressed = "";
    Key(Qt::Key_Return);
    Key(Qt::Key_Enter, Qt::KeypadModifier);
    Key(Qt::Key_Escape);
    EXPECT_EQ(pressed, "default default cancel ") << focused->Name();
    Key(Qt::Key_Return, Qt::ShiftModifier);
    Key(Qt::Key_Escape, Qt::ControlModifier);
    EXPECT_EQ(pressed, "default default cancel ") << focused->Name();
  }
}

TEST_F(AccessibleText, OfAFieldIsReadAndSelectedAndChangedFromOutside) {
  auto& field = Add<TextField>("field");
  field.SetWidth(200);
  field.SetText("1,234.56");
  Show();
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(field.Native());
  QAccessibleTextInterface& text = *face->textInterface();
  const auto selected = [&](int index = 0) {
    std::pair<int, int> range{-1, -1};
    text.selection(index, &range.first, &range.second);
    return range;
  };
  using Range = std::pair<int, int>;
  text.setSelection(0, 2, 5);
  EXPECT_EQ(selected(), Range(2, 5));
  EXPECT_EQ(selected(1), Range(0, 0));
  EXPECT_EQ(text.selectionCount(), 1);
  EXPECT_EQ(field.SelStart(), 2);
  EXPECT_EQ(field.SelLength(), 3);
  text.setSelection(1, 0, 1);
  text.removeSelection(1);
  EXPECT_EQ(selected(), Range(2, 5));
  text.removeSelection(0);
  EXPECT_EQ(text.selectionCount(), 0);
  EXPECT_EQ(selected(), Range(0, 0));
  text.addSelection(1, 3);
  EXPECT_EQ(selected(), Range(1, 3));
  text.setCursorPosition(4);
  EXPECT_EQ(text.cursorPosition(), 4);
  EXPECT_EQ(text.text(2, 5), "234");
  EXPECT_EQ(text.characterCount(), 8);
  Range run{-1, -1};
  text.attributes(3, &run.first, &run.second);
  EXPECT_EQ(run, Range(0, 8));
  const QRect on_screen(field.Native()->mapToGlobal(QPoint(0, 0)), field.Native()->size());
  for (int at = 0; at < 8; ++at) {
    const QRect place = text.characterRect(at);
    EXPECT_TRUE(on_screen.contains(place)) << at;
    EXPECT_EQ(text.offsetAtPoint(place.center() - QPoint(place.width() / 3, 0)), at);
    EXPECT_EQ(text.characterRect(at + 1).left(), place.right() + 1);
  }
  QAccessibleEditableTextInterface& editable = *face->editableTextInterface();
  editable.deleteText(0, 2);
  editable.insertText(3, "9");
  editable.replaceText(5, 7, "7");
  EXPECT_EQ(field.Text(), "2349.7");
  EXPECT_TRUE(face->state().editable && face->state().selectableText);
  EXPECT_FALSE(face->state().readOnly || face->state().passwordEdit);
  field.SetReadOnly(true);
  field.SetPassword(true);
  EXPECT_TRUE(face->state().readOnly && face->state().passwordEdit);
  face->setText(QAccessible::Value, "5");
  EXPECT_EQ(field.Text(), "2349.7");
  EXPECT_NE(face->text(QAccessible::Value), "2349.7");
}

TEST_F(AccessibleText, BeyondTheLimitMayOnlyGetShorter) {
  auto& field = Add<TextField>("field");
  field.SetLimitText(3);
  field.SetText("12345");
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(field.Native());
  for (const auto& [set, text] :
       {std::pair{"54321", "12345"}, {"4321", "4321"}, {"321", "321"}, {"4321", "321"}}) {
    face->setText(QAccessible::Value, set);
    EXPECT_EQ(field.Text(), text);
  }
}

}  // namespace
}  // namespace fundlet
