// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <array>

namespace inject {

// Takes the plug-in's variables out of the environment, and restores them in the destructor unless
// keep() was called. A program may create an application object for a moment, to ask the graphics
// library something or to show a message, before it creates the one that it runs. That second one
// also loads plug-ins by the environment.
class BorrowedVariables
{
public:
    BorrowedVariables();
    ~BorrowedVariables();
    Q_DISABLE_COPY_MOVE(BorrowedVariables)

    // The variables are no longer needed, and stay out of the environment.
    void keep() { m_isKept = true; }
    // Returns the socket for explaining this program, see host/files/ExplanationChannel.h; -1 if
    // nobody asked.
    [[nodiscard]] int explanation() const { return m_explanation; }
    // Returns the name that the launcher gives this program; empty if it gives none.
    [[nodiscard]] const QString &name() const { return m_name; }

private:
    struct Variable
    {
        const char *name;
        QByteArray before;
        bool wasSet;
        QByteArray after;
    };

    std::array<Variable, 4> m_variables;
    int m_explanation;
    QString m_name;
    bool m_isKept = false;
};

} // namespace inject
