#include "desktop/drawing/program_style.h"

#include <algorithm>
#include <vector>

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyleOption>

namespace fundlet {

namespace {

// The one copy of all palettes that equal the given one.
const QPalette& SharedPalette(const QPalette& palette) {
  static std::vector<QPalette> different;
  const auto found = std::find(different.begin(), different.end(), palette);
  return found != different.end() ? *found : different.emplace_back(palette);
}

template <typename Option>
Option WithSharedPalette(const Option& option) {
  Option changed(option);
  changed.palette = SharedPalette(option.palette);
  return changed;
}

// An arrow to the menus that do not fit into the bar.
class ArrowIcon : public QIconEngine {
 public:
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, drawn.rect(), mode, state);
    return drawn;
  }
  void paint(QPainter* painter, const QRect& area, QIcon::Mode /*mode*/,
             QIcon::State /*state*/) override {
    QStyleOption option;
    option.rect = area;
    option.palette = QGuiApplication::palette();
    QApplication::style()->drawPrimitive(QStyle::PE_IndicatorArrowRight, &option, painter);
  }
  QIconEngine* clone() const override { return new ArrowIcon(*this); }
};

}  // namespace

QPalette PaletteFor(const QColor& background) {
  const QColor button(0xF4, 0xF4, 0xF1);
  const QColor selection(0x12, 0x57, 0x9C);
  const QColor dimmed(0x66, 0x66, 0x66);
  QPalette palette(button, background);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::ButtonText, Qt::black);
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
    return;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
    const QStyleOptionSlider changed = WithSharedPalette(*bar);
    QProxyStyle::drawComplexControl(control, &changed, painter, widget);
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
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
  if (element != CE_MenuItem || !reached || option->state.testFlag(State_Enabled)) return;
  painter->setPen(option->palette.color(QPalette::Highlight));
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
}

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
  if (picture == SP_ToolBarHorizontalExtensionButton) return QIcon(new ArrowIcon);
  return QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace fundlet
