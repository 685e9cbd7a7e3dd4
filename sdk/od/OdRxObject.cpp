#include "sdk/od/OdRxObject.h"

OdRxObject::~OdRxObject() = default;
