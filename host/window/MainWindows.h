// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

#include <functional>

QT_BEGIN_NAMESPACE
class QMainWindow;
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

// The main windows in which gestures run, and the current one: the one in which the person works.
//
// A window becomes current when it is activated, or when makeCurrent() is called for it. If the
// current one goes, the window that was current before it takes its place. Windows leave by
// themselves when they are destroyed.
class MainWindows : public QObject
{
    Q_OBJECT

public:
    // While one exists, the current window changes only if it goes. A dialog acts on the window
    // over which it was opened.
    class Hold
    {
    public:
        explicit Hold(MainWindows *windows); // null is allowed
        // Follows the activation that happened meanwhile.
        ~Hold();
        Q_DISABLE_COPY_MOVE(Hold)

    private:
        QPointer<MainWindows> m_windows;
    };

    // Makes a window current in every case, until the end of the scope.
    class Turn
    {
    public:
        Turn(MainWindows *windows, QWidget *window); // both may be null
        ~Turn();
        Q_DISABLE_COPY_MOVE(Turn)

    private:
        QPointer<MainWindows> m_windows;
        QPointer<QWidget> m_window;
        QPointer<QWidget> m_before;
    };

    // `first` is the current window from the start; null for none.
    explicit MainWindows(QMainWindow *first);
    ~MainWindows() override;

    // Adds a window, unless it is there already. It is not current yet.
    void add(QMainWindow *window);
    [[nodiscard]] bool contains(const QWidget *window) const;
    [[nodiscard]] bool isEmpty() const { return m_windows.isEmpty(); }
    [[nodiscard]] const QVector<QWidget *> &all() const { return m_windows; }
    // Returns null if there is none. While it is being destroyed it is a plain widget.
    [[nodiscard]] QWidget *current() const { return m_current; }
    // Returns the window to which a widget belongs: the nearest one, going up through dialogs and
    // floating docks, that is one of these or has a menu bar of its own. Null if there is none.
    [[nodiscard]] QWidget *ownerOf(const QWidget *widget) const;

    // Ignores a window that is none of these. Has no effect during a Hold and while busy.
    void makeCurrent(QWidget *window);
    // Makes the window of the active one current.
    void followActivation();
    // `isBusy` returns true while the current window must stay, in a gesture for example.
    void setBusy(std::function<bool()> isBusy) { m_isBusy = std::move(isBusy); }

    bool eventFilter(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    void added(QMainWindow *window);
    void currentChanged();
    // The first Hold begins, the last one has ended.
    void holdBegins();
    void holdEnds();
    // The only window is about to go. `isComplete`: it is not half destroyed yet.
    void lastLeaves(bool isComplete);
    // The window is not the current one any more. It may be half destroyed.
    void removed(QWidget *window);

private:
    void setCurrent(QWidget *window);
    void remove(QWidget *window, bool isComplete);

    QVector<QWidget *> m_windows; // the one that was current last comes last
    QWidget *m_current = nullptr;
    std::function<bool()> m_isBusy;
    int m_holds = 0;
};

} // namespace gesturewidget
