// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxCommand.h"
#include "sdk/od/OdRxObjectImpl.h"
#include "sdk/od/OdSmartPtr.h"

#include <QString>

#include <functional>

namespace tests {

// A command of the command stack that runs the test's own function.
class ScriptedCommand : public CHxCommand
{
public:
    explicit ScriptedCommand(const QString &name)
        : m_name(name)
    {
        ++alive;
    }
    ~ScriptedCommand() override { --alive; }

    // The number of these commands that exist.
    static inline int alive = 0;

    [[nodiscard]] static OdSmartPtr<ScriptedCommand> make(const char *name)
    {
        return {new OdRxObjectImpl<ScriptedCommand>(QString::fromUtf8(name)), kOdRxAttach};
    }

    [[nodiscard]] OdString globalName() const override { return OdString(QLatin1Char('_') + m_name); }
    [[nodiscard]] OdString localName() const override { return OdString(m_name); }
    int Execute(CHxCommandContext *) override
    {
        ++runs;
        if (body)
            body();
        return kNormal;
    }

    int runs = 0;
    std::function<void()> body;

private:
    QString m_name;
};

} // namespace tests
