// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <Qt>

namespace gesturewidget {

// The special features of one program, read from <folder>/<program>.json.
//
// A profile is data only. A program without one gets the defaults below, and the host guesses what
// a profile would say.
struct ProgramProfile
{
    // The executable's name, such as the first word that a person types to start it.
    QString program;
    // Class names of the views, the widgets that show drawings, or of their base classes.
    QStringList viewClasses;
    // The button, and the keys held with it, that start a gesture. A profile may let them depend on
    // a setting of the program. This is read once.
    Qt::MouseButton triggerButton = Qt::RightButton;
    Qt::KeyboardModifiers triggerModifiers = Qt::NoModifier;
    // "triggerBySetting" as the profile has it, and its "trigger" and "usedTriggers", which count for
    // other values of the setting. Both are empty without "triggerBySetting".
    QJsonObject triggerBySetting;
    QJsonObject fixedTriggers;
    // What the program is set to there. Empty if nothing was found.
    QString triggerSetting;
    // True if the file says so. Otherwise a program without flat drawings gets another trigger.
    bool hasTrigger = false;
    // The triggers with which the program itself does something in its drawings, as TriggerText.h
    // writes them. A person can choose one of them, but then the program no longer gets that drag. A
    // drag that does the same as without its keys is not listed, because nothing is lost with it.
    QStringList usedTriggers;
    // From a well-known identifier, such as "ID_LINE", to the names of the program's own action:
    // its object name, or its path of captions such as "File/Open...". A program that changes its
    // menus with the task may have several names; the first one counts whose action can be used at
    // the moment.
    QHash<QString, QStringList> wellKnownCommands;
    // True if the program shows other menus and commands with each task. A command that was never
    // seen may then turn up at any time.
    bool changesMenus = false;
    // Object name or caption of the menu that gets the entry of the module; empty to look
    // for one called "Tools".
    QString toolsMenu;
    // Names of actions that tell the person's task, such as a workbench. The first of them that exists
    // is in a group, and the task is the object name of the group's checked action. Empty if the
    // program has no such group.
    QStringList taskActions;
    // True if the task is the class name of the active MDI child; without one, that of the active view.
    bool isTaskOfView = false;
    // By task, the first bindings of a ring of its own: identifiers by the directions' keys, "81" to
    // "88" and "41" to "44". What is missing comes from the shared ring.
    QHash<QString, QHash<QString, QString>> taskBindings;
    // By task, what the identifiers of its commands begin with. While the task is on, its menus show all
    // of them: one that is bound, begins so and was never seen does not exist.
    QHash<QString, QString> taskPrefixes;
    // Class name of the line edit in which people type commands; empty when there is none.
    QString commandLineClass;

    [[nodiscard]] bool knowsTasks() const { return isTaskOfView || !taskActions.isEmpty(); }

    // The content of a profile's file.
    [[nodiscard]] QJsonObject toJson() const;

    // The profile of `program` from the first of `folders` that holds one. If there is none,
    // returns the defaults and empties `message`. If it cannot be read or is not well-formed,
    // returns the defaults too, and `message` is one line that names the file and what is wrong
    // with it. `message` may be null.
    [[nodiscard]] static ProgramProfile forProgram(const QString &program, const QStringList &folders,
                                                   QString *message);

private:
    [[nodiscard]] QJsonObject tasksToJson() const;
};

} // namespace gesturewidget
