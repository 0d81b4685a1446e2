#include "desktop/controls/push_button.h"

#include <array>

#include <QKeyEvent>
#include <QPushButton>

#include "desktop/base/qt_text.h"
#include "desktop/controls/control_widget.h"

namespace fundlet {

namespace {

class ButtonWidget : public FocusReporting<QPushButton> {
  // On some platforms Return presses the button that has the focus. Here it presses the default
  // button on each.
  void keyPressEvent(QKeyEvent* event) override {
    if (!Owner().PressButtonFor(*event)) FocusReporting::keyPressEvent(event);
  }
};

}  // namespace

PushButton::PushButton(ControlOwner& owner) : TextControl(owner, new ButtonWidget) {
  auto& button = NativeAs<ButtonWidget>();
  button.AttachTo(*this);
  button.setFocusPolicy(Qt::TabFocus);
  button.setAutoDefault(false);
  QObject::connect(&button, &QPushButton::clicked, &button, [this] {
    Gate().Enter(Caption(), [this] {
      if (Action) Action(*this);
    });
  });
}

std::string PushButton::Caption() const {
  return FromQt(NativeAs<QPushButton>().text().replace("&&", "&"));
}

void PushButton::SetCaption(std::string_view caption) {
  NativeAs<QPushButton>().setText(ToQt(caption).replace('&', "&&"));
  FitText();
}

bool PushButton::IsDefault() const { return NativeAs<QPushButton>().isDefault(); }

void PushButton::Press() { NativeAs<QPushButton>().click(); }

int PushButton::WidthForText() const {
  constexpr int kFrames = 10;
  return Width() - kFrames;
}

PropertyTable PushButton::Properties() const {
  static const auto rows = Joined(std::to_array<PropertyRow>({{"InitialParent", ""}}), kFontRows,
                                  std::to_array<PropertyRow>({
                                      {"ButtonStyle", 0},
                                      {"AutoDeactivate", true},
                                      {"HelpTag", "", kThrough<&Control::SetHelpTag>},
                                      {"Visible", true, kThrough<&Control::SetVisible>},
                                      {"Enabled", true, kThrough<&Control::SetEnabled>},
                                      {"Cancel", false, kThrough<&PushButton::SetCancel>},
                                      {"Default", false, kThroughWidget<&QPushButton::setDefault>},
                                      {"Caption", "", kThrough<&PushButton::SetCaption>},
                                      {"TabStop", true},
                                  }),
                                  kCommonRows);
  return rows;
}

}  // namespace fundlet
