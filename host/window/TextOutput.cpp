// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/TextOutput.h"

#include "sdk/chx/CHxString.h"

#include <QStatusBar>

namespace gesturewidget {
namespace {

constexpr int kAWhile = 5000; // milliseconds

} // namespace

TextOutput::TextOutput(QMainWindow *window)
    : m_window(window)
{
}

TextOutput::~TextOutput() = default;

void TextOutput::SetText(const CHxString &text, bool immediate)
{
    QStatusBar *bar = statusBar();
    if (!bar)
        return;
    bar->showMessage(text.toQString().simplified());
    if (immediate)
        bar->repaint();
}

void TextOutput::showForAWhile(const QString &text)
{
    if (QStatusBar *bar = statusBar())
        bar->showMessage(text.simplified(), kAWhile);
}

// Searches the children, because QMainWindow::statusBar() would make a status bar.
QStatusBar *TextOutput::statusBar() const
{
    const auto *window = qobject_cast<const QMainWindow *>(m_window.data());
    return window ? window->findChild<QStatusBar *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

} // namespace gesturewidget
