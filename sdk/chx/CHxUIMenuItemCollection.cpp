#include "sdk/chx/CHxUIMenuItemCollection.h"

CHxUIMenuItemCollection::~CHxUIMenuItemCollection() = default;
