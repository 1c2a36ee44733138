#include "document/ColumnEntry.h"

#include "model/KeyText.h"
#include "platform/Archiver.h"
#include "platform/Unarchiver.h"

namespace tomely {

void ColumnEntry::setKey(qint32 number)
{
    m_strColumnKey = keyText(number);
}

void ColumnEntry::setFilterType(FilterType type)
{
    m_nFilterType = type;
    if (type == FilterType::CheckBox)
        m_bCentered = true;
}

void ColumnEntry::encodeWithCoder(Archiver& archiver) const
{
    archiver.encodeString(m_strColumnKey);
    archiver.encodeString(m_strColumnName);
    archiver.encodeString(m_strSelectionName);
    archiver.encodeInt32Block(m_nPosition);
    archiver.encodeInt32Block(m_nWidth);
}

ColumnEntry ColumnEntry::initWithCoder(Unarchiver& unarchiver)
{
    ColumnEntry column;
    column.m_strColumnKey = normalizedKey(unarchiver.decodeString());
    column.m_strColumnName = unarchiver.decodeString();
    column.m_strSelectionName = unarchiver.decodeString();
    column.m_nPosition = unarchiver.decodeInt32Block();
    column.m_nWidth = unarchiver.decodeInt32Block();
    return column;
}

} // namespace tomely
