// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/inject/guest/OtherPlugin.h"

#include <cstdio>

OtherPlugin::OtherPlugin(QObject *parent)
    : QGenericPlugin(parent)
{
}

OtherPlugin::~OtherPlugin() = default;

QObject *OtherPlugin::create(const QString &key, const QString &arguments)
{
    std::printf("%s: %s\n", qPrintable(key), qPrintable(arguments));
    std::fflush(stdout);
    return new QObject;
}
