#include "sdk/chx/CHxHitTestInfo.h"

CHxHitTestInfo::~CHxHitTestInfo() = default;
