// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/documents/InputPointManager.h"
#include "sdk/chx/CHxDocument.h"

#include <QPointer>
#include <QWidget>

#include <functional>

namespace gesturewidget {

// One drawing, known by the widget that shows it. Outlives that widget.
class Document : public CHxDocument
{
public:
    // `view` must not be null. `standIn` returns the widget that replaces the view when the view is
    // gone. It must never return null.
    Document(QWidget *view, std::function<QWidget *()> standIn);
    ~Document() override;

    [[nodiscard]] CHxInputPointManager *GetInputPointManager() override { return &m_inputPoints; }
    [[nodiscard]] QWidget *GetViewWidget() override;

    [[nodiscard]] InputPointManager &inputPoints() { return m_inputPoints; }
    // The view; null once it is gone.
    [[nodiscard]] QWidget *view() const { return m_view; }
    // False once the document was closed.
    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    void close();

private:
    InputPointManager m_inputPoints;
    QPointer<QWidget> m_view;
    std::function<QWidget *()> m_standIn;
    bool m_isOpen = true;
};

} // namespace gesturewidget
