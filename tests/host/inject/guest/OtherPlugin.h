// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGenericPlugin>

// A plug-in that prints that it was loaded, and with which arguments.
class OtherPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "otherplugin.json")

public:
    explicit OtherPlugin(QObject *parent = nullptr);
    ~OtherPlugin() override;

    QObject *create(const QString &key, const QString &arguments) override;
};
