#include "sdk/chx/CHxDocument.h"

CHxDocument::~CHxDocument() = default;
