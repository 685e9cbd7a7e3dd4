#include "CHxUICommandItem.h"

CHxUICommandItem::~CHxUICommandItem() = default;
