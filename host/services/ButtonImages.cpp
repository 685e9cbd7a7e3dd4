// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/ButtonImages.h"

#include <QResource>

namespace gesturewidget {
namespace {

// Unregisters the images when this library is unloaded, because Qt keeps only their address.
class Registration
{
public:
    explicit Registration(const uchar *images)
        : m_images(images)
    {
        QResource::registerResource(m_images);
    }
    ~Registration() { QResource::unregisterResource(m_images); }
    Q_DISABLE_COPY_MOVE(Registration)

private:
    const uchar *m_images;
};

} // namespace

void provideButtonImages()
{
    // The images are a resource file inside a resource file, so they are not offered before this
    // call. If two files have the same name, Qt returns the one that was registered first, which
    // must be the program's.
    static const Registration registration(
        QResource(QStringLiteral(":/gesturewidget-host/buttons.rcc")).data());
}

} // namespace gesturewidget
