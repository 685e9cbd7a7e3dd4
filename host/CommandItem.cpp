#include "host/CommandItem.h"

#include "host/Captions.h"

namespace host {

CommandItem::CommandItem(const QString &identifier)
    : m_identifier(identifier)
{
}

CommandItem::~CommandItem() = default;

CHxString CommandItem::GetCaption() const
{
    return plainCaption(m_name);
}

} // namespace host
