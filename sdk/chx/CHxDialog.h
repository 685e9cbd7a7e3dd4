// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QDialog>

// The base of dialogs in this host: a QDialog with a help topic. Its virtual functions call those
// of QDialog.
class GESTUREWIDGET_SDK_EXPORT CHxDialog : public QDialog
{
    Q_OBJECT

public:
    // `keepFlags` true uses exactly the window flags in `flags`. False adds those of a normal
    // dialog with a close button.
    CHxDialog(QWidget *parent, bool keepFlags, Qt::WindowFlags flags);
    ~CHxDialog() override;

    void accept() override;
    void reject() override;
    int exec() override;
    void done(int result) override;
    // The number of the dialog's help topic. 0, the default, is the first page.
    [[nodiscard]] virtual int GetHelpId() const;

public Q_SLOTS:
    // Opens topic GetHelpId() in the host's help. Does nothing without system services.
    void Help();
};
