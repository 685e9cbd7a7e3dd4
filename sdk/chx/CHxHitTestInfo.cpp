#include "CHxHitTestInfo.h"

CHxHitTestInfo::~CHxHitTestInfo() = default;
