#include "host/MainFrame.h"

namespace host {

MainFrame::MainFrame(QMainWindow *window)
    : m_window(window)
{
}

MainFrame::~MainFrame() = default;

} // namespace host
