#include "desktop/controls/keys.h"

#include <QKeyEvent>

#include "desktop/base/application.h"
#include "desktop/base/qt_text.h"

namespace fundlet {

namespace {

#ifdef Q_OS_MACOS
constexpr auto kControlModifier = Qt::MetaModifier;
#else
constexpr auto kControlModifier = Qt::ControlModifier;
#endif

}  // namespace

std::string KeyText(const QKeyEvent& event) {
  const bool control_e = event.key() == Qt::Key_E && event.modifiers() == kControlModifier;
  const bool help = event.key() == Qt::Key_Help || event.key() == Qt::Key_F1 || control_e;
  return help ? App().HelpKey : FromQt(event.text());
}

}  // namespace fundlet
