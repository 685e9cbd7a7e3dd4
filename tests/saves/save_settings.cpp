// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/settings/KnownCommands.h"
#include "launcher/settings/SettingsTasks.h"

#include <QCoreApplication>

#include <cstdio>

// Imports two files of bindings in turn until it is killed: save_settings SETTINGS FILE FILE
int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const launcher::KnownCommands commands;
    launcher::SettingsTasks tasks(QStringLiteral("guest"), arguments.value(1), commands,
                                  QStringLiteral("right"));
    std::puts("ready");
    std::fflush(stdout);
    for (int i = 0;; ++i) {
        const launcher::Outcome outcome = tasks.importFrom(arguments.value(2 + i % 2));
        if (!outcome.isDone()) {
            std::fputs(qPrintable(outcome.complaint), stderr);
            return 1;
        }
    }
}
