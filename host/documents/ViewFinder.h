#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>
#include <QTimer>
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
    // Names of classes of which a view is one, or is derived from one. Where there are
    // none, it may guess; it then looks once nothing has been shown or resized for a
    // moment: a widget that is not laid out yet, or not filled, looks like something else.
    explicit ViewFinder(const QStringList &viewClasses, bool mayGuess = false);
    ~ViewFinder() override;

    // Reports every view that is there and watches for more. Called once.
    void start();
    void stop();

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
    QTimer m_quiet;
};

} // namespace gesturewidget
