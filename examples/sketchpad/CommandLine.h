// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
QT_END_NAMESPACE

// The line at the bottom, in which a person types commands and coordinates.
class CommandLine : public QWidget
{
    Q_OBJECT

public:
    struct Input
    {
        enum class Kind { Nothing, Point, Number, Words };
        Kind kind = Kind::Nothing;
        QPointF point;
        double number = 0;
    };
    // "3,4" is a point, "@3,4" a point relative to `last`. "5<90" and "@5<90" are the same by
    // distance and angle in degrees. "3.5" is a number, and everything else is words.
    [[nodiscard]] static Input parse(const QString &text, const QPointF &last);

    explicit CommandLine(QWidget *parent = nullptr);
    void setPrompt(const QString &prompt);
    [[nodiscard]] QString text() const;
    // Takes a key that was pressed elsewhere in the window.
    void takeKey(QKeyEvent *event);

Q_SIGNALS:
    // Enter was pressed; the line is empty again.
    void entered(const QString &text);
    void textChanged(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLabel *m_prompt;
    QLineEdit *m_edit;
};
