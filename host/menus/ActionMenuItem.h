#pragma once

#include "sdk/chx/CHxUIMenuItem.h"

#include <QAction>
#include <QPointer>
#include <QString>

namespace gesturewidget {

class MenuMirror;

// An entry of the program's own menus, or one of its menus. Modules may read it; setting
// anything does nothing, the program's menus stay the program's.
class ActionMenuItem : public CHxUIMenuItem
{
public:
    ActionMenuItem(MenuMirror &mirror, QAction *action);
    ~ActionMenuItem() override;

    // Of a top-level menu "ID_Mn" and its name, of a command its identifier; empty otherwise.
    [[nodiscard]] CHxString GetIdentifier() const override;
    [[nodiscard]] CHxString GetText() const override;
    void SetText(const CHxString &) override { }
    [[nodiscard]] CHxUICommandItem *GetCommandItem() const override;
    void SetCommandItem(CHxUICommandItem *) override { }
    [[nodiscard]] CHxUIMenuItemCollection *GetSubItems() const override;

    void setIdentifier(const QString &identifier) { m_identifier = identifier; }
    [[nodiscard]] QAction *source() const { return m_action; }

private:
    MenuMirror &m_mirror;
    QPointer<QAction> m_action;
    QString m_identifier;
};

} // namespace gesturewidget
