// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
QT_END_NAMESPACE

namespace settings {

class BindingsEditor;

// A list to choose the trigger from, and a field that records one. Marks the triggers that the
// program uses itself.
class TriggerPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TriggerPanel(QWidget *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

    void showTrigger(const BindingsEditor &editor);
    // Shows only what there is to say about the chosen trigger. The program may have been started or
    // ended meanwhile.
    void showNote(const BindingsEditor &editor);

Q_SIGNALS:
    // See launcher::SettingsTasks::setTrigger().
    void wanted(const QString &trigger);

private:
    QComboBox *m_list;
    QLabel *m_note; // about the chosen trigger
};

} // namespace settings
