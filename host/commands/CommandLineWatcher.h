#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>

class QKeyEvent;

namespace gesturewidget {

class CommandStack;

// Makes the commands of modules known to the program's own command line: when one's name
// is typed there and Return is pressed, the command runs and the program never sees the
// name. Everything else goes to the program untouched.
class CommandLineWatcher : public QObject
{
    Q_OBJECT

public:
    // `className` is the class, or a base class, of the line edit in which commands are
    // typed; empty watches nothing. `run` is given the name as it was typed.
    CommandLineWatcher(const QString &className, const CommandStack &stack,
                       std::function<void(const QString &name)> run);
    ~CommandLineWatcher() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QByteArray m_className;
    const CommandStack &m_stack;
    std::function<void(const QString &)> m_run;
};

} // namespace gesturewidget
