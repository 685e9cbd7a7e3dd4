// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/inject/BorrowedVariables.h"

#include <QObject>

#include <memory>

namespace inject {

// The plug-in's object in an application without widgets, where the plug-in has nothing to do. If
// that application never reaches its event loop, it was short-lived, and the next one finds the
// variables again. The application object owns this.
class BareApplication : public QObject
{
    Q_OBJECT

public:
    explicit BareApplication(std::unique_ptr<BorrowedVariables> variables);
    ~BareApplication() override;

private:
    // The application reached its event loop, so it is the one that the program runs.
    void onEventLoop();

    std::unique_ptr<BorrowedVariables> m_variables;
};

} // namespace inject
