#pragma once

#include "host/inject/BorrowedVariables.h"

#include <QObject>

#include <memory>

namespace inject {

// What the plug-in leaves in an application without widgets, in which it does nothing. If
// that one never gets to its event loop it was made for a moment only, and the next one
// finds the variables again. Owned by the application object.
class BareApplication : public QObject
{
    Q_OBJECT

public:
    explicit BareApplication(std::unique_ptr<BorrowedVariables> variables);
    ~BareApplication() override;

private:
    // It is the program's own one.
    void onEventLoop();

    std::unique_ptr<BorrowedVariables> m_variables;
};

} // namespace inject
