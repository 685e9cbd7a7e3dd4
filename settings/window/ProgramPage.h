// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/health/Advice.h"

#include <QPointer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QToolButton;
QT_END_NAMESPACE

namespace settings {

class BindingsEditor;
class CommandDrag;
class CommandPanel;
class RingView;
class Switch;
class TriggerPanel;

// Everything about one program: its switch, whether gestures work in it, its ring, its commands and
// what starts a gesture.
class ProgramPage : public QWidget
{
    Q_OBJECT

public:
    explicit ProgramPage(QWidget *parent = nullptr);

    // Shows a program; `editor` must outlive that. Null shows nothing.
    void showProgram(BindingsEditor *editor, const QIcon &icon, bool isOn);
    void setOn(bool isOn);
    // Finds out again what stands in the way.
    void examine();
    void focusSearch();

Q_SIGNALS:
    void switchWanted(bool isOn);

private:
    [[nodiscard]] QWidget *createHeader();
    [[nodiscard]] QWidget *createRing();
    [[nodiscard]] QWidget *createCommands();
    void connectParts();
    void showBindings();
    void showRings();
    void fillOwnRings();
    void showCommands();
    void showAdvice();

    QPointer<BindingsEditor> m_editor;
    QList<Advice> m_advice;
    bool m_isOn = false;

    QLabel *m_icon = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_state = nullptr;
    QLabel *m_switchLabel = nullptr;
    Switch *m_switch = nullptr;
    QPushButton *m_enable = nullptr;
    QRadioButton *m_four = nullptr;
    QRadioButton *m_eight = nullptr;
    QLabel *m_ringLabel = nullptr;
    QComboBox *m_rings = nullptr;
    QToolButton *m_ownRings = nullptr;
    RingView *m_ring = nullptr;
    CommandPanel *m_commands = nullptr;
    QLabel *m_hint = nullptr;
    QLabel *m_firstHint = nullptr;
    TriggerPanel *m_trigger = nullptr;
    CommandDrag *m_drag = nullptr;
};

} // namespace settings
