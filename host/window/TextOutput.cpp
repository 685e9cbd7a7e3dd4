// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/TextOutput.h"

#include "sdk/chx/CHxString.h"

#include <QTimer>

#include <algorithm>

namespace gesturewidget {
namespace {

constexpr int kAWhile = 5000; // milliseconds

} // namespace

TextOutput::TextOutput(QMainWindow *window)
    : m_window(window)
{
}

TextOutput::~TextOutput() = default;

void TextOutput::setWindow(QWidget *window)
{
    if (window == m_window)
        return;
    giveMessageBack();
    m_window = window;
}

void TextOutput::SetText(const CHxString &text, bool immediate)
{
    QStatusBar *bar = statusBar();
    if (!bar)
        return;
    const QString line = text.toQString().simplified();
    if (line.isEmpty()) {
        giveMessageBack();
    } else {
        if (!isShown())
            keepMessageOf(*bar);
        m_text = line;
        bar->showMessage(line);
    }
    if (immediate)
        bar->repaint();
}

void TextOutput::showForAWhile(const QString &text)
{
    if (QStatusBar *bar = statusBar())
        bar->showMessage(text.simplified(), kAWhile);
}

bool TextOutput::isShown() const
{
    return m_bar && !m_text.isEmpty() && m_bar->currentMessage() == m_text;
}

void TextOutput::keepMessageOf(QStatusBar &bar)
{
    m_bar = &bar;
    m_hidden = bar.currentMessage();
    // Nothing but this timer of the status bar's own tells how long a message stays. Qt may let it end
    // late, so what remains can be more than the message's time.
    const auto *timer = bar.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    m_hiddenEnd = timer && timer->isActive()
                    ? QDeadlineTimer(std::min(timer->remainingTime(), timer->interval()))
                    : QDeadlineTimer(QDeadlineTimer::Forever);
}

void TextOutput::giveMessageBack()
{
    if (isShown()) {
        if (m_hidden.isEmpty() || m_hiddenEnd.hasExpired())
            m_bar->clearMessage();
        else // 0 for a message without an end
            m_bar->showMessage(m_hidden, std::max(0, static_cast<int>(m_hiddenEnd.remainingTime())));
    }
    m_text.clear();
}

// Searches the children, because QMainWindow::statusBar() would make a status bar.
QStatusBar *TextOutput::statusBar() const
{
    const auto *window = qobject_cast<const QMainWindow *>(m_window.data());
    return window ? window->findChild<QStatusBar *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

} // namespace gesturewidget
