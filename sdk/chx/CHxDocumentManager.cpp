#include "CHxDocumentManager.h"

CHxDocumentIterator::~CHxDocumentIterator() = default;

CHxDocumentManager::~CHxDocumentManager() = default;
