#include "sdk/chx/CHxMainFrame.h"

CHxMainFrame::~CHxMainFrame() = default;
