#pragma once

#include "sdk/chx/CHxApplication.h"

namespace gesturewidget {

// The host as an application: keeps the mode that a module sets. The mode has no effect of
// its own here, since the pointer filter knows from the grab when a module follows the
// pointer by itself.
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
