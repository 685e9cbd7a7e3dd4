// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/MessageBox.h"

#include "sdk/chx/CHxSystemServices.h"

#include <QMessageBox>
#include <QPointer>

namespace gesturewidget {
namespace {

QMessageBox::Icon signOf(int style)
{
    switch (style & 0xf0) {
    case 16:
        return QMessageBox::Critical;
    case 32:
        return QMessageBox::Question;
    case 48:
        return QMessageBox::Warning;
    case 64:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

int showMessage(QWidget *parent, const QString &text, const QString &caption, int style)
{
    const bool hasCancel = (style & 0x0f) == 1;
    const QPointer<QMessageBox> box(new QMessageBox(parent));
    box->setIcon(signOf(style));
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    box->setWindowTitle(caption);
    box->setStandardButtons(hasCancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
    box->setDefaultButton(QMessageBox::Ok);
    const int answer = box->exec();
    delete box;
    return !hasCancel || answer == QMessageBox::Ok ? CHxSystemServices::kMessageOk
                                                   : CHxSystemServices::kMessageCancel;
}

} // namespace gesturewidget
