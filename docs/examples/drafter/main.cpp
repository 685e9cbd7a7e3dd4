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
        QPainter(this).drawText(rect(), Qt::AlignCenter, "Hold the right button and drag");
    }
};

class MainWindow : public QMainWindow
{
public:
    MainWindow()
    {
        setCentralWidget(new Canvas);
        // Bindings are stored by object name. Give each action one.
        const char *commands[][3] = {{"File", "Open", "fileOpen"},     {"File", "Save", "fileSave"},
                                     {"Edit", "Copy", "editCopy"},     {"Edit", "Trim", "editTrim"},
                                     {"Edit", "Offset", "editOffset"}, {"View", "Zoom to Fit", "viewFit"},
                                     {"Draw", "Line", "drawLine"},     {"Draw", "Text", "drawText"}};
        QMenu *menu = nullptr;
        for (const auto &[caption, text, name] : commands) {
            if (!menu || menu->title() != caption)
                menu = menuBar()->addMenu(caption);
            QAction *action = menu->addAction(text);
            action->setObjectName(name);
            connect(action, &QAction::triggered, this,
                    [this, action] { statusBar()->showMessage(action->text()); });
        }
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
        std::cerr << qPrintable(error) << '\n'; // the program goes on without gestures
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
