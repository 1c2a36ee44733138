#include "document/GroupEntry.h"

#include "model/KeyText.h"
#include "platform/Archiver.h"
#include "platform/Unarchiver.h"

namespace tomely {

void GroupEntry::setKey(qint32 number)
{
    m_strGroupKey = keyText(number);
}

void GroupEntry::encodeWithCoder(Archiver& archiver) const
{
    archiver.encodeString(m_strGroupKey);
    archiver.encodeString(m_strGroupName);
}

GroupEntry GroupEntry::initWithCoder(Unarchiver& unarchiver)
{
    GroupEntry group;
    group.m_strGroupKey = normalizedKey(unarchiver.decodeString());
    group.m_strGroupName = unarchiver.decodeString();
    return group;
}

} // namespace tomely
