#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <Qt>

namespace gesturewidget {

// What is special about one program, read from <folder>/<program>.json.
//
// A profile is data only: a program without one gets the defaults below, which suit most
// programs whose drawing view the person picks by hand.
struct ProgramProfile
{
    // The executable's name, such as the first word that a person types to start it.
    QString program;
    // Class names of the widgets that show drawings, also of their base classes.
    QStringList viewClasses;
    // The button, and the keys held with it, that start a gesture.
    Qt::MouseButton triggerButton = Qt::RightButton;
    Qt::KeyboardModifiers triggerModifiers = Qt::NoModifier;
    // Well-known identifier, such as "ID_LINE", to what names the program's own action:
    // its object name, or its path of captions such as "File/Open...". Of several names,
    // for a program that changes its menus with the task, the first counts whose action
    // can be used at the moment.
    QHash<QString, QStringList> wellKnownCommands;
    // Object name or caption of the menu that gets the entry of the module; empty to look
    // for one called "Tools".
    QString toolsMenu;
    // Class name of the line edit in which commands are typed; empty when there is none.
    QString commandLineClass;

    // As such a file has it.
    [[nodiscard]] QJsonObject toJson() const;

    // The profile of `program` from the first of `folders` that holds one. Without one:
    // the defaults, and `message` stays empty. With one that cannot be read or is not
    // well-formed: the defaults too, and `message` is one line that names the file and
    // what is wrong with it. `message` may be null.
    [[nodiscard]] static ProgramProfile forProgram(const QString &program, const QStringList &folders,
                                                   QString *message);
};

} // namespace gesturewidget
