// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

QT_BEGIN_NAMESPACE
class QIcon;
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace settings {

// One line for the person, with a button that closes it. Hidden while there is nothing to say.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    // Something could not be done.
    void complain(const QString &text);
    // Something was done, or is good to know.
    void tell(const QString &text);
    [[nodiscard]] QString text() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QIcon closeIcon() const;
    void showText(const QString &line, bool isComplaint);

    QLabel *m_icon;
    QLabel *m_label;
    QToolButton *m_close;
};

} // namespace settings
