#pragma once

#include "host/window/QuietWait.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

// Finds the widgets of a program that show drawings: those of certain classes, or those
// that look like it, see ViewGuess; the ones that are there and the ones that come up later.
class ViewFinder : public QObject
{
    Q_OBJECT

public:
    // `viewClasses`: a view is of one of these classes or derived from one. If there are none,
    // the finder may guess. It then looks once nothing has been shown or resized for a moment,
    // because a widget that is not laid out or filled yet looks like something else. In a
    // program that never rests it looks as often as QuietWait says.
    explicit ViewFinder(const QStringList &viewClasses, bool mayGuess = false);
    ~ViewFinder() override;

    // Reports every view that is there and watches for more. Called once.
    void start();
    void stop();
    // Goes on looking for the classes that it was given, if there are any.
    void stopGuessing();

    // The widget that takes the pointer for `widget`: of a scroll area its viewport, else
    // itself.
    [[nodiscard]] static QWidget *pointerWidget(QWidget *widget);

    bool eventFilter(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    // The widget that takes the pointer in a view. May come more than once for one view.
    void viewFound(QWidget *view);

private:
    void lookAround();
    void look(QWidget *widget);
    [[nodiscard]] bool isView(const QWidget *widget) const;
    void noteChange(const QObject *receiver, const QEvent &event);

    QVector<QByteArray> m_viewClasses;
    bool m_guesses = false;
    QuietWait m_wait;
};

} // namespace gesturewidget
