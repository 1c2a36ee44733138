// One possible column of the book list: which field it shows, its names, its place and width, and
// how the list can be filtered by it.

#pragma once

#include <QString>

namespace tomely {

class Archiver;
class Unarchiver;

/// How the list can be filtered by a column. The numbers are part of the catalogue's vocabulary.
enum class FilterType : qint32 {
    NotSet = -1, // a new or freshly read record; such a column is not offered
    Text = 0,
    CheckBox = 1,
    Date = 2, // month and year
    Number = 3,
    BookType = 4,
    Rating = 5,
    Images = 6, // offered by the filter bar only
    Groups = 7, // offered by the filter bar only
};

class ColumnEntry {
public:
    /// Positions from 0 on are places in the list; anything below is a column that is not shown.
    static constexpr qint32 notShown = -1; // as the catalogue starts
    static constexpr qint32 hidden = -2; // as the list leaves it

    QString getKey() const { return m_strColumnKey; }

    void setKey(qint32 number);

    /// Takes a key text as a file holds it.
    void setKeyText(const QString& key) { m_strColumnKey = key; }

    /// The heading in the list.
    QString getColumnName() const { return m_strColumnName; }

    void setColumnName(const QString& name) { m_strColumnName = name; }

    /// The longer name where columns are chosen.
    QString getSelectionName() const { return m_strSelectionName; }

    void setSelectionName(const QString& name) { m_strSelectionName = name; }

    /// The place in the list from 0 (leftmost); below 0 the column is not shown.
    qint32 getPosition() const { return m_nPosition; }

    void setPosition(qint32 position) { m_nPosition = position; }

    bool isShown() const { return m_nPosition >= 0; }

    /// In points; 0 when it was never set.
    qint32 getWidth() const { return m_nWidth; }

    void setWidth(qint32 width) { m_nWidth = width; }

    FilterType getFilterType() const { return m_nFilterType; }

    /// A check-box column is centred from then on; no other kind changes the centring.
    void setFilterType(FilterType type);

    bool getCentered() const { return m_bCentered; }

    void setCentered(bool centered) { m_bCentered = centered; }

    /// Writes key, names, position and width. Filter type and centring are the catalogue's.
    void encodeWithCoder(Archiver& archiver) const;

    /// Throws ArchiveError on damage.
    static ColumnEntry initWithCoder(Unarchiver& unarchiver);

private:
    QString m_strColumnKey;
    QString m_strColumnName;
    QString m_strSelectionName;
    qint32 m_nPosition = 0;
    qint32 m_nWidth = 0;
    FilterType m_nFilterType = FilterType::NotSet;
    bool m_bCentered = false;
};

} // namespace tomely
