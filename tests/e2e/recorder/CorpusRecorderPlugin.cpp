// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/e2e/recorder/CorpusRecorder.h"

#include <QGenericPlugin>

// Makes Qt load the recorder: QT_QPA_GENERIC_PLUGINS=corpusrecorder.
class CorpusRecorderPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "corpusrecorder.json")

public:
    QObject *create(const QString &name, const QString &) override
    {
        return name == QLatin1String("corpusrecorder") ? new CorpusRecorder : nullptr;
    }
};

#include "CorpusRecorderPlugin.moc"
