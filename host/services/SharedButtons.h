#pragma once

namespace gesturewidget {

// Offers the images of dialog buttons that modules expect of a host: ":/images/shared/"
// with ok.png, cancel.png and help.png. A program that has such images itself keeps its
// own, each by itself. Calling it a second time does nothing.
void provideSharedButtons();

} // namespace gesturewidget
