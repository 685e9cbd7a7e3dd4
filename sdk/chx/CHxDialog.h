#pragma once

#include "sdk/SdkExport.h"

#include <QDialog>

// The base of dialogs in this host: a QDialog that knows its help topic and keeps its
// place on the screen that its parent is on.
class SDK_EXPORT CHxDialog : public QDialog
{
    Q_OBJECT

public:
    // `keepFlags` true leaves the window flags exactly as `flags` says; false adds a close
    // button and makes it a dialog, which is what a user expects of one.
    CHxDialog(QWidget *parent, bool keepFlags, Qt::WindowFlags flags);
    ~CHxDialog() override;

    void accept() override;
    void reject() override;
    int exec() override;
    void done(int result) override;
    // Topic number of the dialog's help, 0 for none.
    [[nodiscard]] virtual int GetHelpId() const;

public Q_SLOTS:
    // Opens the help on GetHelpId() through the host.
    void Help();
};
