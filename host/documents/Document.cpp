// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/Document.h"

namespace gesturewidget {

Document::Document(QWidget *view, std::function<QWidget *()> standIn)
    : m_view(view)
    , m_standIn(std::move(standIn))
{
}

Document::~Document() = default;

QWidget *Document::GetViewWidget()
{
    return m_view ? m_view.data() : m_standIn();
}

void Document::close()
{
    m_isOpen = false;
    m_view.clear();
}

} // namespace gesturewidget
