#pragma once

#include "host/files/RememberedCommand.h"
#include "sdk/chx/CHxUICommandItem.h"

#include <QAction>
#include <QIcon>
#include <QPointer>
#include <QString>

namespace gesturewidget {

// One command of the program, a QAction of its menus or toolbars. Owned by the catalogue,
// which keeps it when the action goes: texts and icons stay as they were last seen.
class ActionItem : public CHxUICommandItem
{
public:
    // `key` is what finds the action again from start to start, see CommandCatalogue.
    ActionItem(const QString &identifier, const QString &key);
    ~ActionItem() override;

    [[nodiscard]] CHxString GetIdentifier() const override { return m_identifier; }
    // The identifier: running it asks the catalogue for it.
    [[nodiscard]] CHxString GetCommandString() const override { return m_identifier; }
    [[nodiscard]] CHxString GetCaption() const override { return m_caption; }
    [[nodiscard]] CHxString GetTip() const override { return m_tip; }
    // A QIcon holds all its sizes, so both are the same: the program's icon, with a halo where
    // the ring shows it.
    [[nodiscard]] QIcon GetSmallIcon() const override { return m_contrastIcon; }
    [[nodiscard]] QIcon GetLargeIcon() const override { return m_contrastIcon; }

    // Nothing: what the program's own commands are called is the program's business.
    void SetName(const CHxString &) override { }
    void SetMacro(const CHxString &) override { }
    void SetStatusText(const CHxString &) override { }

    // The icon as the program has it.
    [[nodiscard]] const QIcon &icon() const { return m_icon; }
    [[nodiscard]] const QString &key() const { return m_key; }
    void setKey(const QString &key) { m_key = key; }
    // What it is called before it has ever had an action.
    void setCaption(const QString &caption) { m_caption = caption; }
    // The same with all that was known of it when the program ran last.
    void recall(const RememberedCommand &command);
    // The action that it stood for last; null when that is destroyed.
    [[nodiscard]] QAction *action() const { return m_action; }
    // Where that action was, to be compared only: nothing may be there any more.
    [[nodiscard]] const QAction *address() const { return m_address; }
    void setAction(QAction *action);
    // Whether running it would do something at the moment.
    [[nodiscard]] bool isUsable() const { return isPresent && m_action && m_action->isEnabled(); }
    // Reads texts and icon anew.
    void read();

    // Whether the action is in a menu or toolbar at the moment, as the last scan saw it.
    bool isPresent = false;
    // The same as the scan before that saw it.
    bool wasPresent = false;
    // The name of the group it was last seen in.
    QString group;
    // Whether that is a toolbar, rather than a menu.
    bool isInToolBar = false;
    // Whether it is to be offered in any case: somebody has bound it, or may.
    bool isExpected = false;
    // Whether it is not to be offered before it has its first action: the program has none.
    bool isLacking = false;
    // Whether its key is that of an action which it had at an earlier start.
    bool isRemembered = false;

    // Whether an action is a command that a person can see and run: separators, menus and
    // invisible ones are not.
    [[nodiscard]] static bool isCommand(const QAction *action);
    // What a person sees of an action without an icon; may be empty.
    [[nodiscard]] static QString captionOf(const QAction *action);

private:
    void setIcon(const QIcon &icon);

    QString m_identifier;
    QString m_key;
    QPointer<QAction> m_action;
    const QAction *m_address = nullptr;
    QString m_caption;
    QString m_tip;
    QString m_tipSource; // what m_tip was made from
    QIcon m_icon;
    QIcon m_contrastIcon;
};

} // namespace gesturewidget
