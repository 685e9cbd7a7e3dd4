#include "CHxTextOutput.h"

CHxTextOutput::~CHxTextOutput() = default;
