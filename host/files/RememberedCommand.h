#pragma once

#include <QByteArray>
#include <QString>

namespace gesturewidget {

// A command of a program, as it was when somebody last looked.
struct RememberedCommand
{
    QString identifier; // what bindings are stored under; never empty
    QString command; // the key that finds its action again, see CommandCatalogue
    QString caption;
    QString tip; // one line, may be empty
    QString group; // the top-level menu or the toolbar that had it, may be empty
    QByteArray icon; // a PNG file, may be empty
    bool isInToolBar = false; // and in no menu

    friend bool operator==(const RememberedCommand &a, const RememberedCommand &b)
    {
        return a.identifier == b.identifier && a.command == b.command && a.caption == b.caption
            && a.tip == b.tip && a.group == b.group && a.icon == b.icon
            && a.isInToolBar == b.isInToolBar;
    }
};

} // namespace gesturewidget
