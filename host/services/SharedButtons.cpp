// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/SharedButtons.h"

#include <QResource>

namespace gesturewidget {
namespace {

// Takes the images back when this library goes: Qt keeps nothing but their address.
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

void provideSharedButtons()
{
    // The images are a resource file inside a resource file, so that they are not offered
    // before this is called: of two files with one name Qt gives the one that was
    // registered first, and that must be the program's.
    static const Registration registration(
        QResource(QStringLiteral(":/gesturewidget-host/buttons.rcc")).data());
}

} // namespace gesturewidget
