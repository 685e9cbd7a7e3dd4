// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/exchange/Exchange.h"

#include "launcher/sheet/SheetPage.h"
#include "launcher/sheet/SheetTask.h"
#include "settings/editing/BindingsEditor.h"
#include "settings/exchange/ImportPreview.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace settings {
namespace {

QString filterOf()
{
    return Exchange::tr("Gestures (*.json)") + QStringLiteral(";;") + Exchange::tr("All files (*)");
}

} // namespace

Exchange::Exchange(QWidget *window)
    : QObject(window)
    , m_window(window)
{
}

void Exchange::exportBindings(const BindingsEditor &editor)
{
    const QString proposed =
        QDir::home().filePath(editor.subject().name + QLatin1String("-gestures.json"));
    const QString path = QFileDialog::getSaveFileName(m_window, tr("Export"), proposed, filterOf());
    if (!path.isEmpty())
        exportFile(editor, path);
}

void Exchange::exportFile(const BindingsEditor &editor, const QString &path)
{
    launcher::SettingsTasks tasks = editor.tasks();
    tasks.setTask({});
    const launcher::Outcome outcome = tasks.exportTo(path);
    if (outcome.isDone())
        Q_EMIT done(tr("Exported to %1").arg(QDir::toNativeSeparators(path)));
    else
        Q_EMIT failed(outcome.complaint);
}

void Exchange::importBindings(BindingsEditor &editor)
{
    const QString path =
        QFileDialog::getOpenFileName(m_window, tr("Import"), QDir::homePath(), filterOf());
    if (!path.isEmpty())
        importFile(editor, path);
}

void Exchange::importFile(BindingsEditor &editor, const QString &path)
{
    editor.setRing({}); // the preview compares with the shared ring
    launcher::Bindings wanted;
    QMap<QString, launcher::Bindings> rings;
    const launcher::Outcome outcome = editor.tasks().readImport(path, wanted, rings);
    if (!outcome.isDone()) {
        Q_EMIT failed(outcome.complaint);
        return;
    }
    ImportPreview preview(editor, wanted, rings, QFileInfo(path).fileName(), m_window);
    if (preview.exec() == QDialog::Accepted && editor.importFrom(path))
        Q_EMIT done(tr("Imported from %1").arg(QDir::toNativeSeparators(path)));
}

launcher::SheetContent Exchange::sheetOf(const BindingsEditor &editor)
{
    return launcher::sheetContent(launcher::ringTitle(editor.title(), editor.ring(), editor.commands()),
                                  editor.bindings(), editor.commands(), editor.usualTrigger());
}

void Exchange::print(const BindingsEditor &editor)
{
    const launcher::SheetContent content = sheetOf(editor);
    QPrinter printer(QPrinter::HighResolution);
    sheet::setUpPage(printer);
    printer.setDocName(tr("Mouse gestures in %1").arg(content.program));
    QPrintDialog dialog(&printer, m_window);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (sheet::drawPage(content, printer, printer.resolution()))
        Q_EMIT done(tr("Printed"));
    else
        Q_EMIT failed(tr("The printer did not take the sheet."));
}

void Exchange::reset(BindingsEditor &editor)
{
    QMessageBox question(QMessageBox::Question, tr("Reset"),
                         tr("Bring the first commands of %1 back?").arg(editor.title()),
                         QMessageBox::NoButton, m_window);
    question.setInformativeText(
        tr("All directions get the commands that they had before anybody chose any. What starts a "
           "gesture stays. Undo takes this back."));
    const QPushButton *yes = question.addButton(tr("&Reset"), QMessageBox::AcceptRole);
    question.setEscapeButton(question.addButton(tr("&Cancel"), QMessageBox::RejectRole));
    question.exec();
    if (question.clickedButton() == yes)
        editor.reset();
}

} // namespace settings
