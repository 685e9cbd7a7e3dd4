// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/RememberedCommand.h"
#include "sdk/chx/CHxUICommandItem.h"

#include <QAction>
#include <QIcon>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <vector>

class QWidget;

namespace gesturewidget {

// One command of the program: a QAction of its menus or toolbars, one in each main window. The
// catalogue owns it and keeps it when the action is gone; texts and icon then stay as they were.
//
// Texts, icon, action and place are those of one window, which the catalogue chooses.
class ActionItem : public CHxUICommandItem
{
public:
    // `key` finds the action again at the next start, see CommandCatalogue.
    ActionItem(const QString &identifier, const QString &key);
    ~ActionItem() override;

    [[nodiscard]] CHxString GetIdentifier() const override { return m_identifier; }
    // The identifier. The catalogue finds the action by it.
    [[nodiscard]] CHxString GetCommandString() const override { return m_identifier; }
    // The name that tells it apart from other commands, see CommandNames.
    [[nodiscard]] CHxString GetCaption() const override { return m_look.name; }
    [[nodiscard]] CHxString GetTip() const override { return m_look.tip; }
    // Both are the same, because a QIcon holds all its sizes: the program's icon, with a halo at
    // the size that the ring shows.
    [[nodiscard]] QIcon GetSmallIcon() const override { return m_look.contrastIcon; }
    [[nodiscard]] QIcon GetLargeIcon() const override { return m_look.contrastIcon; }

    // No effect: the program names its own commands.
    void SetName(const CHxString &) override { }
    void SetMacro(const CHxString &) override { }
    void SetStatusText(const CHxString &) override { }

    // The caption of its entry in the menu or toolbar.
    [[nodiscard]] const QString &caption() const { return m_look.caption; }
    void setName(const QString &name);
    // Everything that can be known about the command in a later start, but the icon.
    [[nodiscard]] RememberedCommand remembered() const;
    // The icon as the program has it.
    [[nodiscard]] const QIcon &icon() const { return m_look.icon; }
    [[nodiscard]] const QString &key() const { return m_key; }
    void setKey(const QString &key) { m_key = key; }
    // Sets the caption for the time before the command has an action.
    void setCaption(const QString &caption);
    // Sets everything that was known about the command when the program ran last.
    void recall(const RememberedCommand &command);
    // Returns the command's latest action; null if that is destroyed.
    [[nodiscard]] QAction *action() const { return m_look.action; }
    // Returns the address of that action, for comparing only: the action may be gone.
    [[nodiscard]] const QAction *address() const { return m_look.address; }
    void setAction(QAction *action);
    // True if it has had an action since the program started, in any window.
    [[nodiscard]] bool hasHadAction() const { return m_hasHadAction; }
    // Shows the command as it is in the window `to`, after it was shown as in `from`. If it has
    // never been in that window, the texts and the icon stay as they are.
    void showIn(const QWidget *from, const QWidget *to);
    // The same as here.isPresent, for a window that is not shown.
    [[nodiscard]] bool isPresentIn(const QWidget *window) const;
    // Forgets what it was in a window. This must not be the one that is shown.
    void forget(const QWidget *window);
    // Calls `visit` with the address of its action in each window.
    template <class Visit> void forEachAddress(Visit visit) const
    {
        if (m_look.address)
            visit(m_look.address);
        for (const Elsewhere &other : m_others)
            visit(other.look.address);
    }
    // True if running the command would do something at the moment: as for a shortcut, the action is
    // enabled, and so is a menu, toolbar or other widget that has it, up to the menu bar. An action
    // that no widget has needs no place.
    [[nodiscard]] bool isUsable() const;
    // Reads the texts and the icon again. Returns whether there are new texts. The name is then the
    // caption until setName().
    bool read();

    // Its place in one window.
    struct Here
    {
        // The name of the group in which it was seen last.
        QString group = {};
        // The captions of the menus between the group and the command.
        QStringList way = {};
        // True if that group is a toolbar, false if it is a menu.
        bool isInToolBar = false;
        // True if the last scan found the action in a menu or toolbar.
        bool isPresent = false;
        // The same for the scan before the last one.
        bool wasPresent = false;
        // True if its action is the entry of a list, see ListEntries. Such an entry is offered only
        // if somebody has bound it, and never remembered.
        bool isListEntry = false;
    };
    Here here; // in the window that is shown

    // True if it is always offered, because somebody has bound it or may bind it.
    bool isExpected = false;
    // True if it is not offered before it has its first action, because the program seems to have
    // none.
    bool isLacking = false;
    // True if the key belongs to an action that it had at an earlier start.
    bool isRemembered = false;

    // True for an action that a person can see and run as a command. False for separators, menus
    // and invisible actions.
    [[nodiscard]] static bool isCommand(const QAction *action);
    // Returns what a person sees of an action without an icon; may be empty.
    [[nodiscard]] static QString captionOf(const QAction *action);

private:
    // The command as one window shows it, and its action there.
    struct Look
    {
        QPointer<QAction> action = {};
        const QAction *address = nullptr;
        QString caption = {};
        QString name = {};
        QString tip = {};
        QString plainTip = {}; // without the name
        QStringList texts = {}; // of the action, as they were read last
        QIcon icon = {};
        QIcon contrastIcon = {};
    };
    // The command in a window that is not shown.
    struct Elsewhere
    {
        const QWidget *window;
        Look look;
        Here here;
    };

    void setIcon(const QIcon &icon);

    QString m_identifier;
    QString m_key;
    bool m_hasHadAction = false;
    Look m_look; // in the window that is shown
    std::vector<Elsewhere> m_others; // the other windows in which it has an action
};

} // namespace gesturewidget
