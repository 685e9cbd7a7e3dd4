#include "hx_OdRxModule.h"

hx_OdRxModule::~hx_OdRxModule() = default;
