// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGenericPlugin>

// The plug-in that Qt loads when QT_QPA_GENERIC_PLUGINS contains "mousegestures".
class InjectPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "mousegestures.json")

public:
    explicit InjectPlugin(QObject *parent = nullptr);
    ~InjectPlugin() override;

    // Qt calls this while the application object is being constructed. Never throws. In a program
    // without widgets the returned object does nothing.
    QObject *create(const QString &key, const QString &arguments) override;
};
