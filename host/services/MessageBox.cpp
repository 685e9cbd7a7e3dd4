// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/MessageBox.h"

#include "sdk/chx/CHxSystemServices.h"

#include <QAbstractButton>
#include <QCoreApplication>
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

// The style's texts are in Qt's own translation, which few programs load.
void translateButton(const QMessageBox &box, QMessageBox::StandardButton which, const char *english)
{
    QAbstractButton *button = box.button(which);
    const QString text = QCoreApplication::translate("host", english);
    if (button && text != QLatin1String(english))
        button->setText(text);
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
    translateButton(*box, QMessageBox::Ok, QT_TRANSLATE_NOOP("host", "OK"));
    translateButton(*box, QMessageBox::Cancel, QT_TRANSLATE_NOOP("host", "Cancel"));
    box->setDefaultButton(QMessageBox::Ok);
    const int answer = box->exec();
    delete box;
    return !hasCancel || answer == QMessageBox::Ok ? CHxSystemServices::kMessageOk
                                                   : CHxSystemServices::kMessageCancel;
}

} // namespace gesturewidget
