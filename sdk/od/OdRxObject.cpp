#include "OdRxObject.h"

OdRxObject::~OdRxObject() = default;
