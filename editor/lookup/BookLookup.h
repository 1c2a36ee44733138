// What the look-up sources know of a book with a given ISBN. Source 1 is a book service, asked for
// a volume's identifier and then for its record; source 2 is a book's page on a web site. Making a
// look-up asks them, and after that it only answers. What becomes of the answers is not its
// business.

#pragma once

#include "editor/lookup/BookDetails.h"

#include <QString>

namespace tomely {

class UrlFetch;
struct LookupSettings;

class BookLookup {
public:
    /// Asks the sources for an ISBN, which is sent as it stands, and waits for their answers.
    static BookLookup initWithISBN(
        const QString& isbn, const LookupSettings& settings, UrlFetch& fetch);

    /// Texts are null where no source knew them.
    const QString& getTitle() const { return m_details.title; }

    const QString& getAuthor() const { return m_details.author; }

    const QString& getPublisher() const { return m_details.publisher; }

    /// Normally "2004-07-15", "2004-07" or "2004", but whatever a source says.
    const QString& getPublicationDate() const { return m_details.publicationDate; }

    const QString& getNumberOfPages() const { return m_details.numberOfPages; }

    const QString& getSmallThumbnailImageURL() const { return m_details.smallThumbnailImageURL; }

    const QString& getThumbnailImageURL() const { return m_details.thumbnailImageURL; }

    const QString& getSmallImageURL() const { return m_details.smallImageURL; }

    const QString& getMediumImageURL() const { return m_details.mediumImageURL; }

    const QString& getLargeImageURL() const { return m_details.largeImageURL; }

    /// The ISBN that was asked for, when a source knew the book; null otherwise.
    const QString& getISBN() const;

    /// No source knew the book.
    bool hasLoadError() const { return getISBN().isEmpty(); }

    /// What stands before the first "-" of the publication date, which is all of a date without
    /// one; "" without a date.
    QString getPublicationYear() const;

    /// The number that the second part of the publication date starts with, 0 without one. It need
    /// not be a month.
    qint32 getPublicationMonth() const;

    /// The address of the largest cover there is, by https; null when there is none. With
    /// `ignoreLarge` the large one does not count.
    QString getBestImageURL(bool ignoreLarge) const;

private:
    BookLookup() = default;
    void initWithISBN_Google(const QString& isbn, const LookupSettings& settings, UrlFetch& fetch);
    void initWithISBN_Direct(const QString& isbn, const LookupSettings& settings, UrlFetch& fetch);

    BookDetails m_details;
};

} // namespace tomely
