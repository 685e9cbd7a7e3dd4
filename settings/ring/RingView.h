// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>
#include <QPixmap>
#include <QString>
#include <QVector>
#include <QWidget>

namespace settings {

class SectorButton;

// A command as the ring and the list show it.
struct ShownCommand
{
    QString identifier; // empty for none
    QString caption;
    QPixmap icon; // may be null
};

// The ring as it opens under the pointer, with the command of each direction. The directions are
// buttons, so that the keyboard and screen readers reach them:
//
// - the arrow keys, Page Up and Page Down go round the ring;
// - Enter or a click activates a direction;
// - Delete empties it;
// - Space picks its command up; Space at another direction exchanges the two, Escape puts it back.
class RingView : public QWidget
{
    Q_OBJECT

public:
    explicit RingView(QWidget *parent = nullptr);

    // By direction index; four or eight.
    void setCommands(const QVector<ShownCommand> &commands);
    [[nodiscard]] const QVector<ShownCommand> &commands() const { return m_commands; }
    // The text in the middle, where a gesture begins.
    void setMiddleText(const QString &text);
    // Draws a direction as the one that a drag would end in; -1 for none.
    void setTarget(int direction);
    [[nodiscard]] int target() const { return m_target; }
    // Draws the command of a direction as taken away; -1 for none.
    void setTaken(int direction);
    // The direction that the keyboard is at.
    [[nodiscard]] int currentDirection() const { return m_current; }

    // The square that shows the ring, in pixels of this widget.
    [[nodiscard]] QRect square() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void activated(int direction);
    void emptied(int direction);
    void exchanged(int direction, int other);
    // The mouse drags the command of a direction away. `source` holds the mouse.
    void dragBegun(int direction, QWidget *source);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void layOut();
    void describe();
    void goTo(int direction);
    void setPickedUp(int direction);
    void paintLabel(QPainter &painter, int direction) const;
    [[nodiscard]] int highlighted() const;

    QVector<ShownCommand> m_commands;
    QVector<SectorButton *> m_buttons;
    QString m_middleText;
    int m_target = -1;
    int m_taken = -1;
    int m_pickedUp = -1;
    int m_current = 0;
};

} // namespace settings

Q_DECLARE_METATYPE(settings::ShownCommand)
