// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/inject/BorrowedVariables.h"

#include <QObject>

#include <memory>

namespace inject {

// The plug-in's object in an application without widgets, where it has nothing to do. If that
// application never reaches its event loop, it was made for a moment only, and the next one finds
// the variables again. The application object owns this.
class BareApplication : public QObject
{
    Q_OBJECT

public:
    explicit BareApplication(std::unique_ptr<BorrowedVariables> variables);
    ~BareApplication() override;

private:
    // It is the program's own one.
    void onEventLoop();

    std::unique_ptr<BorrowedVariables> m_variables;
};

} // namespace inject
