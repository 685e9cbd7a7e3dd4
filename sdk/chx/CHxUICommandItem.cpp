#include "sdk/chx/CHxUICommandItem.h"

CHxUICommandItem::~CHxUICommandItem() = default;
