#include "CHxMainFrame.h"

CHxMainFrame::~CHxMainFrame() = default;
