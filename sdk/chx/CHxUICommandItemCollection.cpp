#include "CHxUICommandItemCollection.h"

CHxUICommandItemCollection::~CHxUICommandItemCollection() = default;
