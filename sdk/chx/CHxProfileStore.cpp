#include "CHxProfileStore.h"

CHxProfileStore::~CHxProfileStore() = default;
