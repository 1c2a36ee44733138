// The table of well-known books the sample collection is made of. It is kept as text, so that a row
// can be added or mended in any editor; reading it is strict, because a slip in it would otherwise
// show up as a wrong book in a collection that tests and newcomers take for correct.

#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class QIODevice;

namespace tomely {

/// A year, as it is written on the book, with the month when it is known (0 when it is not).
struct ClassicsDate {
    int month = 0;
    QString year;

    bool operator==(const ClassicsDate&) const = default;
};

/// One book of the table. What the table leaves empty stays at its default.
struct ClassicsRow {
    QString title;
    QString author;
    QString type;
    QString publisher;
    QString isbn;
    int pages = 0;
    ClassicsDate published;
    QString copyright;
    int rating = 0;
    /// Empty when nobody remembers; zero is a present.
    bool pricePaidKnown = false;
    double pricePaid = 0;
    QString pricePaidFrom;
    ClassicsDate purchased;
    bool estValueKnown = false;
    double estValue = 0;
    ClassicsDate estValueDate;
    QString location;
    QString lentTo;
    ClassicsDate lentDate;
    ClassicsDate firstRead;
    ClassicsDate lastRead;
    bool own = false;
    bool signedCopy = false;
    bool firstEdition = false;
    bool read = false;
    QStringList groups;
    QString notes;
    QString coverDesign;
};

/// The rows of the table, in its order. When anything in it is wrong there are no rows, and an
/// error that names the line.
struct ClassicsTable {
    std::vector<ClassicsRow> rows;
    QString error;

    bool isValid() const { return error.isEmpty(); }

    static ClassicsTable read(const QString& fileName);
    static ClassicsTable read(QIODevice& device);
};

} // namespace tomely
