#include "sdk/chx/CHxTextOutput.h"

CHxTextOutput::~CHxTextOutput() = default;
