// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QMap>

QT_BEGIN_NAMESPACE
class QTreeWidget;
QT_END_NAMESPACE

namespace launcher {
struct Bindings;
}

namespace settings {

class BindingsEditor;

// Shows what an import would change, and asks whether to import.
class ImportPreview : public QDialog
{
    Q_OBJECT

public:
    // `source` is the name of the file, `rings` are those of tasks, by the task's name.
    ImportPreview(const BindingsEditor &editor, const launcher::Bindings &wanted,
                  const QMap<QString, launcher::Bindings> &rings, const QString &source,
                  QWidget *parent);

    // The number of lines that the preview shows.
    [[nodiscard]] int changes() const;

private:
    void compare(const BindingsEditor &editor, const launcher::Bindings &wanted);
    void compareRings(const BindingsEditor &editor, const QMap<QString, launcher::Bindings> &rings);
    void addLine(const QString &what, const QString &before, const QString &after);

    QTreeWidget *m_list;
};

} // namespace settings
