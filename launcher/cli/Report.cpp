// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/cli/Report.h"

#include "launcher/Text.h"

#include <cstdio>

namespace launcher {

int complain(QString text, int status)
{
    std::fflush(stdout); // both may lead into one pipe
    text.replace(QLatin1Char('\n'), QLatin1Char('?')); // names may hold one; ours is one line
    std::fprintf(stderr, "mouse-gestures: %s\n", qPrintable(text));
    return status;
}

int report(const Outcome &outcome)
{
    std::fputs(outcome.output.constData(), stdout);
    if (std::fflush(stdout) != 0)
        return complain(Text::tr("standard output cannot be written"), kTaskFailed);
    return outcome.isDone() ? 0 : complain(outcome.complaint, kTaskFailed);
}

} // namespace launcher
