#include "sdk/chx/CHxDocumentManager.h"

CHxDocumentIterator::~CHxDocumentIterator() = default;

CHxDocumentManager::~CHxDocumentManager() = default;
