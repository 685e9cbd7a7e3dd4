#include "sdk/od/OdRxModule.h"

OdRxModule::~OdRxModule() = default;
