// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxDialog.h"

#include "CHxSystemServices.h"

namespace {
Qt::WindowFlags dialogFlags(bool keepFlags, Qt::WindowFlags flags)
{
    return keepFlags ? flags : flags | Qt::Dialog | Qt::WindowCloseButtonHint;
}
} // namespace

CHxDialog::CHxDialog(QWidget *parent, bool keepFlags, Qt::WindowFlags flags)
    : QDialog(parent, dialogFlags(keepFlags, flags))
{
}

CHxDialog::~CHxDialog() = default;

void CHxDialog::accept()
{
    QDialog::accept();
}

void CHxDialog::reject()
{
    QDialog::reject();
}

int CHxDialog::exec()
{
    return QDialog::exec();
}

void CHxDialog::done(int result)
{
    QDialog::done(result);
}

int CHxDialog::GetHelpId() const
{
    return 0;
}

void CHxDialog::Help()
{
    if (CHxSystemServices *services = GetHxSystemServices())
        services->ShowHelp(GetHelpId());
}
