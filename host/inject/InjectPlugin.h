#pragma once

#include <QGenericPlugin>

// What Qt looks for when QT_QPA_GENERIC_PLUGINS names "mousegestures".
class InjectPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "mousegestures.json")

public:
    explicit InjectPlugin(QObject *parent = nullptr);
    ~InjectPlugin() override;

    // Called while the application object is being constructed. Never throws. In a program
    // without widgets the object that it returns does nothing.
    QObject *create(const QString &key, const QString &arguments) override;
};
