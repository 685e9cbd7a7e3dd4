// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/inject/InjectPlugin.h"

#include "host/files/ExplanationChannel.h"
#include "host/inject/BareApplication.h"
#include "host/inject/Injector.h"

#include <QApplication>

#include <memory>

InjectPlugin::InjectPlugin(QObject *parent)
    : QGenericPlugin(parent)
{
}

InjectPlugin::~InjectPlugin() = default;

QObject *InjectPlugin::create(const QString &, const QString &)
{
    try {
        auto variables = std::make_unique<inject::BorrowedVariables>();
        gesturewidget::tell(variables->explanation(),
                            {{QStringLiteral("process"), int(QCoreApplication::applicationPid())}});
        if (qobject_cast<QApplication *>(QCoreApplication::instance()))
            return new inject::Injector(std::move(variables));
        return new inject::BareApplication(std::move(variables)); // of null, Qt would complain
    } catch (...) {
        return nullptr; // the program does without gestures
    }
}
