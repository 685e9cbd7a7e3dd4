#include "OdRxModule.h"

OdRxModule::~OdRxModule() = default;
