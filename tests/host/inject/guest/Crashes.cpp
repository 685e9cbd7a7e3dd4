// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/inject/guest/Crashes.h"

#include "tests/host/inject/guest/GuestWindow.h"
#include "tests/host/inject/guest/Steps.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QIconEngine>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include <csignal>
#include <cstdlib>
#include <functional>

#include <unistd.h>

namespace {

void die()
{
    std::signal(SIGSEGV, SIG_DFL);
    std::raise(SIGSEGV);
}

// Does something when somebody asks it for a picture. The host does, to remember the icon, and no
// menu is open then.
class FatalIcon : public QIconEngine
{
public:
    explicit FatalIcon(std::function<void()> end)
        : m_end(std::move(end))
    {
    }

    void paint(QPainter *, const QRect &, QIcon::Mode, QIcon::State) override { m_end(); }
    QPixmap pixmap(const QSize &, QIcon::Mode, QIcon::State) override
    {
        m_end();
        return {};
    }
    [[nodiscard]] QIconEngine *clone() const override { return new FatalIcon(m_end); }

private:
    std::function<void()> m_end;
};

void addIcon(GuestWindow &window, const std::function<void()> &end)
{
    window.menuBar()->actions().first()->menu()->addAction(QIcon(new FatalIcon(end)),
                                                           QStringLiteral("&Fatal"));
}

// The dialog's answer to a typed text is another layout of the table.
void searchAndDie()
{
    const QWidget *dialog = QApplication::activeModalWidget();
    const auto *table = dialog->findChild<QAbstractItemView *>(QStringLiteral("command_tableView"));
    QObject::connect(table->model(), &QAbstractItemModel::layoutChanged, qApp, die);
    dialog->findChild<QLineEdit *>(QStringLiteral("search_lineEdit"))
        ->setText(QStringLiteral("no such command"));
}

} // namespace

bool crash(const QByteArray &way, GuestWindow &window)
{
    // In code of ours.
    if (way == "icon") {
        addIcon(window, die);
    } else if (way == "exit-icon") {
        addIcon(window, [] { std::exit(3); });
    } else if (way == "search") {
        QMetaObject::invokeMethod(window.entry(), &QAction::trigger, Qt::QueuedConnection);
        when([] { return QApplication::activeModalWidget(); }, searchAndDie);
    } else if (way == "leave-icon") {
        addIcon(window, [] { ::_exit(3); });
        // In code of the program.
    } else if (way == "idle") {
        std::raise(SIGKILL);
    } else if (way == "command") {
        QObject::connect(window.line, &QAction::triggered, &window, die);
        runGesture(window);
    } else if (way == "menu") {
        window.view->setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(window.view, &QWidget::customContextMenuRequested, &window, die);
        window.press();
        window.release(0);
    } else if (way == "ring") {
        openRing(window);
        QTimer::singleShot(0, &window, die);
    } else if (way == "dialog") {
        QMetaObject::invokeMethod(window.entry(), &QAction::trigger, Qt::QueuedConnection);
        when([] { return QApplication::activeModalWidget(); }, die);
    } else {
        return false;
    }
    return true;
}
