#include "host/inject/InjectPlugin.h"

#include "host/inject/Injector.h"
#include "host/inject/PluginEnvironment.h"

#include <QApplication>

InjectPlugin::InjectPlugin(QObject *parent)
    : QGenericPlugin(parent)
{
}

InjectPlugin::~InjectPlugin() = default;

QObject *InjectPlugin::create(const QString &, const QString &)
{
    try {
        inject::cleanEnvironment();
        if (qobject_cast<QApplication *>(QCoreApplication::instance()))
            return new inject::Injector;
        return new QObject; // of null, Qt would complain
    } catch (...) {
        return nullptr; // the program does without gestures
    }
}
