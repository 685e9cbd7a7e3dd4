// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/MainFrame.h"

namespace gesturewidget {

MainFrame::MainFrame(QMainWindow *window)
    : m_window(window)
{
}

MainFrame::~MainFrame() = default;

} // namespace gesturewidget
