// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

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

// Finds the widgets that show drawings, those that exist and those that appear later: by their
// class, or by a guess, see ViewGuess.
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

    // Reports every existing view and watches for more. Call this once.
    void start();
    void stop();
    // Goes on looking for the classes that it was given, if there are any.
    void stopGuessing();

    // Returns the widget that gets the pointer events of `widget`: the viewport of a scroll area,
    // otherwise the widget itself.
    [[nodiscard]] static QWidget *pointerWidget(QWidget *widget);

    bool eventFilter(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    // The widget that gets a view's pointer events. Can be emitted more than once for a view.
    void viewFound(QWidget *view);

private:
    void lookAround();
    void look(QWidget *widget);
    [[nodiscard]] bool isView(const QWidget *widget) const;

    QVector<QByteArray> m_viewClasses;
    bool m_guesses = false;
    QuietWait m_wait;
};

} // namespace gesturewidget
