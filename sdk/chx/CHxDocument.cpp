#include "CHxDocument.h"

CHxDocument::~CHxDocument() = default;
