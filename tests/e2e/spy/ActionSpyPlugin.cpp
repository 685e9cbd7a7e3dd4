// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/e2e/spy/ActionSpy.h"

#include <QGenericPlugin>

// Makes Qt load the spy: QT_QPA_GENERIC_PLUGINS=actionspy.
class ActionSpyPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "actionspy.json")

public:
    QObject *create(const QString &name, const QString &) override
    {
        return name == QLatin1String("actionspy") ? new ActionSpy : nullptr;
    }
};

#include "ActionSpyPlugin.moc"
