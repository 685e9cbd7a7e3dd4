#include "sdk/chx/CHxUICommandItemCollection.h"

CHxUICommandItemCollection::~CHxUICommandItemCollection() = default;
