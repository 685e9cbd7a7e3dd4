#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <array>

namespace inject {

// Takes the plug-in's variables out of the environment, and puts them back when it goes
// unless they were kept. A program may make an application object for a moment, to ask the
// graphics library something or to show a message, before it makes the one that it runs;
// the second one, too, loads plug-ins by the environment.
class BorrowedVariables
{
public:
    BorrowedVariables();
    ~BorrowedVariables();
    Q_DISABLE_COPY_MOVE(BorrowedVariables)

    // The variables have done what they were for, and stay out of the environment.
    void keep() { m_isKept = true; }
    // The socket over which this program is to be explained, see
    // host/files/ExplanationChannel.h; -1 when it is not.
    [[nodiscard]] int explanation() const { return m_explanation; }

private:
    struct Variable
    {
        const char *name;
        QByteArray before;
        bool wasSet;
        QByteArray after;
    };

    std::array<Variable, 3> m_variables;
    int m_explanation;
    bool m_isKept = false;
};

} // namespace inject
