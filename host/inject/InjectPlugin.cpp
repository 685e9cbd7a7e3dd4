#include "host/inject/InjectPlugin.h"

#include "host/ExplanationChannel.h"
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
        const int explanation = inject::takeExplanationSocket();
        host::tell(explanation, {{QStringLiteral("process"), int(QCoreApplication::applicationPid())}});
        if (qobject_cast<QApplication *>(QCoreApplication::instance()))
            return new inject::Injector(explanation);
        host::tell(explanation, {{QStringLiteral("problem"), QStringLiteral("it has no widgets")}});
        return new QObject; // of null, Qt would complain
    } catch (...) {
        return nullptr; // the program does without gestures
    }
}
