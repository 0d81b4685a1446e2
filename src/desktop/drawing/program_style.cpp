#include "desktop/drawing/program_style.h"

#include <algorithm>
#include <vector>

#include <QPainter>
#include <QStyleOption>

namespace fundlet {

namespace {

// The option with the one copy of all palettes that equal its own.
template <typename Option>
Option WithSharedPalette(Option option) {
  static std::vector<QPalette> different;
  const auto found = std::ranges::find(different, option.palette);
  option.palette = found != different.end() ? *found : different.emplace_back(option.palette);
  return option;
}

}  // namespace

QPalette PaletteFor(const QColor& background) {
  const QColor button(0xF4, 0xF4, 0xF1);
  const QColor selection(0x12, 0x57, 0x9C);
  const QColor dimmed(0x66, 0x66, 0x66);
  QPalette palette(button, background);
  palette.setColor(QPalette::PlaceholderText, dimmed);
  palette.setColor(QPalette::Highlight, selection);
  palette.setColor(QPalette::HighlightedText, Qt::white);
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
  palette.setColor(QPalette::Accent, selection);
#endif
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, dimmed);
  }
  return palette;
}

ProgramStyle::ProgramStyle() : QProxyStyle("Fusion") {}

void ProgramStyle::polish(QPalette& palette) { palette = PaletteFor(QColor(0xEF, 0xEF, 0xEF)); }

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
    const QStyleOptionButton changed = WithSharedPalette(*button);
    QProxyStyle::drawPrimitive(element, &changed, painter, widget);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
    const QStyleOptionSlider changed = WithSharedPalette(*bar);
    QProxyStyle::drawComplexControl(control, &changed, painter, widget);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
  if (hint == SH_Menu_AllowActiveAndDisabled) return 1;
  // Else Alt alone, and Escape in a menu, move the focus to the menu bar, and the text that is
  // typed next is lost.
  if (hint == SH_MenuBar_AltKeyNavigation) return 0;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  const bool reached = option->state.testFlag(State_Selected);
  if (element == CE_MenuItem && reached && !option->state.testFlag(State_Enabled)) {
    painter->setPen(option->palette.color(QPalette::Highlight));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  }
  const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
  if (element == CE_ToolButtonLabel && button != nullptr && button->icon.isNull()) {
    drawPrimitive(PE_IndicatorArrowRight, option, painter, widget);
  }
}

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
  if (picture == SP_ToolBarHorizontalExtensionButton) return {};
  return QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace fundlet
