#pragma once

#include <vector>

#include <QAccessible>
#include <QObject>
#include <QPointer>

class QWidget;

namespace fundlet {

// Queues accessibility events while handlers run, because one key may move the focus and change a
// text several times, and then sends the net result: the focus, then the changes there, then
// announcements. Without a net change it sends no event. Each run has one.
class ScreenReaderNotifier : public QObject {
 public:
  ScreenReaderNotifier();
  ~ScreenReaderNotifier() override;

  // Announces the text, which the widget shows, wherever the focus is. Nothing is announced while
  // the widget's window is inactive or no screen reader runs.
  static void Announce(QWidget& widget, const QString& text);

 private:
  // The state of a text with a caret, as last sent.
  struct Known {
    QPointer<QObject> object;
    QString text;
    int caret = -1;
    int selected_from = 0;
    int selected_to = 0;
  };
  struct Announcement {
    QPointer<QWidget> widget;
    QString text;
  };

  static void OnEvent(QAccessibleEvent* event);
  static Known StateOf(QObject* object);
  static void Send(QAccessibleEvent& event);
  static void NotifyText(const Known& before, const Known& now);
  static void NotifySelection(const Known& before, const Known& now);
  static void Say(QWidget& widget, const QString& text);

  bool HoldsBack(const QAccessibleEvent& event);
  void NotifyFocusLater();  // after the present event, and with no menu open
  void NotifyLater();
  void Notify();

  Known known_;                // the focus as last sent
  QPointer<QObject> focused_;  // the focus since then
  std::vector<Announcement> announcements_;
  bool due_ = false;
};

}  // namespace fundlet
