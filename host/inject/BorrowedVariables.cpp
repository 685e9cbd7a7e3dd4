// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/inject/BorrowedVariables.h"

#include "host/files/ExplanationChannel.h"
#include "host/files/InstallPaths.h"
#include "host/inject/PluginEnvironment.h"

namespace inject {

BorrowedVariables::BorrowedVariables()
    : m_variables{{{"QT_QPA_GENERIC_PLUGINS", {}, false, {}},
                   {"QT_PLUGIN_PATH", {}, false, {}},
                   {gesturewidget::kExplanationVariable, {}, false, {}},
                   {gesturewidget::kNameVariable, {}, false, {}}}}
{
    for (Variable &variable : m_variables) {
        variable.before = qgetenv(variable.name);
        variable.wasSet = qEnvironmentVariableIsSet(variable.name);
    }
    cleanEnvironment();
    m_explanation = takeExplanationSocket();
    m_name = takeName();
    for (Variable &variable : m_variables)
        variable.after = qgetenv(variable.name);
}

BorrowedVariables::~BorrowedVariables()
{
    if (m_isKept)
        return;
    for (const Variable &variable : m_variables) {
        // Keep a value that the program has set in the meantime.
        if (variable.wasSet && qgetenv(variable.name) == variable.after)
            qputenv(variable.name, variable.before);
    }
}

} // namespace inject
