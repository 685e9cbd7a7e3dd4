#include "host/SharedButtons.h"

#include <QResource>

namespace host {

void provideSharedButtons()
{
    // The images are a resource file inside a resource file, so that they are not offered
    // before this is called: of two files with one name Qt gives the one that was
    // registered first, and that must be the program's.
    static const bool isRegistered = [] {
        const QResource images(QStringLiteral(":/gesturewidget-host/buttons.rcc"));
        return QResource::registerResource(images.data());
    }();
    Q_UNUSED(isRegistered)
}

} // namespace host
