// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// mouse-gestures-sheet: reads a SheetContent from standard input, draws it, and writes it as PDF to
// standard output. mouse-gestures --print starts it.

#include "host/language/LanguageChoice.h"
#include "host/language/Translations.h"
#include "launcher/sheet/SheetContent.h"
#include "launcher/sheet/SheetPage.h"
#include "launcher/Text.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QPdfWriter>

#include <cstdio>

namespace {

constexpr int kResolution = 1200; // pixels per inch

bool draw(const launcher::SheetContent &content, QIODevice &device)
{
    QPdfWriter writer(&device);
    writer.setResolution(kResolution);
    sheet::setUpPage(writer);
    writer.setTitle(launcher::Text::tr("Mouse gestures in %1").arg(content.program));
    writer.setCreator(QStringLiteral("mouse-gestures"));
    return sheet::drawPage(content, writer, kResolution);
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    gesturewidget::Translations translations;
    translations.install(gesturewidget::chooseLanguage(QLocale::system().uiLanguages(),
                                                       gesturewidget::Translations::languages()));
    QFile input;
    launcher::SheetContent content;
    if (!input.open(stdin, QIODevice::ReadOnly) || !content.read(input.readAll())) {
        std::fputs("mouse-gestures-sheet: this is started by mouse-gestures --print\n", stderr);
        return 1;
    }
    QBuffer pdf;
    QFile output;
    const bool isWritten = pdf.open(QIODevice::WriteOnly) && draw(content, pdf)
                        && output.open(stdout, QIODevice::WriteOnly)
                        && output.write(pdf.data()) == pdf.data().size() && output.flush();
    return isWritten ? 0 : 1;
}
