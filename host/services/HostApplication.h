// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxApplication.h"

namespace gesturewidget {

// The application object that modules see. It stores the mode that a module sets. The mode has no
// effect, because the pointer filter learns from the grab that a module follows the pointer.
class HostApplication : public CHxApplication
{
public:
    HostApplication();
    ~HostApplication() override;

    [[nodiscard]] qint16 GetMode() const override { return m_mode; }
    void SetMode(qint16 mode) override { m_mode = mode; }

private:
    qint16 m_mode = 0;
};

} // namespace gesturewidget
