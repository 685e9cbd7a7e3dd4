// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/sheet/SheetContent.h"

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace settings {

class BindingsEditor;

// Export, import, print and reset of a program's bindings, with the dialogs for them.
class Exchange : public QObject
{
    Q_OBJECT

public:
    // The dialogs belong to `window`.
    explicit Exchange(QWidget *window);

    // An export holds all rings, because an import is about all of them.
    void exportBindings(const BindingsEditor &editor);
    void importBindings(BindingsEditor &editor);
    // The same once the file is known.
    void exportFile(const BindingsEditor &editor, const QString &path);
    void importFile(BindingsEditor &editor, const QString &path);
    // The sheet of the ring that is shown.
    [[nodiscard]] static launcher::SheetContent sheetOf(const BindingsEditor &editor);
    void print(const BindingsEditor &editor);
    void reset(BindingsEditor &editor);

Q_SIGNALS:
    // One line about something that could not be done.
    void failed(const QString &complaint);
    // One line about something that was done.
    void done(const QString &line);

private:
    QWidget *m_window;
};

} // namespace settings
