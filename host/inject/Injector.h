#pragma once

#include "host/inject/BorrowedVariables.h"

#include <QObject>
#include <QPointer>
#include <QSocketNotifier>

#include <memory>

namespace gesturewidget {
class GestureHost;
}

QT_BEGIN_NAMESPACE
class QMainWindow;
QT_END_NAMESPACE

namespace inject {

// Waits for the program's main window, the first visible one with a menu bar, and gives it
// a host. When that window goes, or is hidden while another of its kind is there, the next
// one gets the host. Owned by the application object.
class Injector : public QObject
{
    Q_OBJECT

public:
    // To be made as early as the application object exists; does nothing before the event
    // loop runs. An application object that goes without having shown a main window gives
    // the variables back.
    explicit Injector(std::unique_ptr<BorrowedVariables> variables);
    ~Injector() override;

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    // Looks for a main window from the event loop, once for any number of calls.
    void lookSoon();
    void look();
    // The main window that is to have the host; null if none.
    [[nodiscard]] QMainWindow *findWindow() const;
    void startHost(QMainWindow *window);
    void onWindowGone();
    void explainProblem(const QString &text) const;
    // Ends the program when whoever had it explained has closed the other end.
    void onExplanationRead();

    std::unique_ptr<gesturewidget::GestureHost> m_host;
    QPointer<QMainWindow> m_window; // that has it
    bool m_isLookQueued = false;
    std::unique_ptr<BorrowedVariables> m_variables;
    int m_explanation; // the socket, see host/files/ExplanationChannel.h; -1 for none
    std::unique_ptr<QSocketNotifier> m_explanationEnd;
};

} // namespace inject
