#include "desktop/controls/label.h"

#include <array>

#include <QLabel>

#include "desktop/accessibility/screen_reader_notifier.h"
#include "desktop/base/qt_text.h"
#include "desktop/controls/control_widget.h"

namespace fundlet {

Label::Label(ControlOwner& owner) : TextControl(owner, new QLabel) {
  NativeAs<QLabel>().setTextFormat(Qt::PlainText);
}

std::string Label::Text() const { return FromQt(NativeAs<QLabel>().text()); }

void Label::SetText(std::string_view text) {
  NativeAs<QLabel>().setText(ToQt(text));
  FitText();
  if (announced_) ScreenReaderNotifier::Announce(*Native(), ToQt(text));
}

void Label::SetLabelFor(const Control& control) { NativeAs<QLabel>().setBuddy(control.Native()); }

PropertyTable Label::Properties() const {
  static const auto rows =
      Joined(kDataBindingRows, kFontRows,
             std::to_array<PropertyRow>({
                 {"AutoDeactivate", true},
                 {"HelpTag", "", kThrough<&Control::SetHelpTag>},
                 {"Transparent", false},
                 {"Selectable", false},
                 {"Visible", true, kThrough<&Control::SetVisible>},
                 {"Enabled", true, kThrough<&Control::SetEnabled>},
                 {"Multiline", false},
                 {"TextColor", kBlack, &SetColour<QPalette::WindowText>},
                 {"TextAlign", kLabelAlignment.left, &SetAlignment<QLabel, kLabelAlignment>},
                 {"Text", "", kThrough<&Label::SetText>},
             }),
             kCommonRows, std::to_array<PropertyRow>({{"TabStop", true}}));
  return rows;
}

}  // namespace fundlet
