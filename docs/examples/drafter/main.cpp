// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include <gesturewidget/GestureHost.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QStatusBar>

#include <iostream>

class Canvas : public QWidget
{
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter(this).drawText(rect(), Qt::AlignCenter, "Drag here");
    }
};

class MainWindow : public QMainWindow
{
public:
    MainWindow()
    {
        setCentralWidget(new Canvas);
        QMenu *file = menuBar()->addMenu("File");
        add(file, "Open", "fileOpen");
        add(file, "Save", "fileSave");
        QMenu *edit = menuBar()->addMenu("Edit");
        add(edit, "Copy", "editCopy");
        add(edit, "Trim", "editTrim");
        add(edit, "Offset", "editOffset");
        add(edit, "Zoom to Fit", "editZoomFit");
        QMenu *draw = menuBar()->addMenu("Draw");
        add(draw, "Line", "drawLine");
        add(draw, "Text", "drawText");
    }

private:
    void add(QMenu *menu, const char *text, const char *name)
    {
        QAction *action = menu->addAction(text);
        action->setObjectName(name); // a binding is stored by this name
        connect(action, &QAction::triggered, this,
                [this, action] { statusBar()->showMessage(action->text()); });
    }
};

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    MainWindow window;
    gesturewidget::GestureHost gestures(&window);
    gestures.addView(window.centralWidget());
    QString error;
    if (!gestures.start(&error))
        std::cerr << qPrintable(error) << '\n';
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
