#include "host/CommandGroup.h"

#include "host/SnapshotIterator.h"

namespace host {

CommandGroup::CommandGroup(const QString &name)
    : m_name(name)
{
}

CommandGroup::~CommandGroup() = default;

std::unique_ptr<CHxIterator<CHxUICommandItem>> CommandGroup::NewCommandIterator()
{
    return std::make_unique<SnapshotIterator<CHxUICommandItem>>(items);
}

} // namespace host
