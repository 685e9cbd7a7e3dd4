// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

#include <optional>

// The drop-down in a cell of the direction column. Only a click on an entry of the open list
// or Enter in it chooses: every choice takes the direction from another command, so a turn of
// the wheel or a key that passes entries by must not choose them on the way.
//
// While the list is closed, Alt+Down, Alt+Up, F4 and Space open it. The wheel and all other
// keys go on to the table, which scrolls and moves to other cells.
class DirectionBox : public QComboBox
{
    Q_OBJECT

public:
    explicit DirectionBox(QWidget *parent);

    // True once the user has chosen an entry, even the current one.
    [[nodiscard]] bool isChosen() const { return m_chosen; }

    // When Enter was pressed in the open list, as its events say; empty before.
    [[nodiscard]] std::optional<quint64> enterTime() const { return m_enterTime; }

    void showPopup() override;
    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool m_chosen = false;
    std::optional<quint64> m_enterTime;
};
