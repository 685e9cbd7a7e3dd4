#include "CHxUIMenuItemCollection.h"

CHxUIMenuItemCollection::~CHxUIMenuItemCollection() = default;
