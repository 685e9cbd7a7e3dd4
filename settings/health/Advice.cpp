// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/health/Advice.h"

#include <QCoreApplication>

namespace settings {
namespace {

using Matter = launcher::Finding::Matter;

// Only for the translations.
struct Words
{
    Q_DECLARE_TR_FUNCTIONS(settings::Advice)

public:
    static Advice of(const launcher::Finding &finding, const QString &title)
    {
        switch (finding.matter) {
        case Matter::Program:
            return {tr("%1 is no longer installed.").arg(title),
                    tr("Its commands and directions are kept. Install it again to use them.")};
        case Matter::Qt:
            return {tr("%1 is not made with Qt Widgets, so gestures cannot work in it.").arg(title), {}};
        case Matter::PlugIn:
            return {tr("The part of Mouse Gestures that %1 needs is not installed.").arg(title),
                    finding.text.contains(QLatin1Char('6'))
                        ? tr("Install the package gesturewidget-qt6.")
                        : tr("Install the package gesturewidget.")};
        case Matter::Display:
            return {tr("This desktop runs without X11, so the ring may open away from the pointer."),
                    tr("Log in with X11, or install XWayland.")};
        case Matter::Profile:
            return {tr("The profile of %1 cannot be used: %2").arg(title, finding.text),
                    tr("Mend or remove that file.")};
        case Matter::Settings:
            return {tr("Changes cannot be kept: %1").arg(finding.text),
                    tr("Make that file and its folder yours, and writable.")};
        case Matter::Gestures:
            return {tr("Gestures are switched off in the settings of %1.").arg(title),
                    {},
                    Advice::Remedy::EnableGestures};
        case Matter::Crash:
            return {
                tr("%1 crashed in the code of Mouse Gestures, so gestures stay off in it.").arg(title),
                tr("You can switch them on and try again."), Advice::Remedy::EnableGestures};
        default:
            return {finding.line().mid(2).simplified(), {}};
        }
    }
};

} // namespace

QList<Advice> adviceFor(const launcher::Diagnosis &diagnosis, const QString &title)
{
    QList<Advice> advice;
    for (const launcher::Finding &finding : diagnosis.findings) {
        if (finding.isProblem)
            advice.append(Words::of(finding, title));
    }
    return advice;
}

} // namespace settings
