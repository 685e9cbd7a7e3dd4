#include "sdk/chx/CHxProfileStore.h"

CHxProfileStore::~CHxProfileStore() = default;
