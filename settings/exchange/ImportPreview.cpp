// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/exchange/ImportPreview.h"

#include "host/files/CommandNames.h"
#include "settings/editing/BindingsEditor.h"
#include "settings/trigger/TriggerWords.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace settings {

ImportPreview::ImportPreview(const BindingsEditor &editor, const launcher::Bindings &wanted,
                             const QMap<QString, launcher::Bindings> &rings, const QString &source,
                             QWidget *parent)
    : QDialog(parent)
    , m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("import_preview"));
    setWindowTitle(tr("Import"));
    m_list->setObjectName(QStringLiteral("import_changes"));
    m_list->setAccessibleName(tr("What changes"));
    m_list->setHeaderLabels({tr("What"), tr("Now"), tr("After")});
    m_list->setRootIsDecorated(false);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    compare(editor, wanted);
    compareRings(editor, rings);

    auto *label = new QLabel(this);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *import = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    if (changes() == 0) {
        label->setText(
            tr("%1 has what %2 has already. Nothing would change.").arg(source, editor.title()));
        import->setEnabled(false);
        m_list->hide();
    } else {
        label->setText(tr("%1 would change the following in %2. The settings as they are now stay "
                          "beside the new ones.")
                           .arg(source, editor.title()));
    }
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(fontMetrics().averageCharWidth() * 80, m_list->isHidden() ? 0 : 380);
}

int ImportPreview::changes() const
{
    return m_list->topLevelItemCount();
}

void ImportPreview::compare(const BindingsEditor &editor, const launcher::Bindings &wanted)
{
    const launcher::Bindings &present = editor.bindings();
    const auto onOrOff = [](bool isOn) { return isOn ? tr("on") : tr("off"); };
    const auto trigger = [&editor](const QString &text) {
        return text.isEmpty() ? tr("%1 (usual)").arg(triggerInWords(editor.usualTrigger()))
                              : triggerInWords(text);
    };
    const auto command = [&editor](const QString &identifier) {
        return identifier.isEmpty() ? tr("nothing") : editor.captionOf(identifier);
    };
    if (present.enabled != wanted.enabled)
        addLine(tr("Gestures"), onOrOff(present.enabled), onOrOff(wanted.enabled));
    if (present.scheme != wanted.scheme)
        addLine(tr("Directions in use"), QString::number(present.scheme),
                QString::number(wanted.scheme));
    if (present.trigger != wanted.trigger)
        addLine(tr("A gesture starts with"), trigger(present.trigger), trigger(wanted.trigger));
    for (const int scheme : {4, 8}) {
        const QStringList names = launcher::Bindings::directionNames(scheme);
        const QStringList &before = scheme == 4 ? present.four : present.eight;
        const QStringList &after = scheme == 4 ? wanted.four : wanted.eight;
        for (int i = 0; i < scheme; ++i) {
            if (before.at(i) == after.at(i))
                continue;
            const QString direction = launcher::Bindings::directionInWords(names.at(i));
            addLine(tr("%1 (of %2 directions)").arg(gesturewidget::capitalized(direction)).arg(scheme),
                    command(before.at(i)), command(after.at(i)));
        }
    }
}

void ImportPreview::compareRings(const BindingsEditor &editor,
                                 const QMap<QString, launcher::Bindings> &rings)
{
    const QStringList present = editor.tasks().tasks();
    for (auto it = rings.cbegin(); it != rings.cend(); ++it) {
        const launcher::Bindings now = editor.tasks().ringOf(it.key());
        const bool isOwn = present.contains(it.key());
        const bool isSame = isOwn && now.scheme == it.value().scheme && now.four == it.value().four
                         && now.eight == it.value().eight;
        if (!isSame)
            addLine(tr("Ring of %1").arg(it.key()), isOwn ? tr("its own") : tr("shared"),
                    tr("the file's"));
    }
}

void ImportPreview::addLine(const QString &what, const QString &before, const QString &after)
{
    auto *line = new QTreeWidgetItem(m_list, {what, before, after});
    line->setData(0, Qt::AccessibleTextRole, tr("%1: now %2, after %3").arg(what, before, after));
}

} // namespace settings
