// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenuBar>
#include <QStandardPaths>
#include <QTimer>

// Stands in for LibreCAD where the documentation's commands are tried: it has the same view and
// some of the same commands. It ends once gestures have put their entry into its Tools menu and
// remember its commands, or, with STAND_IN_STAYS set, when somebody closes it.
class QG_GraphicView : public QWidget
{
    Q_OBJECT
};

namespace {

void add(QMenu *menu, const char *caption, const char *name)
{
    menu->addAction(QString::fromLatin1(caption))->setObjectName(QString::fromLatin1(name));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QG_GraphicView);
    const auto menu = [&window](const char *caption) {
        return window.menuBar()->addMenu(QString::fromLatin1(caption));
    };
    QMenu *file = menu("&File");
    add(file, "&Open...", "FileOpen");
    add(file, "&Save", "FileSave");
    add(menu("&Edit"), "&Copy", "EditCopy");
    QMenu *view = menu("&View");
    add(view, "Auto Zoom", "ZoomAuto");
    add(view, "Zoom in", "ZoomIn");
    QMenu *tools = menu("&Tools");
    tools->setObjectName(QStringLiteral("tools_menu"));
    QMenu *lines = tools->addMenu(QStringLiteral("Line"));
    add(lines, "2 Points", "DrawLine");
    add(lines, "Angle", "DrawLineAngle");
    add(tools->addMenu(QStringLiteral("Curve")), "Center, Point, Angles", "DrawArc");
    QMenu *modify = tools->addMenu(QStringLiteral("Modify"));
    add(modify, "Trim", "ModifyTrim");
    add(modify, "Offset", "ModifyOffset");
    add(tools, "Text", "DrawText");
    window.resize(800, 600);
    window.show();

    QTimer look;
    QObject::connect(&look, &QTimer::timeout, tools, [tools] {
        const QString remembered =
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
            + QStringLiteral("/gesturewidget/%1.commands.json").arg(QApplication::applicationName());
        const QList<QAction *> entries = tools->actions();
        if (entries.last()->text().startsWith(QLatin1String("Mouse Gestures"))
            && QFileInfo::exists(remembered))
            QCoreApplication::quit();
    });
    if (!qEnvironmentVariableIsSet("STAND_IN_STAYS"))
        look.start(10);
    return QApplication::exec();
}

#include "StandIn.moc"
