// What is known of a book so far, while its sources are asked one after the other.

#pragma once

#include <QString>

namespace tomely {

/// Null is not known yet.
struct BookDetails {
    QString author;
    QString asin; // a number of another shop's; no source fills it
    QString isbn; // the one that was asked for; there when a source knew the book
    QString numberOfPages;
    QString publicationDate;
    QString publisher;
    QString title;
    QString smallThumbnailImageURL;
    QString thumbnailImageURL;
    QString smallImageURL;
    QString mediumImageURL;
    QString largeImageURL;
};

} // namespace tomely
