// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// gesture-driver [COMMAND...]: carries out each argument as a command or, without arguments,
// each line of standard input. See Commands.h. Exits 1 at the first argument that fails.

#include "tests/e2e/xinput/Commands.h"
#include "tests/e2e/xinput/XDesktop.h"

#include <cstdio>
#include <iostream>
#include <string>

int main(int argc, char **argv)
{
    XDesktop desktop;
    if (!desktop.isOpen()) {
        std::fputs("gesture-driver: there is no X11 display\n", stderr);
        return 1;
    }
    Commands commands(desktop);
    const auto run = [&commands](const QString &line) {
        const QString answer = commands.run(line);
        std::cout << answer.toStdString() << std::endl; // flushed, because the caller waits for it
        return answer.startsWith(QLatin1String("ok"));
    };

    for (int i = 1; i < argc; ++i) {
        if (!run(QString::fromLocal8Bit(argv[i])))
            return 1;
    }
    std::string line;
    while (argc == 1 && std::getline(std::cin, line))
        run(QString::fromStdString(line));
    return 0;
}
